#include "brxllib/ContentKind.h"

#include <cmath>

#include "automation/Text.h"

namespace kestrune::brxllib {
namespace {

using automation::Value;

ContentKind kind_of_moment(double serial) {
    if (serial == std::floor(serial)) return ContentKind::Date;
    return serial > 0 && serial < 1 ? ContentKind::Time : ContentKind::DateAndTime;
}

// A rectangle whose values are known; rows and columns count from 1 inside it.
class Block {
  public:
    explicit Block(const excel::Range& range) : range_(range) {
        const Value values = range.Value();
        if (const automation::Array* block = values.array()) {
            rows_ = block->bound(0).count;
            columns_ = block->bound(1).count;
            for (const Value& value : block->elements()) kinds_.push_back(content_kind(value));
        } else {
            kinds_.push_back(content_kind(values));
        }
    }

    std::vector<ContentKind> find_times() && {
        find_times(1, 1, rows_, columns_);
        return std::move(kinds_);
    }

  private:
    [[nodiscard]] ContentKind& at(std::int32_t row, std::int32_t column) {
        return kinds_[static_cast<std::size_t>(row - 1) * static_cast<std::size_t>(columns_) +
                      static_cast<std::size_t>(column - 1)];
    }
    template <class Visit>
    void visit(std::int32_t top, std::int32_t left, std::int32_t bottom, std::int32_t right, Visit&& visit) {
        for (std::int32_t row = top; row <= bottom; ++row)
            for (std::int32_t column = left; column <= right; ++column) visit(at(row, column));
    }

    // Halves what has several formats across its shorter side: a tall table is formatted by columns, a wide one by
    // rows.
    void find_times(std::int32_t top, std::int32_t left, std::int32_t bottom, std::int32_t right) {
        bool numbers = false;
        visit(top, left, bottom, right, [&](ContentKind kind) { numbers |= kind == ContentKind::Number; });
        if (!numbers) return;
        const bool whole = top == 1 && left == 1 && bottom == rows_ && right == columns_;
        const excel::Range part = whole ? range_ : range_.Item(top, left).Resize(bottom - top + 1, right - left + 1);
        const Value format = part.NumberFormat();
        if (const auto* code = format.if_is<std::string>()) {
            if (!is_time_format(*code)) return;
            visit(top, left, bottom, right, [](ContentKind& kind) {
                if (kind == ContentKind::Number) kind = ContentKind::Time;
            });
        } else if (bottom > top && (bottom - top <= right - left || right == left)) {
            const std::int32_t middle = top + (bottom - top) / 2;
            find_times(top, left, middle, right);
            find_times(middle + 1, left, bottom, right);
        } else if (right > left) {
            const std::int32_t middle = left + (right - left) / 2;
            find_times(top, left, bottom, middle);
            find_times(top, middle + 1, bottom, right);
        }
    }

    const excel::Range& range_;
    std::int32_t rows_ = 1;
    std::int32_t columns_ = 1;
    std::vector<ContentKind> kinds_;
};

}  // namespace

ContentKind content_kind(const Value& value) {
    switch (value.kind()) {
        case Value::Kind::String:
            return ContentKind::Text;
        case Value::Kind::Boolean:
            return ContentKind::Logical;
        case Value::Kind::Error:
            return ContentKind::Error;
        case Value::Kind::Date:
            return kind_of_moment(value.if_is<automation::Date>()->serial);
        case Value::Kind::Integer:
        case Value::Kind::Double:
            return ContentKind::Number;
        default:
            return ContentKind::Empty;
    }
}

bool is_time_format(std::string_view code) {
    bool times = false;
    for (std::size_t i = 0; i < code.size() && code[i] != ';'; ++i) {
        switch (automation::lower(code[i])) {
            case '"': {
                const std::size_t close = code.find('"', i + 1);
                if (close == std::string_view::npos) return times;
                i = close;
                break;
            }
            case '\\':
            case '_':
            case '*':
                ++i;
                break;
            case '[': {
                const std::size_t close = code.find(']', i);
                if (close == std::string_view::npos) return times;
                // [h], [mm] and [ss] count spans of time; colours, conditions and locales stand in brackets, too.
                const std::string_view inside = code.substr(i + 1, close - i - 1);
                const bool elapsed = !inside.empty() && inside.size() <= 3 &&
                                     inside.find_first_not_of(inside.front()) == std::string_view::npos &&
                                     std::string_view("hHmMsS").find(inside.front()) != std::string_view::npos;
                times |= elapsed;
                i = close;
                break;
            }
            case 'd':
            case 'y':
                return false;
            case 'g':
                // General; the era of a date otherwise.
                if (!automation::same_text(code.substr(i, 7), "General")) return false;
                i += 6;
                break;
            case 'h':
            case 's':
                times = true;
                break;
            default:
                break;
        }
    }
    return times;
}

std::vector<ContentKind> content_kinds(const excel::Range& range) { return Block(range).find_times(); }

}  // namespace kestrune::brxllib
