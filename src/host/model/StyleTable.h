#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "host/model/Format.h"
#include "host/model/FormatHash.h"

namespace kestrune::host {

using StyleId = std::uint32_t;  // a position in StyleTable's formats; 0 is the workbook's default cell

// An append-only list in which equal entries can be found again. Entries that come from the file keep
// their positions, twins included; intern() gives the first equal entry or appends.
template <class T>
class InternedList {
  public:
    [[nodiscard]] std::uint32_t size() const { return static_cast<std::uint32_t>(items_.size()); }
    [[nodiscard]] const T& operator[](std::uint32_t position) const { return items_[position]; }

    // Without looking for an equal one.
    std::uint32_t append(T item) {
        const std::uint32_t position = size();
        by_hash_.emplace(hash_of(item), position);
        items_.push_back(std::move(item));
        return position;
    }
    std::uint32_t intern(const T& item) {
        const auto [first, last] = by_hash_.equal_range(hash_of(item));
        std::uint32_t found = size();
        for (auto twin = first; twin != last; ++twin)
            if (twin->second < found && items_[twin->second] == item) found = twin->second;
        return found < size() ? found : append(item);
    }

  private:
    std::deque<T> items_;  // references stay good while it grows
    std::unordered_multimap<std::size_t, std::uint32_t> by_hash_;
};

// A differential format: the components that a conditional format or a table style puts over a
// cell's own (ECMA-376 18.8.14). Entries that come from the file also keep their XML in `source`.
struct DifferentialFormat {
    std::optional<bool> bold, italic, strike;
    std::optional<Underline> underline;
    std::optional<Color> font_color;
    std::optional<Fill> fill;
    std::optional<Border> border;
    std::optional<std::string> number_format;
    std::string source;

    bool operator==(const DifferentialFormat&) const = default;
};

// A named cell style ("Normal", "Percent"): name and the format it stands for.
struct NamedStyle {
    std::string name;
    CellFormat format;
};

// All formats of a workbook. Formats are never changed, only added; a cell's format changes by
// pointing at another one.
class StyleTable {
  public:
    InternedList<Font> fonts;
    InternedList<Fill> fills;
    InternedList<Border> borders;
    InternedList<CellFormat> formats;
    InternedList<DifferentialFormat> differentials;
    // The formats that came with a file, and how far the numbers go by which its sheets name formats: one that does not
    // exist shows the first, and must go on to when there are more.
    std::uint32_t formats_in_file = 0;
    std::uint32_t named_formats = 0;
    [[nodiscard]] StyleId format_of_file(std::uint32_t number) {
        if (number < formats_in_file) return number;
        named_formats = std::max(named_formats, number + 1);
        return 0;
    }
    std::vector<NamedStyle>
        named_styles;  // in the order of cellStyleXfs, so that CellFormat::named_style is its position

    // A new workbook's table: one default format (Calibri 11), the two fills every file begins with.
    static StyleTable defaults();

    // Number formats are known by the number that the file gives them; built-in ones (below 164) need
    // no entry. Codes are those of the object model (en-US).
    [[nodiscard]] const std::string& number_format(std::uint32_t number) const;  // "General" for an unknown one
    std::uint32_t intern_number_format(std::string_view code);  // the built-in or custom number, new from 164 on
    void load_number_format(std::uint32_t number, std::string code);
    // A number that formats have without a code behind it: no new code gets it, or these formats would change.
    void reserve_number_format(std::uint32_t number) { reserved_.insert(number); }
    [[nodiscard]] const std::unordered_map<std::uint32_t, std::string>& custom_number_formats() const {
        return number_formats_;
    }

    // Takes a custom format away; formats that still have its number show General from then on. Its number is not given
    // again.
    void remove_number_format(std::uint32_t number);
    [[nodiscard]] const std::set<std::uint32_t>& removed_number_formats() const { return removed_; }

    // The pieces of a format.
    [[nodiscard]] const Font& font_of(StyleId id) const { return fonts[formats[id].font]; }
    [[nodiscard]] const Fill& fill_of(StyleId id) const { return fills[formats[id].fill]; }
    [[nodiscard]] const Border& border_of(StyleId id) const { return borders[formats[id].border]; }

    // The format that differs from `base` by one change to one piece; interned.
    StyleId with_font(StyleId base, const std::function<void(Font&)>& change);
    StyleId with_fill(StyleId base, const std::function<void(Fill&)>& change);
    StyleId with_border(StyleId base, const std::function<void(Border&)>& change);
    StyleId with_format(StyleId base, const std::function<void(CellFormat&)>& change);

  private:
    std::unordered_map<std::uint32_t, std::string> number_formats_;
    std::unordered_map<std::string, std::uint32_t> numbers_by_code_;
    std::set<std::uint32_t> removed_;
    std::set<std::uint32_t> reserved_;
};

}  // namespace kestrune::host
