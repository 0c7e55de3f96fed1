#include "forms/ConsolePresenter.h"

#include <filesystem>
#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <system_error>

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
    for (;;) {
        output_ << prompt(message.buttons) << std::flush;
        const auto line = next_line();
        if (!line) {
            const MsgBoxResult answer = safe_choice(message.buttons);
            output_ << choice_name(answer) << '\n';
            return answer;
        }
        if (const auto choice = choice_meant(*line, message.buttons)) return *choice;
        output_ << "  '" << *line << "' is none of the choices.\n";
    }
}

std::optional<std::string> ConsolePresenter::next_line() {
    std::string line;
    if (!std::getline(input_, line)) return std::nullopt;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return std::string(automation::trimmed(line));
}

bool ConsolePresenter::copy(const std::string& text) {
    output_ << text << std::flush;
    return output_.good();
}

std::optional<std::string> ConsolePresenter::choose_file(const FileDialog& dialog) {
    output_ << dialog.title << '\n';
    for (;;) {
        output_ << "  " << dialog.filter << ", "
                << (dialog.proposed.empty() ? "Enter cancels" : dialog.proposed + " (Enter)") << ": " << std::flush;
        auto line = next_line();
        if (line && line->empty()) line = dialog.proposed;
        if (!line || line->empty()) {
            output_ << choice_name(vbCancel) << '\n';
            return std::nullopt;
        }
        const std::string path = path_meant(dialog, *line);
        std::error_code ignored;
        const auto file = std::filesystem::status(std::u8string(path.begin(), path.end()), ignored);
        if (std::filesystem::is_directory(file)) {
            output_ << "  " << path << " is a folder.\n";
        } else if (dialog.purpose == FileDialog::Purpose::Open) {
            if (std::filesystem::exists(file)) return path;
            output_ << "  " << path << " is not there.\n";
        } else if (!std::filesystem::exists(file) ||
                   show({path + " is there already.  Write over it?", vbYesNo | vbExclamation | vbDefaultButton2,
                         dialog.title}) == vbYes) {
            return path;
        }
    }
}

}  // namespace kestrune::forms
