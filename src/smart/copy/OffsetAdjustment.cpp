#include "smart/copy/OffsetAdjustment.h"

#include <charconv>
#include <cstddef>

namespace kestrune::smart {
namespace {

// Where a text in quotation marks that begins at a place ends, behind its closing mark.
std::size_t behind_quotes(std::string_view formula, std::size_t begin) {
    const std::size_t close = formula.find(formula[begin], begin + 1);
    return close == std::string_view::npos ? formula.size() : close + 1;
}

bool is_name_letter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c == '.' || c == '\\' ||
           static_cast<unsigned char>(c) >= 0x80;
}

std::string adjust(char letter, std::int64_t distance, std::string_view formula) {
    if (!formula.starts_with('=') || distance == 1) return std::string(formula);
    std::string adjusted;
    std::size_t copied = 0;  // up to here
    for (std::size_t at = 1; at < formula.size();) {
        if (formula[at] == '"' || formula[at] == '\'') {
            at = behind_quotes(formula, at);
            continue;
        }
        // The column behind a row ("R[1]C[-1]") begins a word as the row does; the R of a table's name ("YEAR[") is
        // inside one.
        const bool begins = formula[at] == letter && at + 1 < formula.size() && formula[at + 1] == '[' &&
                            (!is_name_letter(formula[at - 1]) || (letter == 'C' && formula[at - 1] == 'R'));
        const std::size_t close = begins ? formula.find(']', at) : std::string_view::npos;
        if (close == std::string_view::npos) {
            ++at;
            continue;
        }
        std::int64_t offset = 0;
        const char* first = formula.data() + at + 2;
        const char* last = formula.data() + close;
        const auto [end, failure] = std::from_chars(first, last, offset);
        if (failure == std::errc{} && end == last && offset < 0) {
            adjusted.append(formula, copied, at + 2 - copied);
            adjusted += std::to_string(offset - distance + 1);
            copied = close;
        }
        at = close + 1;
    }
    adjusted.append(formula, copied);
    return adjusted;
}

}  // namespace

std::string AdjustRowOffsets(std::int32_t source_row, std::int32_t target_row, std::string_view formula) {
    return adjust('R', std::int64_t{target_row} - source_row, formula);
}

std::string AdjustColumnOffsets(std::int32_t source_column, std::int32_t target_column, std::string_view formula) {
    return adjust('C', std::int64_t{target_column} - source_column, formula);
}

}  // namespace kestrune::smart
