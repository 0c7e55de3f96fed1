#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "styles/cStyle.h"

namespace kestrune::styles {

// An ordered list of styles, each found by its position (from 1) or by its key. Keys are unique;
// like member names they compare without regard to case.
class cStyles {
  public:
    cStyles() = default;
    cStyles(const cStyles&) = delete;
    cStyles& operator=(const cStyles&) = delete;
    ~cStyles();

    // Puts a style before the position, behind it when after is set, and at the end for position 0 or
    // one past the end. Without a key the style's name is its key. False when the key is taken already,
    // for a negative position and for no style.
    bool Add(StyleRef style, std::string_view key = {}, std::int32_t position = 0, bool after = false);

    // Takes the style at one position to another. False when either is no position of the list.
    bool Move(std::int32_t from, std::int32_t to);

    void Remove(std::int32_t position);

    // Takes a style's present name for its key where it stands in the list; nothing happens where another has the key.
    void follow_name(const cStyle& style);

    // Null when there is no such position or key.
    [[nodiscard]] StyleRef Item(std::int32_t position) const;
    [[nodiscard]] StyleRef Item(std::string_view key) const;

    [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(entries_.size()); }

    void Clear();

    // Marks the shipped standard styles, those named "BR Standard...", as not free to edit.
    void SetAccessLevels();

    // The styles of one category in their order; they are shared with this list.
    [[nodiscard]] std::shared_ptr<cStyles> CategoryStyles(std::int32_t category) const;

    // The position of a style, 0 when it is not in the list.
    [[nodiscard]] std::int32_t position_of(const cStyle& style) const;

  private:
    struct Entry {
        std::string key;
        StyleRef style;
    };

    [[nodiscard]] bool holds(std::int32_t position) const { return position >= 1 && position <= Count(); }
    [[nodiscard]] auto at(std::int32_t position) { return entries_.begin() + (position - 1); }
    void release(cStyle& style) const;

    std::vector<Entry> entries_;
};

using StylesRef = std::shared_ptr<cStyles>;

}  // namespace kestrune::styles
