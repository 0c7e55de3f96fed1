#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "brvblib/hotkeys/HotKeyChoices.h"
#include "keys/Key.h"

namespace kestrune::brvblib {

// A command that a key can have.
struct HotKeyCommand {
    std::string client{};   // who runs it, "KestruneXL"
    std::string product{};  // that client's product, for people
    std::string id{};       // the number that the client's RunMacro takes, or a member of its macro module
    std::string name{};
    std::string description{};
    std::string group{};
    std::optional<keys::Key> default_key{};
    bool is_member = false;
};

// A command with the key that it has now.
struct HotKeyRow {
    enum class Status {
        None,      // the command comes without a key
        Default,   // its own key
        Chosen,    // the user's
        Cleared,   // the user took its key away
        Conflict,  // another command has the key
    };

    HotKeyCommand command;
    std::optional<keys::Key> key;
    Status status = Status::None;
    std::optional<std::size_t> taken_by;  // the row of the command that has the key, in a conflict
};

// The commands of all clients, first registered first, with the keys that the user's choices and the defaults give
// them. A key that the user chose goes before defaults; among equals the first row keeps the key, and the others have
// none.
std::vector<HotKeyRow> assign_keys(std::vector<HotKeyCommand> commands, const HotKeyChoices& choices);

// The row that has a key; null when nobody has it.
const HotKeyRow* row_of_key(const std::vector<HotKeyRow>& rows, const keys::Key& key);

// The row of a command. An empty client stands for the one that has it. Fails, in one line, when there is no such
// command or several clients have it.
const HotKeyRow& row_of_command(const std::vector<HotKeyRow>& rows, std::string_view id, std::string_view client);

// "default", "chosen", "cleared", "conflict with Smart Copy Right"; empty for a command without a key.
std::string status_text(const std::vector<HotKeyRow>& rows, const HotKeyRow& row);

// "Currency SmartCycle (20)".
std::string shown_name(const HotKeyCommand& command);

}  // namespace kestrune::brvblib
