#include "brvblib/NumberFormatDisplay.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <vector>

#include "brvblib/NumberFormatSection.h"
#include "brvblib/NumberFormatSections.h"

namespace kestrune::brvblib {
namespace {

using Kind = NumberFormatSection::Kind;
constexpr auto npos = NumberFormatSection::npos;

constexpr std::size_t longest_format = 255;  // characters
constexpr std::size_t most_decimals = 30;    // of Excel's own dialog
constexpr std::size_t most_scale = 4;        // trillions

// Adjusts sections one by one and says what became of the whole.
template <class Adjust>
AdjustedFormat adjust_sections(std::string_view format, Adjust&& adjust) {
    std::vector<std::string> sections = number_format_sections(format);
    FormatChange change = FormatChange::NotNumeric;
    for (std::string& section : sections) {
        const FormatChange here = adjust(section, read_number_format_section(section));
        change = std::min(change, here);
    }
    if (change != FormatChange::Changed) return {change, std::string(format)};
    std::string adjusted = fmt::format("{}", fmt::join(sections, ";"));
    const auto continued = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; };
    const auto characters = adjusted.size() - static_cast<std::size_t>(std::ranges::count_if(adjusted, continued));
    if (characters > longest_format) return {FormatChange::TooLong, std::string(format)};
    return {FormatChange::Changed, std::move(adjusted)};
}

// The code that shows a number as General does, with so many decimals more.
std::string spelled_out(std::string_view shows, std::int32_t step, FormatChange& change) {
    const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
    const std::size_t exponent = shows.find_first_of("Ee");
    const std::string_view mantissa = shows.substr(0, exponent);
    // General groups no thousands: the one sign between digits is the decimal point, whatever the country's.
    const std::size_t point = mantissa.find_first_of(".,");
    const std::size_t shown =
        point == npos ? 0 : static_cast<std::size_t>(std::ranges::count_if(mantissa.substr(point), is_digit));
    if (step < 0 && shown == 0) {
        change = FormatChange::AtLimit;
        return {};
    }
    change = FormatChange::Changed;
    const std::size_t decimals = step < 0 ? shown - 1 : shown + 1;
    std::string code = decimals == 0 ? "0" : "0." + std::string(decimals, '0');
    if (exponent != npos) code += "E+00";
    return code;
}

FormatChange add_decimal(std::string& section, const NumberFormatSection& found) {
    if (found.decimals >= most_decimals) return FormatChange::AtLimit;
    if (found.point == npos) {
        section.insert(found.last_whole + 1, ".0");
    } else if (found.decimals == 0) {
        section.insert(found.point + 1, "0");
    } else {
        section.insert(found.last_decimal + 1, 1, section[found.last_decimal]);
    }
    return FormatChange::Changed;
}

FormatChange remove_decimal(std::string& section, const NumberFormatSection& found) {
    if (found.decimals == 0) return FormatChange::AtLimit;
    section.erase(found.last_decimal, 1);
    if (found.decimals == 1) section.erase(found.point, 1);
    // A number has at least one digit.
    if (found.decimals == 1 && found.last_whole == npos) section.insert(found.point, "0");
    return FormatChange::Changed;
}

}  // namespace

AdjustedFormat with_decimals(std::string_view format, std::int32_t step, std::string_view general_shows) {
    return adjust_sections(format, [&](std::string& section, const NumberFormatSection& found) {
        if (found.kind == Kind::Other) return FormatChange::NotNumeric;
        if (found.kind != Kind::General) return step > 0 ? add_decimal(section, found) : remove_decimal(section, found);
        FormatChange change{};
        const std::string code = spelled_out(general_shows, step, change);
        if (change == FormatChange::Changed) section.replace(found.general, std::string_view("General").size(), code);
        return change;
    });
}

AdjustedFormat with_scale(std::string_view format, std::int32_t step) {
    return adjust_sections(format, [&](std::string& section, const NumberFormatSection& found) {
        if (found.kind == Kind::General) {
            if (step < 0) return FormatChange::AtLimit;
            section.replace(found.general, std::string_view("General").size(), "#,##0,");
            return FormatChange::Changed;
        }
        if (found.kind != Kind::Number || found.percent) return FormatChange::NotNumeric;
        const std::size_t end =
            found.decimals > 0 ? found.last_decimal : (found.point != npos ? found.point : found.last_whole);
        const std::size_t scale = found.scale_before_point + found.scale_behind;
        if (step > 0) {
            if (scale >= most_scale) return FormatChange::AtLimit;
            section.insert(end + 1, ",");
        } else if (found.scale_behind > 0) {
            section.erase(end + 1, 1);
        } else if (found.scale_before_point > 0) {
            section.erase(found.last_whole + 1, 1);
        } else {
            return FormatChange::AtLimit;
        }
        return FormatChange::Changed;
    });
}

}  // namespace kestrune::brvblib
