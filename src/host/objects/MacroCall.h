#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "automation/Value.h"

namespace kestrune::host {

// A macro with its arguments, as keys and controls name it: the name alone, or in apostrophes with the arguments behind
// it, "'mDOM.RunMacro ""20""'" and, of another workbook, "'My book.xla'!'mDOM.RunMacro ""20"", True'".
struct MacroCall {
    std::string name;  // as Application.Run takes it
    std::vector<automation::Value> arguments;

    // Arguments are texts in double quotes, numbers, True and False. Nothing when they are not.
    static std::optional<MacroCall> parse(std::string_view text);
};

}  // namespace kestrune::host
