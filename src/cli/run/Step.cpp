#include "cli/run/Step.h"

#include <fmt/format.h>

#include "cli/Failure.h"
#include "core/CommandTable.h"
#include "core/iGlobal.h"

namespace kestrune::cli {
namespace {

RequestStep parse_request(std::string_view text) {
    // The dispatcher lets a request that is no command pass in silence; a person who types one is told.
    const core::Command* command = core::resolve(text, automation::Trace{}).command;
    if (!command) throw UsageError(fmt::format("{}: there is no such command; 'kestrune commands' lists them", text));
    return {std::string(text), command};
}

}  // namespace

Step parse_step(std::string_view text) {
    if (text.starts_with('@')) {
        if (text.size() == 1) throw UsageError("@: a selection needs a reference or a name, such as @Sheet1!B2:C5");
        return SelectStep{std::string(text.substr(1))};
    }
    if (!text.empty() && (text.front() == '-' || text.front() == '+' || (text.front() >= '0' && text.front() <= '9'))) {
        return parse_request(text);
    }
    const automation::Member* member = core::iGlobal::members().find(text);
    if (text.empty() || !member || !member->is_method || member->required_count > 0) {
        throw UsageError(
            fmt::format("{}: is not a step; a step is a selection (@Sheet1!B2:C5), a command request (20.3) or one of "
                        "iGlobal's members",
                        text));
    }
    return MemberStep{std::string(member->name)};
}

}  // namespace kestrune::cli
