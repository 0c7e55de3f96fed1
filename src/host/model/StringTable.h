#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kestrune::host {

// The texts of a workbook's cells. Positions of the file's shared strings come first and keep their
// numbers; the file's part is read when the first text is asked for.
class StringTable {
  public:
    struct Entry {
        std::string text;  // UTF-8, rich text without its formats
        std::string rich;  // the inner XML when it holds more than one plain text; empty otherwise
    };

    // loader fills the table by add_loaded, once, at the first need.
    void load_with(std::function<void(StringTable&)> loader) { loader_ = std::move(loader); }
    void add_loaded(Entry entry) { entries_.push_back(std::move(entry)); }

    [[nodiscard]] const Entry& operator[](std::uint32_t position);  // an empty entry outside the table
    [[nodiscard]] std::uint32_t size();
    [[nodiscard]] std::uint32_t loaded_count();  // how many come from the file

    std::uint32_t intern(std::string_view text);  // among the plain texts
    std::uint32_t add(Entry entry);

  private:
    void ensure_loaded();

    std::deque<Entry> entries_;
    std::unordered_map<std::string_view, std::uint32_t> plain_;  // the first of equal plain texts, up to indexed_
    std::uint32_t indexed_ = 0;
    std::function<void(StringTable&)> loader_;
    std::uint32_t loaded_count_ = 0;
};

}  // namespace kestrune::host
