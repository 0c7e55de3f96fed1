#include "formula/Column.h"

#include <array>

#include "formula/Area.h"

namespace kestrune::formula {

void append_column_letters(std::string& out, std::int32_t column) {
    std::array<char, 8> letters{};
    std::size_t at = letters.size();
    while (column > 0 && at > 0) {
        --column;
        letters[--at] = static_cast<char>('A' + column % 26);
        column /= 26;
    }
    out.append(letters.data() + at, letters.size() - at);
}

std::string column_letters(std::int32_t column) {
    std::string out;
    append_column_letters(out, column);
    return out;
}

std::optional<std::int32_t> parse_column_letters(std::string_view letters) {
    if (letters.empty() || letters.size() > 3) return std::nullopt;
    std::int32_t column = 0;
    for (const char c : letters) {
        const auto letter = static_cast<unsigned>((c | 0x20) - 'a');
        if (letter >= 26) return std::nullopt;
        column = column * 26 + static_cast<std::int32_t>(letter) + 1;
    }
    if (column > max_columns) return std::nullopt;
    return column;
}

}  // namespace kestrune::formula
