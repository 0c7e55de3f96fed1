#include "brvblib/hotkeys/HotKeyTable.h"

#include <fmt/format.h>

#include <map>
#include <utility>

#include "automation/AutomationError.h"

namespace kestrune::brvblib {
namespace {

using Status = HotKeyRow::Status;

[[noreturn]] void refuse(std::string_view what) {
    throw automation::AutomationError(automation::hresult::bad_index, "HotKeys", what);
}

}  // namespace

std::vector<HotKeyRow> assign_keys(std::vector<HotKeyCommand> commands, const HotKeyChoices& choices) {
    std::vector<HotKeyRow> rows;
    rows.reserve(commands.size());
    for (HotKeyCommand& command : commands) rows.push_back({std::move(command), {}, Status::None, {}});
    std::map<keys::Key, std::size_t> owners;
    const auto give = [&](std::size_t place, const keys::Key& key, Status status) {
        HotKeyRow& row = rows[place];
        const auto [owner, is_free] = owners.emplace(key, place);
        row.status = is_free ? status : Status::Conflict;
        if (is_free)
            row.key = key;
        else
            row.taken_by = owner->second;
    };
    std::vector<const HotKeyChoice*> chosen;
    for (const HotKeyRow& row : rows) chosen.push_back(choices.find(row.command.client, row.command.id));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (!chosen[i]) continue;
        if (chosen[i]->key)
            give(i, *chosen[i]->key, Status::Chosen);
        else
            rows[i].status = Status::Cleared;
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (!chosen[i] && rows[i].command.default_key) give(i, *rows[i].command.default_key, Status::Default);
    }
    return rows;
}

const HotKeyRow* row_of_key(const std::vector<HotKeyRow>& rows, const keys::Key& key) {
    const auto found = std::ranges::find(rows, std::optional(key), &HotKeyRow::key);
    return found == rows.end() ? nullptr : &*found;
}

const HotKeyRow& row_of_command(const std::vector<HotKeyRow>& rows, std::string_view id, std::string_view client) {
    const HotKeyRow* found = nullptr;
    for (const HotKeyRow& row : rows) {
        if (!automation::same_text(row.command.id, id)) continue;
        if (!client.empty() && !automation::same_text(row.command.client, client)) continue;
        if (found) {
            refuse(fmt::format("{}: is a command of {} and of {}; name one of them", id, found->command.client,
                               row.command.client));
        }
        found = &row;
    }
    if (!found) {
        refuse(client.empty() ? fmt::format("{}: there is no such command", id)
                              : fmt::format("{}: {} has no such command", id, client));
    }
    return *found;
}

std::string status_text(const std::vector<HotKeyRow>& rows, const HotKeyRow& row) {
    switch (row.status) {
        case Status::None:
            return "";
        case Status::Default:
            return "default";
        case Status::Chosen:
            return "chosen";
        case Status::Cleared:
            return "cleared";
        case Status::Conflict:
            return "conflict with " + (row.taken_by ? rows[*row.taken_by].command.name : std::string());
    }
    return "";
}

std::string shown_name(const HotKeyCommand& command) { return fmt::format("{} ({})", command.name, command.id); }

}  // namespace kestrune::brvblib
