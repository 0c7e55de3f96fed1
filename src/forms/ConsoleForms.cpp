// Forms on a terminal.
#include <algorithm>
#include <charconv>
#include <istream>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "automation/Text.h"
#include "forms/ConsolePresenter.h"
#include "forms/Form.h"
#include "forms/FormFill.h"
#include "forms/FormText.h"

namespace kestrune::forms {
namespace {

using automation::same_text;

// The controls that have a number, in the order of the numbers.
using Numbered = std::vector<Control*>;

// What can be chosen: of lists as many items as a screen takes around what is chosen.
void write_choices(std::ostream& output, const Control& control) {
    constexpr std::int32_t most = 20;
    if (!control.usable()) return;
    if (control.is(Kind::Combo) || control.is(Kind::Tabs)) {
        output << "          one of " << items_text(control, most) << '\n';
    }
    if (!control.is(Kind::List)) return;
    const auto count = static_cast<std::int32_t>(control.List().size());
    const std::int32_t first = std::clamp(control.ListIndex() - most / 2, 0, std::max(0, count - most));
    const std::int32_t last = std::min(count, first + most);
    if (first > 0) output << "          ... " << first << " before\n";
    for (std::int32_t i = first; i < last; ++i) {
        const std::string number = "#" + std::to_string(i + 1);
        output << std::string(number.size() < 9 ? 9 - number.size() : 0, ' ') << number
               << (i == control.ListIndex() ? " > " : "   ");
        const auto columns = std::max<std::size_t>(1, control.design().columns.size());
        for (std::size_t column = 0; column < columns; ++column) {
            output << (column > 0 ? "  " : "") << control.item(i, column);
        }
        output << '\n';
    }
    if (last < count) output << "          ... " << count - last << " more\n";
}

Numbered write(std::ostream& output, Form& form) {
    Numbered numbered;
    output << form.Caption() << '\n';
    for (const FormLine& line : form_lines(form)) {
        std::string number;
        if (line.control->usable() && takes_value(*line.control)) {
            numbered.push_back(form.find(line.control->Name()));
            number = std::to_string(numbered.size());
        }
        output << std::string(number.size() < 4 ? 4 - number.size() : 0, ' ') << number << ' '
               << std::string(static_cast<std::size_t>(line.depth) * 2, ' ') << line.text << '\n';
        write_choices(output, *line.control);
    }
    return numbered;
}

std::string prompt(Form& form) {
    std::string line = "  ";
    for (const Control& control : form.controls()) {
        if (!control.is(Kind::Push) || !control.usable()) continue;
        if (line.size() > 2) line += " / ";
        line += control.Caption();
        if (&control == form.button(Role::Default)) line += " (Enter)";
    }
    return line + (line.size() > 2 ? ", or " : "") + "NUMBER, NUMBER=VALUE? ";
}

Control* button_meant(Form& form, std::string_view typed) {
    for (Control& control : form.controls()) {
        if (control.is(Kind::Push) && control.usable() &&
            same_text(std::string_view(control.Caption()).substr(0, typed.size()), typed)) {
            return &control;
        }
    }
    return nullptr;
}

// Does what a line asks for; empty, or what is wrong with it.
std::string follow(Form& form, const Numbered& numbered, std::string_view typed) {
    if (typed.empty()) return form.press(Key::Enter) ? "" : "there is no default button";
    if (Control* button = button_meant(form, typed)) {
        form.click(*button);
        return {};
    }
    const std::size_t sign = typed.find('=');
    const std::string_view digits = automation::trimmed(typed.substr(0, sign));
    std::size_t number = 0;
    const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (failure != std::errc{} || end != digits.data() + digits.size() || number < 1 || number > numbered.size()) {
        return "is neither a button nor the number of a choice";
    }
    Control& control = *numbered[number - 1];
    if (sign != std::string_view::npos) return enter_value(form, control, automation::trimmed(typed.substr(sign + 1)));
    if (!control.is(Kind::Option) && !control.is(Kind::Check)) {
        return "needs a value, as in " + std::to_string(number) + "=" + std::string("VALUE");
    }
    form.click(control);
    return {};
}

}  // namespace

void ConsolePresenter::work(Form& form) {
    Numbered numbered = write(output_, form);
    while (form.Visible()) {
        output_ << prompt(form) << std::flush;
        const auto line = next_line();
        if (!line) {
            output_ << choice_name(vbCancel) << '\n';
            form.press(Key::Escape);
            return;
        }
        const std::string problem = follow(form, numbered, *line);
        if (!problem.empty()) {
            output_ << "  '" << *line << "' " << problem << ".\n";
        } else if (form.Visible()) {
            numbered = write(output_, form);
        }
    }
}

}  // namespace kestrune::forms
