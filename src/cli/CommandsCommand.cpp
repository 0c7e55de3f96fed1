#include "cli/CommandsCommand.h"

#include <fmt/format.h>

#include <cstdio>
#include <nlohmann/json.hpp>

#include "brvblib/CommandTexts.h"
#include "cli/HelpPage.h"
#include "core/CommandTable.h"
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

}  // namespace

void list_commands(const CommandsOptions& options) {
    if (options.html) {
        host::AtomicFile file(*options.html);
        file.write(help_page());
        file.commit();
        return;
    }
    if (options.json) {
        nlohmann::ordered_json rows = nlohmann::ordered_json::array();
        for (const core::Command& command : core::commands()) {
            const brvblib::CommandText& text = text_of(command);
            rows.push_back({{"number", command.number},
                            {"name", text.name},
                            {"description", text.description},
                            {"key", text.key},
                            {"group", text.group},
                            {"parameter", command.takes_parameter},
                            {"changes_workbook", command.touches.changes_workbook()},
                            {"undo", command.touches.undoable()},
                            {"available", command.body != nullptr}});
        }
        fmt::print("{}\n", rows.dump(1));
        return;
    }
    std::string_view group;
    for (const core::Command& command : core::commands()) {
        const brvblib::CommandText& text = text_of(command);
        if (text.group != group) fmt::print("{}{}\n", group.empty() ? "" : "\n", text.group);
        group = text.group;
        fmt::print("{:>5}{:<3} {:<34} {:<20} {}{}{}\n", command.number, command.takes_parameter ? ".n" : "", text.name,
                   text.key, text.description, undo_note(command), command.body ? "" : " (not available yet)");
    }
}

}  // namespace kestrune::cli
