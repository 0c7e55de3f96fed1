#include "cli/prefs/StyleLine.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <vector>

namespace kestrune::cli {
namespace {

using namespace excel;

struct Word {
    std::int32_t value;
    std::string_view word;
};

constexpr auto underlines = std::to_array<Word>({{xlUnderlineStyleNone, "not underlined"},
                                                 {xlUnderlineStyleSingle, "underlined"},
                                                 {xlUnderlineStyleDouble, "double underlined"},
                                                 {xlUnderlineStyleSingleAccounting, "underlined to the edges"},
                                                 {xlUnderlineStyleDoubleAccounting, "double underlined to the edges"}});
constexpr auto horizontals = std::to_array<Word>({{xlGeneral, "general"},
                                                  {xlLeft, "left"},
                                                  {xlCenter, "centre"},
                                                  {xlRight, "right"},
                                                  {xlFill, "filled"},
                                                  {xlJustify, "justified"},
                                                  {xlCenterAcrossSelection, "centre across"},
                                                  {xlDistributed, "distributed"}});
constexpr auto verticals = std::to_array<Word>({{xlTop, "top"},
                                                {xlCenter, "middle"},
                                                {xlBottom, "bottom"},
                                                {xlJustify, "vertically justified"},
                                                {xlDistributed, "vertically distributed"}});
constexpr auto orientations = std::to_array<Word>(
    {{xlHorizontal, "horizontal"}, {xlVertical, "stacked"}, {xlUpward, "upward"}, {xlDownward, "downward"}});
constexpr auto line_styles = std::to_array<Word>({{xlContinuous, "solid"},
                                                  {xlDash, "dashed"},
                                                  {xlDot, "dotted"},
                                                  {xlDashDot, "dash-dotted"},
                                                  {xlDashDotDot, "dash-dot-dotted"},
                                                  {xlSlantDashDot, "slanted"},
                                                  {xlDouble, "double"}});
constexpr auto weights =
    std::to_array<Word>({{xlHairline, "hairline"}, {xlThin, "thin"}, {xlMedium, "medium"}, {xlThick, "thick"}});

std::string word_for(std::span<const Word> words, std::int32_t value) {
    const auto row = std::ranges::find(words, value, &Word::value);
    return row == words.end() ? fmt::to_string(value) : std::string(row->word);
}

std::string font(const styles::StyleFields& style) {
    std::vector<std::string> words;
    if (!style.bTransFontSetting) words.push_back(style.FontName);
    if (!style.bTransFontSize) words.push_back(fmt::to_string(style.Size));
    if (!style.bTransFontStyle) {
        words.emplace_back(style.Bold && style.Italics ? "bold italic"
                           : style.Bold                ? "bold"
                           : style.Italics             ? "italic"
                                                       : "regular");
    }
    return fmt::format("{}", fmt::join(words, " "));
}

std::string border(const styles::StyleFields& style) {
    const std::pair<bool, std::string_view> sides[] = {{style.BorderLeft, "left"},
                                                       {style.BorderTop, "top"},
                                                       {style.BorderRight, "right"},
                                                       {style.BorderBottom, "bottom"}};
    std::vector<std::string_view> names;
    for (const auto& [has, name] : sides) {
        if (has) names.push_back(name);
    }
    if (names.empty() || style.BorderStyle == xlNone) return "no border";
    return fmt::format("{} {} border {}{}", word_for(weights, style.BorderWeight),
                       word_for(line_styles, style.BorderStyle),
                       names.size() == std::size(sides) ? "around" : fmt::format("{}", fmt::join(names, ", ")),
                       style.BordersInternal ? " of every cell" : "");
}

}  // namespace

std::string color_text(std::int32_t color) {
    return fmt::format("#{:02X}{:02X}{:02X}", color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}

std::string style_line(const styles::StyleFields& style) {
    std::vector<std::string> parts;
    const auto add = [&](bool transparent, std::string text) {
        if (!transparent && !text.empty()) parts.push_back(std::move(text));
    };
    add(style.bTransNumberFormat, style.NumberFormat);
    add(false, font(style));
    add(style.bTransUnderline, word_for(underlines, style.Underline));
    add(style.bTransFontColor, color_text(style.FontColor));
    add(style.bTransCellColor, style.CellColor == styles::no_fill ? "no fill" : "on " + color_text(style.CellColor));
    add(style.bTransIndents, fmt::format("indent {}", style.Indents));
    add(style.bTransHorizontalAlignment, word_for(horizontals, style.HorizontalAlignment));
    add(style.bTransVerticalAlignment, word_for(verticals, style.VerticalAlignment));
    add(style.bTransOrientation, word_for(orientations, style.Orientation));
    add(style.bTransShrinkToFit, style.ShrinkToFit ? "shrunk to fit" : "not shrunk");
    add(style.bTransWrapTest, style.WrapText ? "wrapped" : "not wrapped");
    add(style.bTransStrikeThrough, style.FontStrikeThrough ? "struck through" : "not struck through");
    add(style.bTransBorders, border(style));
    return fmt::format("{}", fmt::join(parts, ", "));
}

}  // namespace kestrune::cli
