#include "cli/run/Step.h"

#include <fmt/format.h>

#include <charconv>
#include <optional>

#include "automation/Text.h"
#include "cli/Failure.h"
#include "core/CommandTable.h"
#include "core/iGlobal.h"
#include "keys/KeyText.h"

namespace kestrune::cli {
namespace {

RequestStep parse_request(std::string_view text) {
    // The dispatcher lets a request that is no command pass in silence; a person who types one is told.
    const core::Command* command = core::resolve(text, automation::Trace{}).command;
    if (!command) throw UsageError(fmt::format("{}: there is no such command; 'kestrune commands' lists them", text));
    return {std::string(text), command};
}

// "undo", "redo:3", "history": nothing for any other word.
std::optional<HistoryStep> parse_history(std::string_view text) {
    using Kind = HistoryStep::Kind;
    constexpr std::int32_t everything = 1'000'000;
    const std::size_t colon = text.find(':');
    const std::string_view word = text.substr(0, colon);
    HistoryStep step;
    if (automation::same_text(word, "undo")) {
        step.kind = Kind::Undo;
    } else if (automation::same_text(word, "redo")) {
        step.kind = Kind::Redo;
    } else if (automation::same_text(word, "history")) {
        step = {Kind::List, everything};
    } else {
        return {};
    }
    if (colon == std::string_view::npos) return step;
    const std::string_view digits = text.substr(colon + 1);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), step.count);
    if (error != std::errc{} || end != digits.data() + digits.size() || step.count < 1 || step.count > everything) {
        throw UsageError(fmt::format("{}: the count is a whole number from 1 on, as in {}:3", text, word));
    }
    return step;
}

KeyStep parse_key(std::string_view text) {
    const keys::KeyReading reading = keys::read_key(text);
    if (!reading.ok()) throw UsageError(fmt::format("key:{}", keys::problem_line(text, reading)));
    return {reading.key};
}

}  // namespace

Step parse_step(std::string_view text) {
    constexpr std::string_view key_mark = "key:";
    constexpr std::string_view menu_mark = "menu:";
    if (automation::same_text(text.substr(0, key_mark.size()), key_mark))
        return parse_key(text.substr(key_mark.size()));
    if (automation::same_text(text.substr(0, menu_mark.size()), menu_mark))
        return MenuStep{parse_menu_path(text.substr(menu_mark.size()))};
    if (text.starts_with('@')) {
        if (text.size() == 1) throw UsageError("@: a selection needs a reference or a name, such as @Sheet1!B2:C5");
        return SelectStep{std::string(text.substr(1))};
    }
    if (!text.empty() && (text.front() == '-' || text.front() == '+' || (text.front() >= '0' && text.front() <= '9'))) {
        return parse_request(text);
    }
    if (const auto history = parse_history(text)) return *history;
    const automation::Member* member = core::iGlobal::members().find(text);
    if (text.empty() || !member || !member->is_method || member->required_count > 0) {
        throw UsageError(
            fmt::format("{}: is not a step; a step is a selection (@Sheet1!B2:C5), a command request (20.3), a key "
                        "(key:Ctrl+Shift+4), a click (menu:Kestrune/Format/Currency/3), undo, redo, history or one of "
                        "iGlobal's members",
                        text));
    }
    return MemberStep{std::string(member->name)};
}

}  // namespace kestrune::cli
