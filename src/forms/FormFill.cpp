#include "forms/FormFill.h"

#include <array>
#include <charconv>
#include <optional>
#include <vector>

#include "automation/Text.h"
#include "forms/FormText.h"

namespace kestrune::forms {
namespace {

using automation::same_text;

std::optional<bool> truth_of(std::string_view text) {
    static constexpr std::array<std::string_view, 5> yes{"True", "yes", "y", "on", "1"};
    static constexpr std::array<std::string_view, 5> no{"False", "no", "n", "off", "0"};
    for (const auto word : yes)
        if (same_text(word, text)) return true;
    for (const auto word : no)
        if (same_text(word, text)) return false;
    return std::nullopt;
}

constexpr std::int32_t most_listed = 20;

std::optional<std::int32_t> whole_number(std::string_view text) {
    std::int32_t number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return number;
}

// The item of that text, else the only one that begins with it, else that of a place ("#3"); -1 for none.
std::int32_t item_meant(const Control& control, std::string_view text) {
    const std::int32_t exact = control.place_of(text);
    if (exact >= 0 || text.empty()) return exact;
    if (text.front() == '#') {
        const std::int32_t place = whole_number(text.substr(1)).value_or(0);
        return place >= 1 && place <= static_cast<std::int32_t>(control.List().size()) ? place - 1 : -1;
    }
    std::int32_t found = -1;
    for (std::size_t i = 0; i < control.List().size(); ++i) {
        if (!same_text(std::string_view(control.List()[i]).substr(0, text.size()), text)) continue;
        if (found >= 0) return -1;
        found = static_cast<std::int32_t>(i);
    }
    return found;
}

std::string enter_number(Form& form, Control& control, std::string_view value) {
    const auto number = whole_number(value);
    if (!number || *number < control.Min() || *number > control.Max()) {
        return "is no whole number from " + std::to_string(control.Min()) + " to " + std::to_string(control.Max());
    }
    while (control.Number() != *number) {
        const std::int32_t before = control.Number();
        form.spin(control, *number > before);
        if (control.Number() == before) return "cannot be reached";
    }
    return {};
}

}  // namespace

bool takes_value(const Control& control) {
    return !control.is(Kind::Sample) && !control.Value().is(automation::Value::Kind::Empty);
}

std::string enter_value(Form& form, Control& control, std::string_view value) {
    if (!control.is(Kind::Push) && !takes_value(control)) return "the control has no value";
    if (!control.usable()) return control.shown() ? "the control is disabled" : "the control cannot be seen now";
    if (control.design().locked) return "the text can only be read";
    switch (control.kind()) {
        case Kind::Option:
        case Kind::Check: {
            const auto wanted = truth_of(value);
            if (!wanted) return "is neither True nor False";
            if (control.Checked() == *wanted) return {};
            if (control.is(Kind::Option) && !*wanted) return "another choice has to be made instead";
            form.click(control);
            return control.Checked() == *wanted ? "" : "the form does not allow it";
        }
        case Kind::Push:
            if (!same_text(value, "click")) return "a button takes nothing but 'click'";
            form.click(control);
            return {};
        case Kind::Spin:
            return enter_number(form, control, value);
        case Kind::Combo:
        case Kind::List:
        case Kind::Tabs: {
            const std::int32_t item = item_meant(control, value);
            if (item >= 0) {
                form.choose(control, item);
                return control.ListIndex() == item ? "" : "the form does not allow it";
            }
            if (!control.design().editable) return "is none of " + items_text(control, most_listed);
            [[fallthrough]];
        }
        default:
            form.type(control, std::string(value));
            return control.Text() == value ? "" : "the form does not allow it";
    }
}

void apply(const FormFill& fill, Form& form) {
    Control* control = form.find(fill.control);
    if (!control) throw FormFillError(fill, "the dialog has no such control");
    const std::string problem = enter_value(form, *control, fill.value);
    if (!problem.empty()) throw FormFillError(fill, problem);
}

}  // namespace kestrune::forms
