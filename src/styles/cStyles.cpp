#include "styles/cStyles.h"

#include <algorithm>

#include "automation/Text.h"

namespace kestrune::styles {

cStyles::~cStyles() { Clear(); }

void cStyles::release(cStyle& style) const {
    if (style.holder_ == this) style.holder_ = nullptr;
}

bool cStyles::Add(StyleRef style, std::string_view key, std::int32_t position, bool after) {
    if (!style || position < 0) return false;
    if (key.empty()) key = style->FriendlyName;
    if (Item(key)) return false;
    if (!style->holder_) style->holder_ = this;
    const auto place = holds(position) ? at(position) + (after ? 1 : 0) : entries_.end();
    entries_.insert(place, {std::string(key), std::move(style)});
    return true;
}

bool cStyles::Move(std::int32_t from, std::int32_t to) {
    if (!holds(from) || !holds(to)) return false;
    if (from < to) {
        std::rotate(at(from), at(from) + 1, at(to) + 1);
    } else {
        std::rotate(at(to), at(from), at(from) + 1);
    }
    return true;
}

void cStyles::Remove(std::int32_t position) {
    if (!holds(position)) return;
    release(*at(position)->style);
    entries_.erase(at(position));
}

void cStyles::follow_name(const cStyle& style) {
    const std::int32_t position = position_of(style);
    const StyleRef other = Item(style.FriendlyName);
    if (position > 0 && (!other || other.get() == &style)) at(position)->key = style.FriendlyName;
}

StyleRef cStyles::Item(std::int32_t position) const {
    return holds(position) ? entries_[static_cast<std::size_t>(position - 1)].style : nullptr;
}

StyleRef cStyles::Item(std::string_view key) const {
    const auto found =
        std::ranges::find_if(entries_, [&](const Entry& e) { return automation::same_text(e.key, key); });
    return found == entries_.end() ? nullptr : found->style;
}

void cStyles::Clear() {
    for (const Entry& entry : entries_) release(*entry.style);
    entries_.clear();
}

void cStyles::SetAccessLevels() {
    for (const Entry& entry : entries_) {
        entry.style->AccessLevel = entry.style->FriendlyName.starts_with("BR Standard") ? protected_style : 0;
    }
}

std::shared_ptr<cStyles> cStyles::CategoryStyles(std::int32_t category) const {
    auto chosen = std::make_shared<cStyles>();
    for (const Entry& entry : entries_) {
        if (entry.style->Category == category) chosen->Add(entry.style, entry.key);
    }
    return chosen;
}

std::int32_t cStyles::position_of(const cStyle& style) const {
    const auto found = std::ranges::find_if(entries_, [&](const Entry& e) { return e.style.get() == &style; });
    return found == entries_.end() ? 0 : static_cast<std::int32_t>(found - entries_.begin()) + 1;
}

}  // namespace kestrune::styles
