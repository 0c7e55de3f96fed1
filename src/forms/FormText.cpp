#include "forms/FormText.h"

#include <algorithm>

#include "automation/Conversion.h"

namespace kestrune::forms {
namespace {

bool is_box(const Control& control) {
    switch (control.kind()) {
        case Kind::Text:
        case Kind::Combo:
        case Kind::List:
        case Kind::Spin:
        case Kind::Tabs:
            return true;
        default:
            return false;
    }
}

std::string without_colon(std::string text) {
    if (text.ends_with(':')) text.pop_back();
    return text;
}

int depth_of(const Control& control) {
    int depth = 0;
    for (const Control* holder = control.container(); holder; holder = holder->container()) ++depth;
    return depth;
}

// Whether the control has a line of its own; the one before and the one behind it in tab order may be null.
bool has_line(const Control& control, const Control* next) {
    if (!control.shown()) return false;
    switch (control.kind()) {
        case Kind::Push:
            return false;
        case Kind::Label:
            return !control.Caption().empty() &&
                   !(next && (next->is(Kind::Sample) || (is_box(*next) && !next->is(Kind::Spin))));
        case Kind::Frame:
        case Kind::Image:
            return !control.Caption().empty();
        case Kind::Spin:
            return control.design().place != Place::Attached;
        default:
            return true;
    }
}

// A text box with what is marked in it between guillemets.
std::string marked_text(const Control& control) {
    const std::string& text = control.Text();
    if (control.SelLength() < 1) return text;
    // Bytes at which the marked part begins and ends; four bytes are two characters of UTF-16.
    std::int32_t at = 0;
    std::size_t begin = text.size();
    std::size_t end = text.size();
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0) == 0x80) continue;
        if (at >= control.SelStart()) begin = std::min(begin, i);
        if (at >= control.SelStart() + control.SelLength()) end = std::min(end, i);
        at += byte >= 0xF0 ? 2 : 1;
    }
    return text.substr(0, begin) + "\u00AB" + text.substr(begin, end - begin) + "\u00BB" + text.substr(end);
}

// Written in one line.
std::string in_one_line(std::string text) {
    std::ranges::replace_if(
        text, [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    return text;
}

std::string line_of(const Form& form, const Control& control) {
    switch (control.kind()) {
        case Kind::Option:
            return (control.Checked() ? "(x) " : "( ) ") + control.Caption();
        case Kind::Check:
            return (control.Checked() ? "[x] " : "[ ] ") + control.Caption();
        case Kind::Text:
            return title_of(form, control) + ": " + in_one_line(marked_text(control));
        case Kind::Tabs:
            return title_of(form, control) + ": " + control.List()[static_cast<std::size_t>(control.ListIndex())];
        case Kind::Sample:
            return title_of(form, control) + ": " + in_one_line(looks_text(control.Looks()));
        default:
            return is_box(control) ? title_of(form, control) + ": " + automation::to_text(control.Value())
                                   : control.Caption();
    }
}

}  // namespace

std::string title_of(const Form& form, const Control& control) {
    if (!control.Caption().empty()) return without_colon(control.Caption());
    const Control* before = nullptr;
    for (const Control& other : form.controls()) {
        if (&other == &control) break;
        before = &other;
    }
    const bool has_caption = before && before->container() == control.container() && !before->Caption().empty();
    // What stands in the column of a check box is what that box is about.
    const bool labels = has_caption && (before->is(Kind::Label) ||
                                        (before->is(Kind::Check) && control.design().place == Place::Column));
    return labels ? without_colon(before->Caption()) : std::string(control.Name());
}

std::string items_text(const Control& control, std::int32_t most) {
    const auto count = static_cast<std::int32_t>(control.List().size());
    if (count == 0) return "nothing: the list is empty";
    std::string text;
    for (std::int32_t i = 0; i < std::min(count, most); ++i) {
        text += text.empty() ? "" : ", ";
        text += control.design().columns.empty() ? control.List()[static_cast<std::size_t>(i)]
                                                 : std::string(control.item(i, 0));
    }
    if (count > most) text += " and " + std::to_string(count - most) + " more";
    return text;
}

std::vector<FormLine> form_lines(const Form& form) {
    std::vector<FormLine> lines;
    const auto& controls = form.controls();
    for (std::size_t i = 0; i < controls.size(); ++i) {
        if (!has_line(controls[i], i + 1 < controls.size() ? &controls[i + 1] : nullptr)) continue;
        lines.push_back({&controls[i], depth_of(controls[i]), line_of(form, controls[i])});
    }
    return lines;
}

std::string chosen_text(const Form& form) {
    std::string text;
    for (const FormLine& line : form_lines(form)) {
        const Control& control = *line.control;
        const bool ticked = control.is(Kind::Option) || control.is(Kind::Check);
        if (!control.usable() || (ticked ? !control.Checked() : !is_box(control))) continue;
        text += (text.empty() ? "" : "; ") + (ticked ? control.Caption() : line.text);
    }
    return text;
}

}  // namespace kestrune::forms
