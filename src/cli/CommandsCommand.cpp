#include "cli/CommandsCommand.h"

#include <fmt/format.h>

#include <cstdio>
#include <nlohmann/json.hpp>

#include "brvblib/CommandTexts.h"
#include "cli/HelpPage.h"
#include "cli/keys/IdleAddIn.h"
#include "cli/keys/KeyList.h"
#include "core/CommandTable.h"
#include "core/bridges/Product.h"
#include "host/xlsx/package/AtomicFile.h"

namespace kestrune::cli {
namespace {

const brvblib::CommandText& text_of(const core::Command& command) {
    return brvblib::command_texts[static_cast<std::size_t>(command.number)];
}

// Every other command that changes a workbook can be undone, or changes none.
std::string_view undo_note(const core::Command& command) {
    return command.touches.changes_workbook() && !command.touches.undoable() ? " (cannot be undone)" : "";
}

// The keys that the commands have now, by number.
std::vector<std::string> present_keys() {
    IdleAddIn add_in;
    std::vector<std::string> keys(core::commands().size());
    for (const ListedKey& row : listed_keys(add_in.hot_keys())) {
        const core::Command* command = core::resolve(row.command, automation::Trace{}).command;
        if (row.client == core::client_name && command) keys[static_cast<std::size_t>(command->number)] = row.key;
    }
    return keys;
}

}  // namespace

void list_commands(const CommandsOptions& options) {
    if (options.html) {
        host::AtomicFile file(*options.html);
        file.write(help_page());
        file.commit();
        return;
    }
    const std::vector<std::string> keys = present_keys();
    if (options.json) {
        nlohmann::ordered_json rows = nlohmann::ordered_json::array();
        for (const core::Command& command : core::commands()) {
            const brvblib::CommandText& text = text_of(command);
            rows.push_back({{"number", command.number},
                            {"name", text.name},
                            {"description", text.description},
                            {"key", keys[static_cast<std::size_t>(command.number)]},
                            {"default_key", text.key},
                            {"group", text.group},
                            {"parameter", command.takes_parameter},
                            {"changes_workbook", command.touches.changes_workbook()},
                            {"undo", command.touches.undoable()}});
        }
        fmt::print("{}\n", rows.dump(1));
        return;
    }
    std::string_view group;
    for (const core::Command& command : core::commands()) {
        const brvblib::CommandText& text = text_of(command);
        if (text.group != group) fmt::print("{}{}\n", group.empty() ? "" : "\n", text.group);
        group = text.group;
        fmt::print("{:>5}{:<3} {:<34} {:<20} {}{}\n", command.number, command.takes_parameter ? ".n" : "", text.name,
                   keys[static_cast<std::size_t>(command.number)], text.description, undo_note(command));
    }
}

}  // namespace kestrune::cli
