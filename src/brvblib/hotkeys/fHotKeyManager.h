#pragma once

#include <optional>
#include <string>
#include <vector>

#include "brvblib/Services.h"
#include "brvblib/hotkeys/HotKeys.h"
#include "forms/Form.h"

namespace kestrune::brvblib {

// The hot-key manager: every client's commands with their keys, found by any of their words. A key is given by pressing
// it; what it does so far is told, and asked about when another command has it. Everything is done to a copy of the
// user's choices, which OK and Apply keep.
class fHotKeyManager : public forms::Form {
  public:
    // All of these outlive it.
    fHotKeyManager(const Services& services, HotKeys& keys, std::string title);

  private:
    void UserForm_Initialize();
    void txtKey_Change();
    void btnRemove_Click();
    void btnReset_Click();
    void btnResetAll_Click();
    void btnCopy_Click();
    void btnPrint_Click();

    // Works the rows out of the copy and lists those that are sought.
    void list();
    void show_chosen();
    // The row that is chosen in the list; null for none.
    [[nodiscard]] const HotKeyRow* chosen() const;
    void choose(std::string_view client, std::string_view command);
    void set_choice(const HotKeyCommand& command, const std::optional<keys::Key>& key);
    [[nodiscard]] std::string list_text() const;
    // Gives the chosen command the key in the box, if there is one; false when another command is to keep it.
    [[nodiscard]] bool assign();
    // Keeps the copy, with the key that is still in the box; whether that went well.
    [[nodiscard]] bool apply();
    void tell(const std::string& line) const;

    const Services& services_;
    HotKeys& keys_;
    std::string title_;
    std::vector<HotKeyCommand> commands_;
    HotKeyChoices opened_;  // as they are kept
    HotKeyChoices edited_;
    std::vector<HotKeyRow> rows_;
    std::vector<std::size_t> listed_;  // rows, by their places in the list
};

}  // namespace kestrune::brvblib
