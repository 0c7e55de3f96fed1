#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "cli/menu/MenuPath.h"
#include "core/CommandTable.h"
#include "keys/Key.h"

namespace kestrune::cli {

// What `kestrune run` does, one after the other.
struct SelectStep {
    std::string target;  // a reference or a defined name, without the "@"
};
struct RequestStep {
    std::string request;  // "20", "20.3": as menus and hot keys send it
    const core::Command* command = nullptr;
};
struct MemberStep {
    std::string member;  // an iGlobal member without arguments, as its table spells it
};
struct HistoryStep {
    enum class Kind { Undo, Redo, List };
    Kind kind = Kind::Undo;
    std::int32_t count = 1;  // of presses; of lines in a list
};
struct KeyStep {
    keys::Key key;
};
struct MenuStep {
    MenuPath path;
};
using Step = std::variant<SelectStep, RequestStep, MemberStep, HistoryStep, KeyStep, MenuStep>;

// Reads a step as typed. UsageError for what is none, and for a command that does not exist.
Step parse_step(std::string_view text);

}  // namespace kestrune::cli
