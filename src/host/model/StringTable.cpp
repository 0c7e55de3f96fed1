#include "host/model/StringTable.h"

#include <utility>

namespace kestrune::host {

void StringTable::ensure_loaded() {
    if (!loader_) return;
    const auto loader = std::exchange(loader_, nullptr);
    try {
        loader(*this);
    } catch (...) {
        // The next need meets the same broken part again instead of a table that looks complete.
        entries_.clear();
        loader_ = loader;
        throw;
    }
    loaded_count_ = static_cast<std::uint32_t>(entries_.size());
}

const StringTable::Entry& StringTable::operator[](std::uint32_t position) {
    static const Entry nothing;
    ensure_loaded();
    return position < entries_.size() ? entries_[position] : nothing;
}

std::uint32_t StringTable::size() {
    ensure_loaded();
    return static_cast<std::uint32_t>(entries_.size());
}

std::uint32_t StringTable::loaded_count() {
    ensure_loaded();
    return loaded_count_;
}

std::uint32_t StringTable::intern(std::string_view text) {
    ensure_loaded();
    // Workbooks that are only formatted never pay for the index.
    for (; indexed_ < entries_.size(); ++indexed_)
        if (entries_[indexed_].rich.empty()) plain_.emplace(entries_[indexed_].text, indexed_);
    if (const auto known = plain_.find(text); known != plain_.end()) return known->second;
    return add({std::string(text), {}});
}

std::uint32_t StringTable::add(Entry entry) {
    ensure_loaded();
    entries_.push_back(std::move(entry));
    return static_cast<std::uint32_t>(entries_.size() - 1);
}

}  // namespace kestrune::host
