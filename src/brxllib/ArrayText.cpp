#include "brxllib/ArrayText.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <vector>

#include "automation/AutomationError.h"
#include "automation/Conversion.h"

namespace kestrune::brxllib {
namespace {

using automation::Array;
using automation::Value;

constexpr std::size_t most_rows = 30;
constexpr std::size_t most_columns = 12;
constexpr std::size_t most_characters = 24;

bool continues_character(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

std::size_t characters(std::string_view text) {
    return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, continues_character));
}

// On one line and no wider than a column.
std::string shortened(std::string text) {
    for (char& c : text) {
        if (static_cast<unsigned char>(c) < ' ') c = ' ';
    }
    if (characters(text) <= most_characters) return text;
    std::size_t end = 0;
    for (std::size_t kept = 0; kept < most_characters - 1; ++kept) {
        ++end;
        while (end < text.size() && continues_character(text[end])) ++end;
    }
    return text.substr(0, end) + "…";
}

std::string text_of(const Value& value) {
    switch (value.kind()) {
        case Value::Kind::Empty:
        case Value::Kind::Missing:
            return {};
        case Value::Kind::Null:
            return "Null";
        case Value::Kind::Error:
            return fmt::format("Error {}", value.if_is<automation::Error>()->code & 0xFFFF);
        case Value::Kind::Object: {
            const auto& object = *value.if_is<automation::ObjectRef>();
            return object ? std::string(object->type_name()) : "Nothing";
        }
        case Value::Kind::Array:
            return fmt::format("({} values)", value.array()->elements().size());
        default:
            return shortened(automation::to_text(value));
    }
}

struct Table {
    std::vector<std::vector<std::string>> rows;
    std::size_t all_rows = 0;
    std::size_t all_columns = 0;

    template <class Next>
    void add(std::size_t columns, Next&& next) {
        all_columns = std::max(all_columns, columns);
        if (++all_rows > most_rows) return;
        auto& row = rows.emplace_back();
        for (std::size_t i = 0; i < std::min(columns, most_columns); ++i) row.push_back(text_of(next(i)));
    }
};

Table table_of(const Array& array) {
    Table table;
    const auto& elements = array.elements();
    if (array.dimensions() == 2) {
        const auto columns = static_cast<std::size_t>(std::max(array.bound(1).count, 0));
        for (std::size_t first = 0; columns > 0 && first < elements.size(); first += columns)
            table.add(columns, [&](std::size_t i) { return elements[first + i]; });
        return table;
    }
    for (const Value& element : elements) {
        const Array* record = element.array();
        if (record && record->dimensions() == 1)
            table.add(record->elements().size(), [&](std::size_t i) { return record->elements()[i]; });
        else
            table.add(1, [&](std::size_t) { return element; });
    }
    return table;
}

}  // namespace

std::string array_text(const Value& array) {
    if (!array.array()) return text_of(array);
    const Table table = table_of(*array.array());
    if (table.all_rows == 0) return "(empty)";
    std::vector<std::size_t> widths(std::min(table.all_columns, most_columns));
    for (const auto& row : table.rows)
        for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], characters(row[i]));
    std::string text;
    for (const auto& row : table.rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += row[i];
            if (i + 1 < row.size()) line.append(widths[i] - characters(row[i]) + 2, ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += text.empty() && &row == &table.rows.front() ? line : "\r\n" + line;
    }
    if (table.all_rows > most_rows || table.all_columns > most_columns) {
        text += fmt::format("\r\n({} rows, {} columns in all)", table.all_rows, table.all_columns);
    }
    return text;
}

}  // namespace kestrune::brxllib
