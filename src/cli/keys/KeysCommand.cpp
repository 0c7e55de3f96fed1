#include "cli/keys/KeysCommand.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "automation/Conversion.h"
#include "automation/Text.h"
#include "cli/Failure.h"
#include "cli/keys/IdleAddIn.h"
#include "cli/keys/KeyList.h"

namespace kestrune::cli {
namespace {

using nlohmann::ordered_json;

bool keys_are_on(automation::Object& registry) { return automation::to_boolean(automation::get(registry, "Enabled")); }

std::vector<std::string> swallowed_keys(automation::Object& registry) {
    std::vector<std::string> keys;
    const automation::Value answer = automation::get(registry, "Swallowed");
    if (!answer.array()) return keys;
    for (const automation::Value& key : answer.array()->elements()) keys.push_back(automation::to_text(key));
    return keys;
}

void print_json(automation::Object& registry) {
    ordered_json rows = ordered_json::array();
    for (const ListedKey& row : listed_keys(registry)) {
        rows.push_back({{"client", row.client},
                        {"command", row.command},
                        {"name", row.name},
                        {"description", row.description},
                        {"group", row.group},
                        {"key", row.key},
                        {"default_key", row.default_key},
                        {"status", row.status},
                        {"in_excel", row.in_excel}});
    }
    const ordered_json page{{"enabled", keys_are_on(registry)},
                            {"file", automation::to_text(automation::get(registry, "Path"))},
                            {"keys", rows},
                            {"swallowed", swallowed_keys(registry)}};
    fmt::print("{}\n", page.dump(1));
}

void print_line(const ListedKey& row) {
    std::string notes = row.status == "default" ? "" : row.status;
    if (!row.in_excel.empty()) notes += fmt::format("{}in Excel {}", notes.empty() ? "" : "; ", row.in_excel);
    fmt::print("{:<20} {:>6}  {}{}\n", row.key, row.command, row.name,
               notes.empty()
                   ? ""
                   : fmt::format("{:>{}}{}", "", std::max<int>(2, 34 - static_cast<int>(row.name.size())), notes));
}

void print_list(automation::Object& registry) {
    if (!keys_are_on(registry)) fmt::print("The hot keys are off; 'kestrune keys on' brings them back.\n\n");
    std::string group;
    for (const ListedKey& row : listed_keys(registry)) {
        if (row.status.empty()) continue;
        if (row.group != group) fmt::print("{}{}\n", group.empty() ? "" : "\n", row.group);
        group = row.group;
        print_line(row);
    }
    const auto swallowed = swallowed_keys(registry);
    if (!swallowed.empty()) fmt::print("\nKeys that do nothing\n");
    for (const std::string& key : swallowed) fmt::print("{}\n", key);
}

void change(automation::Object& registry, const KeysOptions& options) {
    const std::string& operation = options.operation;
    if (operation == "On" || operation == "Off") return automation::put(registry, "Enabled", operation == "On");
    if (operation == "ResetKey" && options.arguments.front().empty()) {
        automation::call(registry, "ResetAllKeys");
        return;
    }
    automation::Arguments arguments;
    for (const std::string& argument : options.arguments) arguments.positional.emplace_back(argument);
    automation::call(registry, operation, std::move(arguments));
}

// What the change came to: the command that it was about, else the whole list.
void print_outcome(automation::Object& registry, const KeysOptions& options) {
    const bool of_a_command = options.operation == "SetKey" || options.operation == "ClearKey" ||
                              (options.operation == "ResetKey" && !options.arguments.front().empty());
    if (of_a_command) {
        for (const ListedKey& row : listed_keys(registry)) {
            if (automation::same_text(row.command, options.arguments.front())) print_line(row);
        }
        return;
    }
    print_list(registry);
}

}  // namespace

void manage_keys(const KeysOptions& options) {
    IdleAddIn add_in;
    automation::Object& registry = add_in.hot_keys();
    const std::string problem = automation::to_text(automation::get(registry, "Problem"));
    if (!problem.empty()) fmt::print(stderr, "{}\n", problem);
    if (!options.operation.empty()) {
        try {
            change(registry, options);
        } catch (const automation::AutomationError& error) {
            throw Failure(error.description());
        }
    }
    if (options.json)
        print_json(registry);
    else if (options.operation.empty())
        print_list(registry);
    else
        print_outcome(registry, options);
}

}  // namespace kestrune::cli
