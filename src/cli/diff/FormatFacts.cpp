#include "cli/diff/FormatFacts.h"

#include <fmt/format.h>

namespace kestrune::cli {
namespace {

std::string yes(bool value) { return value ? "True" : "False"; }

std::string hex(std::uint32_t bgr) {
    return fmt::format("#{:02X}{:02X}{:02X}", bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
}

// In the order of the enumerations that they name.
constexpr std::string_view underlines[] = {"xlUnderlineStyleNone", "xlUnderlineStyleSingle", "xlUnderlineStyleDouble",
                                           "xlUnderlineStyleSingleAccounting", "xlUnderlineStyleDoubleAccounting"};
constexpr std::string_view horizontals[] = {"xlHAlignGeneral",
                                            "xlHAlignLeft",
                                            "xlHAlignCenter",
                                            "xlHAlignRight",
                                            "xlHAlignFill",
                                            "xlHAlignJustify",
                                            "xlHAlignCenterAcrossSelection",
                                            "xlHAlignDistributed"};
constexpr std::string_view verticals[] = {"xlVAlignTop", "xlVAlignCenter", "xlVAlignBottom", "xlVAlignJustify",
                                          "xlVAlignDistributed"};
constexpr std::string_view lines[] = {"none",
                                      "thin",
                                      "medium",
                                      "dashed",
                                      "dotted",
                                      "thick",
                                      "double",
                                      "hair",
                                      "medium dashed",
                                      "dash dot",
                                      "medium dash dot",
                                      "dash dot dot",
                                      "medium dash dot dot",
                                      "slant dash dot"};
constexpr std::string_view patterns[] = {"xlPatternNone",          "xlPatternSolid",      "xlPatternGray50",
                                         "xlPatternGray75",        "xlPatternGray25",     "xlPatternHorizontal",
                                         "xlPatternVertical",      "xlPatternDown",       "xlPatternUp",
                                         "xlPatternChecker",       "xlPatternSemiGray75", "xlPatternLightHorizontal",
                                         "xlPatternLightVertical", "xlPatternLightDown",  "xlPatternLightUp",
                                         "xlPatternGrid",          "xlPatternCrissCross", "xlPatternGray16",
                                         "xlPatternGray8"};

template <std::size_t size, class Enumeration>
std::string name_of(const std::string_view (&names)[size], Enumeration value) {
    return std::string(names[static_cast<std::size_t>(value)]);
}

}  // namespace

std::string underline_name(host::Underline underline) { return name_of(underlines, underline); }
std::string pattern_name(host::Pattern pattern) { return name_of(patterns, pattern); }

std::string color_text(const host::Workbook& workbook, const host::Color& color, std::string_view absent) {
    return color.kind == host::Color::Kind::None || color.kind == host::Color::Kind::Automatic
               ? std::string(absent)
               : hex(workbook.rgb_of(color, 0));
}

std::string line_text(const host::Workbook& workbook, const host::Line& line) {
    if (line.style == host::LineStyle::None) return "none";
    return fmt::format("{} {}", name_of(lines, line.style), color_text(workbook, line.color, "automatic"));
}

const FormatFacts& FormatFactsOf::operator[](host::StyleId style) {
    const auto found = known_.find(style);
    if (found != known_.end()) return found->second;
    return known_.emplace(style, work_out(style)).first->second;
}

FormatFacts FormatFactsOf::work_out(host::StyleId style) const {
    const host::StyleTable& table = workbook_.styles;
    const host::CellFormat& format = table.formats[style];
    const host::Font& font = table.font_of(style);
    const host::Fill& fill = table.fill_of(style);
    const host::Border& border = table.border_of(style);
    const host::Alignment& alignment = format.alignment;
    const auto color = [&](const host::Color& c, const char* absent) { return color_text(workbook_, c, absent); };
    const auto line = [&](const host::Line& side, bool drawn = true) {
        return drawn ? line_text(workbook_, side) : "none";
    };
    const bool filled = fill.pattern != host::Pattern::None;
    const bool solid = fill.pattern == host::Pattern::Solid;
    return {table.number_format(format.number_format),
            font.name,
            fmt::format("{}", font.size),
            yes(font.bold),
            yes(font.italic),
            underline_name(font.underline),
            yes(font.strike),
            yes(font.vertical == host::VerticalRun::Superscript),
            yes(font.vertical == host::VerticalRun::Subscript),
            color(font.color, "automatic"),
            fill.gradient.empty() ? pattern_name(fill.pattern) : "gradient",
            filled ? color(solid ? fill.foreground : fill.background, "automatic") : "none",
            filled && !solid ? color(fill.foreground, "automatic") : "none",
            name_of(horizontals, alignment.horizontal),
            name_of(verticals, alignment.vertical),
            fmt::format("{}", alignment.rotation),
            fmt::format("{}", alignment.indent),
            yes(alignment.wrap),
            yes(alignment.shrink),
            line(border.left),
            line(border.top),
            line(border.bottom),
            line(border.right),
            line(border.diagonal, border.diagonal_up),
            line(border.diagonal, border.diagonal_down),
            yes(format.protection.locked),
            yes(format.protection.hidden),
            format.named_style < table.named_styles.size() ? table.named_styles[format.named_style].name : ""};
}

}  // namespace kestrune::cli
