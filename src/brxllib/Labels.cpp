#include "brxllib/Labels.h"

#include <algorithm>
#include <cmath>
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
        return sheet_.Range(formula::area_text(area(first, last, 0)));
    }
    // The same of the line before (-1) or behind (1); none beyond the sheet.
    [[nodiscard]] std::vector<Value> values_beside(std::int32_t first, std::int32_t last, std::int32_t by) const {
        const formula::Area cells = area(first, last, by);
        if (!cells.top_left().on_sheet() || cells.last_row > formula::max_rows ||
            cells.last_column > formula::max_columns) {
            return {};
        }
        const Value read = sheet_.Range(formula::area_text(cells)).Value();
        if (const automation::Array* block = read.array()) return block->elements();
        return {read};
    }

  private:
    [[nodiscard]] formula::Area area(std::int32_t first, std::int32_t last, std::int32_t by) const {
        return side_ == Side::Left ? formula::Area{row_ + by, first, row_ + by, last}
                                   : formula::Area{first, column_ + by, last, column_ + by};
    }

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

// The year that a number may be; nothing for any other value.
std::optional<double> year_of(const Value& value) {
    constexpr double first_year = 1900;
    constexpr double last_year = 2200;
    if (content_kind(value) != ContentKind::Number) return std::nullopt;
    const double number = automation::to_double(value);
    if (number < first_year || number > last_year || number != std::floor(number)) return std::nullopt;
    return number;
}

// Tells years that head lines from amounts that look like years. What stands beside a stretch of a line is read when
// the first of these comes.
class YearRuns {
  public:
    YearRuns(const Line& line, std::int32_t first, std::int32_t last) : line_(line), first_(first), last_(last) {}

    [[nodiscard]] bool hold(const Value& value, std::size_t place) {
        const auto year = year_of(value);
        if (!year) return false;
        if (!read_) {
            before_ = line_.values_beside(first_, last_, -1);
            behind_ = line_.values_beside(first_, last_, 1);
            read_ = true;
        }
        const auto is = [&](const std::vector<Value>& values, double wanted) {
            return place < values.size() && year_of(values[place]) == wanted;
        };
        return is(before_, *year - 1) || is(behind_, *year + 1);
    }

  private:
    const Line& line_;
    std::int32_t first_;
    std::int32_t last_;
    bool read_ = false;
    std::vector<Value> before_;
    std::vector<Value> behind_;
};

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
        YearRuns years(line, first, last);
        for (std::size_t i = values.size() - 1; i-- > 0;) {
            const bool before_date = is_date_or_time(content_kind(values[i + 1]));
            if (!is_label(values[i], before_date) && !years.hold(values[i], i)) continue;
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
