#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "automation/Trace.h"
#include "automation/Value.h"
#include "core/bridges/Command.h"
#include "core/bridges/Touches.h"

namespace kestrune::core {

using CommandNaming = std::string (*)(const SharedState& state);

// One numbered command. Its name, description and group stand in the general library's string table.
struct Command {
    std::int32_t number = 0;
    CommandBody body = nullptr;      // never null
    bool takes_parameter = false;    // the number after the full stop reaches the body
    Touches touches{};               // what it changes, of which undo has to know before
    CommandNaming naming = nullptr;  // its name as the user settings have it; null for the string table's
};

// All commands, by number: 0 to 102.
const std::array<Command, 103>& commands();

// What a command request asks for.
struct ResolvedRequest {
    const Command* command = nullptr;  // null when the request is no command's number
    std::int32_t parameter = 0;
};

// Reads a request: a command's number as a text or any kind of number, or a number, a full stop and a parameter
// ("20.3"). The first full stop parts them. The parameter is a whole number, halves rounded to the even neighbour;
// 0 when it does not convert. Numbers compare by value as Visual Basic compares them: " 19 " and 19.0 ask for 19,
// Empty and False for 0, a text that is no number for nothing. What does not convert goes to the trace.
ResolvedRequest resolve(const automation::Value& request, const automation::Trace& trace);

}  // namespace kestrune::core
