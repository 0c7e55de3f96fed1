#include "forms/Control.h"

#include <algorithm>
#include <utility>

#include "automation/Text.h"

namespace kestrune::forms {

Control::Control(ControlHome& home, const ControlDesign& design, const Control* container)
    : home_(home),
      design_(design),
      container_(container),
      caption_(design.caption),
      tip_(design.tip),
      items_(design.items.begin(), design.items.end()),
      index_(design.kind == Kind::Tabs ? 0 : -1),
      number_(design.min),
      min_(design.min),
      max_(design.max),
      accelerator_(design.accelerator) {}

bool Control::shown() const {
    if (!visible_) return false;
    if (!container_) return true;
    const bool on_page = !container_->is(Kind::Tabs) || container_->index_ == design_.page;
    return on_page && container_->shown();
}

bool Control::usable() const {
    for (const Control* control = this; control; control = control->container_) {
        if (!control->enabled_) return false;
    }
    return shown();
}

void Control::changed_value() {
    home_.changed(*this);
    home_.fire(*this, Event::Change);
}

void Control::Checked(bool checked) {
    if (checked_ == checked) return;
    Control* other = checked && is(Kind::Option) ? home_.chosen_beside(*this) : nullptr;
    checked_ = checked;
    if (other) {
        other->checked_ = false;
        other->changed_value();
    }
    changed_value();
    if (checked || is(Kind::Check)) home_.fire(*this, Event::Click);
}

void Control::Text(std::string text) {
    if (is(Kind::List) || (is(Kind::Combo) && !design_.editable)) return ListIndex(place_of(text));
    if (text_ == text) return;
    text_ = std::move(text);
    marked_from_ = marked_length_ = 0;
    const std::int32_t before = index_;
    if (is(Kind::Combo)) index_ = place_of(text_);
    changed_value();
    if (index_ != before && index_ >= 0) home_.fire(*this, Event::Click);
}

void Control::List(std::vector<std::string> items) {
    items_ = std::move(items);
    index_ = is(Kind::Tabs) ? 0 : -1;
    if (!design_.editable) text_.clear();
    home_.changed(*this);
}

void Control::ListIndex(std::int32_t index) {
    if (index < 0 || index >= static_cast<std::int32_t>(items_.size())) index = -1;
    if (index == index_) return;
    index_ = index;
    if (!is(Kind::Tabs)) text_ = index < 0 ? std::string() : items_[static_cast<std::size_t>(index)];
    changed_value();
    if (index >= 0 && !is(Kind::Tabs)) home_.fire(*this, Event::Click);
}

std::string_view Control::item(std::int32_t index, std::size_t column) const {
    if (index < 0 || index >= static_cast<std::int32_t>(items_.size())) return {};
    std::string_view rest = items_[static_cast<std::size_t>(index)];
    for (; column > 0; --column) {
        const std::size_t tab = rest.find('\t');
        if (tab == std::string_view::npos) return {};
        rest.remove_prefix(tab + 1);
    }
    return rest.substr(0, rest.find('\t'));
}

std::int32_t Control::place_of(std::string_view text) const {
    const auto found =
        std::ranges::find_if(items_, [&](const auto& item) { return automation::same_text(item, text); });
    if (found != items_.end()) return static_cast<std::int32_t>(found - items_.begin());
    const auto count = static_cast<std::int32_t>(design_.columns.empty() ? 0 : items_.size());
    for (std::int32_t i = 0; i < count; ++i) {
        if (automation::same_text(item(i, 0), text)) return i;
    }
    return -1;
}

void Control::mark(std::int32_t start, std::int32_t length) {
    if (start == marked_from_ && length == marked_length_) return;
    marked_from_ = start;
    marked_length_ = length;
    home_.changed(*this);
}

void Control::Number(std::int32_t number) {
    number = std::clamp(number, min_, max_);
    if (number == number_) return;
    number_ = number;
    changed_value();
}

void Control::Range(std::int32_t min, std::int32_t max) {
    min_ = min;
    max_ = std::max(min, max);
    home_.changed(*this);
    Number(number_);
}

automation::Value Control::Value() const {
    switch (design_.kind) {
        case Kind::Option:
        case Kind::Check:
            return checked_;
        case Kind::Text:
        case Kind::Combo:
            return text_;
        case Kind::List:
            return design_.columns.empty() ? text_ : std::string(item(index_, 0));
        case Kind::Spin:
            return number_;
        case Kind::Tabs:
            return index_;
        case Kind::Sample:
            return looks_text(looks_);
        default:
            return {};
    }
}

}  // namespace kestrune::forms
