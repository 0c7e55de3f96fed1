#include "forms/ConsolePresenter.h"

#include <istream>
#include <optional>
#include <ostream>
#include <string>

#include "automation/Text.h"

namespace kestrune::forms {
namespace {

// The one choice whose name begins with what was typed; no two choices of a box begin alike.
std::optional<MsgBoxResult> choice_meant(std::string_view typed, std::int32_t buttons) {
    if (typed.empty()) return default_choice(buttons);
    for (const MsgBoxResult choice : choices(buttons)) {
        if (automation::same_text(choice_name(choice).substr(0, typed.size()), typed)) return choice;
    }
    return std::nullopt;
}

std::string prompt(std::int32_t buttons) {
    std::string line = "  ";
    for (const MsgBoxResult choice : choices(buttons)) {
        if (line.size() > 2) line += " / ";
        line += choice_name(choice);
        if (choice == default_choice(buttons)) line += " (Enter)";
    }
    return line + "? ";
}

}  // namespace

MsgBoxResult ConsolePresenter::answer_to(const Message& message) {
    if (!message.caption.empty()) output_ << message.caption << ": ";
    output_ << message.text << '\n';
    if (choices(message.buttons).size() == 1) return choices(message.buttons).front();
    std::string line;
    for (;;) {
        output_ << prompt(message.buttons) << std::flush;
        if (!std::getline(input_, line)) {
            const MsgBoxResult answer = safe_choice(message.buttons);
            output_ << choice_name(answer) << '\n';
            return answer;
        }
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (const auto choice = choice_meant(automation::trimmed(line), message.buttons)) return *choice;
        output_ << "  '" << line << "' is none of the choices.\n";
    }
}

}  // namespace kestrune::forms
