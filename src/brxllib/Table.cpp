#include "brxllib/Table.h"

#include <algorithm>
#include <charconv>

#include "automation/Text.h"

namespace kestrune::brxllib {
namespace {

using automation::same_text;
using formula::Area;

// The pieces "[a]:[b]" or "#Data],[a" of a specifier without its outer brackets; a plain text is one piece. In column
// names an apostrophe stands in front of signs that mean something here.
std::vector<std::string> pieces_of(std::string_view inside) {
    std::vector<std::string> pieces;
    // A single column needs no brackets of its own.
    bool open = !inside.empty() && inside.front() != '[';
    if (open) pieces.emplace_back();
    for (std::size_t i = 0; i < inside.size(); ++i) {
        const char c = inside[i];
        if (!open) {
            if (c != '[') continue;
            open = true;
            pieces.emplace_back();
        } else if (c == '\'' && i + 1 < inside.size()) {
            pieces.back() += inside[++i];
        } else if (c == ']') {
            open = false;
        } else {
            pieces.back() += c;
        }
    }
    return pieces;
}

struct Columns {
    std::int32_t first = 0;  // on the sheet; 0 for none
    std::int32_t last = 0;
};

// The column of a name. Behind hidden headers nobody tells the names: there "Column3" is the third, as Excel names
// columns by itself, and any other name may be each of them.
Columns columns_called(const Table& table, std::string_view trimmed, std::string_view exact) {
    const auto found = std::ranges::find_if(
        table.columns, [&](const auto& name) { return same_text(name, trimmed) || same_text(name, exact); });
    if (found != table.columns.end()) {
        const auto column = table.all.first_column + static_cast<std::int32_t>(found - table.columns.begin());
        return {column, column};
    }
    if (!table.columns.empty()) return {};
    constexpr std::string_view stem = "Column";
    std::int32_t number = 0;
    if (same_text(trimmed.substr(0, stem.size()), stem)) {
        const std::string_view digits = trimmed.substr(stem.size());
        std::from_chars(digits.data(), digits.data() + digits.size(), number);
    }
    if (number < 1 || number > table.all.columns()) return {table.all.first_column, table.all.last_column};
    return {table.all.first_column + number - 1, table.all.first_column + number - 1};
}

}  // namespace

Area Table::body() const {
    Area rows = all;
    if (headers) ++rows.first_row;
    if (totals) --rows.last_row;
    return rows;
}

std::optional<Area> cells_of_structured(const Table& table, std::string_view specifier, std::int32_t row) {
    if (specifier.size() >= 2) specifier = specifier.substr(1, specifier.size() - 2);
    specifier = automation::trimmed(specifier);
    bool own_row = false;
    if (specifier.starts_with('@')) {
        own_row = true;
        specifier.remove_prefix(1);
    }
    const Area body = table.body();
    std::optional<std::int32_t> first_row;
    std::int32_t last_row = 0;
    const auto take_rows = [&](std::int32_t first, std::int32_t last) {
        first_row = std::min(first_row.value_or(first), first);
        last_row = std::max(last_row, last);
    };
    std::optional<std::int32_t> first_column;
    std::int32_t last_column = 0;
    for (const std::string& piece : pieces_of(specifier)) {
        const std::string_view text = automation::trimmed(piece);
        if (same_text(text, "#This Row")) {
            own_row = true;
        } else if (same_text(text, "#All")) {
            take_rows(table.all.first_row, table.all.last_row);
        } else if (same_text(text, "#Data")) {
            take_rows(body.first_row, body.last_row);
        } else if (same_text(text, "#Headers")) {
            if (!table.headers) return std::nullopt;
            take_rows(table.all.first_row, table.all.first_row);
        } else if (same_text(text, "#Totals")) {
            if (!table.totals) return std::nullopt;
            take_rows(table.all.last_row, table.all.last_row);
        } else {
            const auto [first, last] = columns_called(table, text, piece);
            if (first == 0) return std::nullopt;
            first_column = std::min(first_column.value_or(first), first);
            last_column = std::max(last_column, last);
        }
    }
    if (own_row) take_rows(row, row);
    if (!first_row) take_rows(body.first_row, body.last_row);
    if (*first_row > last_row || *first_row < table.all.first_row || last_row > table.all.last_row) return std::nullopt;
    return Area{*first_row, first_column.value_or(table.all.first_column), last_row,
                first_column ? last_column : table.all.last_column};
}

}  // namespace kestrune::brxllib
