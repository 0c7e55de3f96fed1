#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "automation/Object.h"
#include "automation/Text.h"
#include "brvblib/Services.h"
#include "brvblib/hotkeys/HotKeyBinder.h"
#include "brvblib/hotkeys/HotKeyFile.h"
#include "brvblib/hotkeys/HotKeyTable.h"

namespace kestrune::brvblib {

// The hot keys of every product in this process: whose commands there are, which key each has, what the user chose, and
// what is bound in Excel. Failures are one line for a person; what a member that fails was to change stays as it was.
class HotKeys {
  public:
    explicit HotKeys(const Services& services);

    // Clients, whose order decides conflicts. Registering a name again replaces its call-back and keeps its place.
    void add_client(const std::string& name, const automation::ObjectRef& callback);
    // Whether there was one. Its keys go back to Excel.
    bool remove_client(std::string_view name);
    [[nodiscard]] automation::ObjectRef callback(std::string_view name) const;
    // Where Excel finds the macros of a client's commands: the name of an open workbook and a module in it, whose
    // RunMacro takes a command's number. A client without them has keys that Excel does not run.
    void set_macros(const std::string& client, const std::string& workbook, const std::string& module);
    // A command that is a macro of its own in the client's module, besides those of its command array.
    void add_member(const std::string& client, HotKeyCommand command);

    // Binds in this Excel what is to be bound, now and after every change, until all is released.
    void bind(const automation::ObjectRef& application);
    void release() {
        binder_.release();
        application_ = nullptr;
    }

    [[nodiscard]] const std::vector<HotKeyRow>& rows();
    [[nodiscard]] const HotKeyChoices& choices();
    // Why the user's file could not be used, in one line; empty when it could.
    [[nodiscard]] const std::string& problem();
    [[nodiscard]] std::string path() const { return file_.path(); }

    // The user's choices, kept before they take effect. A client may be left out where one only has the command.
    void set_enabled(bool enabled);
    void set_key(std::string_view command, const std::string& key, std::string_view client);
    void clear_key(std::string_view command, std::string_view client);
    void reset_key(std::string_view command, std::string_view client);
    void reset_all();  // keys, and what is swallowed; on or off stays
    void swallow(const std::string& key);
    // Makes what is different between two states of the choices different in those that are kept, which may have
    // changed besides.
    void change(const HotKeyChoices& from, const HotKeyChoices& to);
    void unswallow(const std::string& key);

    // The key that a text names; fails for texts and keys that are no hot keys.
    static keys::Key hot_key(const std::string& text);

  private:
    struct Client {
        std::string name;
        automation::ObjectRef callback;
        std::string workbook;
        std::string module;
        std::vector<HotKeyCommand> members;
    };

    [[nodiscard]] Client* find(std::string_view name);
    void load();
    // The choices as the file has them now: another Excel may have changed them.
    void reload();
    void keep(HotKeyChoices choices);
    void refresh();
    void require_free(const keys::Key& key, const HotKeyCommand& command);
    [[nodiscard]] HotKeyBinder::Macros wanted();

    const automation::Trace& trace_;
    HotKeyFile file_;
    HotKeyBinder binder_;
    automation::ObjectRef application_;
    std::vector<Client> clients_;
    HotKeyChoices choices_;
    bool loaded_ = false;
    std::string problem_;
    std::vector<HotKeyRow> rows_;
    bool rows_known_ = false;
};

}  // namespace kestrune::brvblib
