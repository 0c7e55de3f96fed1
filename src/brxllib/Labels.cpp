#include "brxllib/Labels.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "automation/Text.h"
#include "brxllib/ContentKind.h"
#include "excel/Worksheet.h"
#include "formula/A1.h"

namespace kestrune::brxllib {
namespace {

using automation::Value;

// Labels stand close by, most of the time.
constexpr std::int32_t first_stretch = 256;
constexpr std::int32_t longest_stretch = 65'536;

// The cells of a row from the left edge, or of a column from the top, up to a cell.
class Line {
  public:
    Line(const excel::Range& cell, Side side)
        : sheet_(cell.Worksheet()), side_(side), row_(cell.Row()), column_(cell.Column()) {}

    // Where the cell stands in its line.
    [[nodiscard]] std::int32_t end() const { return side_ == Side::Left ? column_ : row_; }

    [[nodiscard]] std::vector<Value> values(std::int32_t first, std::int32_t last) const {
        const Value read = range(first, last).Value();
        if (const automation::Array* block = read.array()) return block->elements();
        return {read};
    }
    [[nodiscard]] excel::Range range(std::int32_t first, std::int32_t last) const {
        const formula::Area area =
            side_ == Side::Left ? formula::Area{row_, first, row_, last} : formula::Area{first, column_, last, column_};
        return sheet_.Range(formula::area_text(area));
    }

  private:
    excel::Worksheet sheet_;
    Side side_;
    std::int32_t row_;
    std::int32_t column_;
};

bool is_blank_text(const Value& value) {
    const auto* text = value.if_is<std::string>();
    return text && automation::trimmed(*text).empty();
}

bool is_label(const Value& value, bool before_date) {
    const ContentKind kind = content_kind(value);
    return (kind == ContentKind::Text && !is_blank_text(value)) || (is_date_or_time(kind) && !before_date);
}

bool heads(const Value& value) {
    const ContentKind kind = content_kind(value);
    return kind != ContentKind::Empty && kind != ContentKind::Error && !is_blank_text(value);
}

}  // namespace

excel::Range nearest_label(const excel::Range& cell, Side side) {
    const Line line(cell, side);
    std::int32_t last = line.end();
    std::int32_t stretch = first_stretch;
    // Each stretch ends with the cell that the one before began with.
    while (last > 1) {
        const std::int32_t first = std::max(1, last - stretch);
        const auto values = line.values(first, last);
        for (std::size_t i = values.size() - 1; i-- > 0;) {
            if (!is_label(values[i], is_date_or_time(content_kind(values[i + 1])))) continue;
            const auto place = first + static_cast<std::int32_t>(i);
            return line.range(place, place);
        }
        last = first;
        stretch = std::min(stretch * 4, longest_stretch);
    }
    return {};
}

excel::Range line_heading(const excel::Range& cell, Side side) {
    const Line line(cell, side);
    std::int32_t stretch = first_stretch;
    for (std::int32_t first = 1; first < line.end(); first += stretch) {
        const std::int32_t last = std::min(first + stretch - 1, line.end() - 1);
        const auto values = line.values(first, last);
        const auto found = std::ranges::find_if(values, heads);
        if (found == values.end()) continue;
        const auto place = first + static_cast<std::int32_t>(found - values.begin());
        return line.range(place, place);
    }
    return {};
}

}  // namespace kestrune::brxllib
