#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "automation/Text.h"
#include "keys/Key.h"

namespace kestrune::brvblib {

// A key that the user gave a command, or nothing where they took the command's key away.
struct HotKeyChoice {
    std::string client;   // whose command it is, "KestruneXL"
    std::string command;  // its number, or the member that it is
    std::optional<keys::Key> key;

    bool operator==(const HotKeyChoice&) const = default;
};

// What the user decided about hot keys. Choices for commands that are not there now are kept for when they are.
struct HotKeyChoices {
    bool enabled = true;
    std::vector<HotKeyChoice> commands;
    std::vector<keys::Key> swallowed;  // keys that do nothing, in Excel either

    bool operator==(const HotKeyChoices&) const = default;

    [[nodiscard]] const HotKeyChoice* find(std::string_view client, std::string_view command) const {
        for (const HotKeyChoice& choice : commands) {
            if (automation::same_text(choice.client, client) && automation::same_text(choice.command, command)) {
                return &choice;
            }
        }
        return nullptr;
    }
    void forget(std::string_view client, std::string_view command) {
        std::erase_if(commands, [&](const HotKeyChoice& choice) {
            return automation::same_text(choice.client, client) && automation::same_text(choice.command, command);
        });
    }
    [[nodiscard]] bool swallows(const keys::Key& key) const {
        return std::ranges::find(swallowed, key) != swallowed.end();
    }
};

}  // namespace kestrune::brvblib
