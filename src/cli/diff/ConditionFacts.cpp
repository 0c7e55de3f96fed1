#include "cli/diff/ConditionFacts.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <vector>

#include "cli/diff/FormatFacts.h"
#include "cli/diff/Rectangles.h"
#include "formula/A1.h"

namespace kestrune::cli {
namespace {

std::string format_text(const host::Workbook& workbook, const host::DifferentialFormat& format) {
    std::vector<std::string> facts;
    const auto flag = [&](const std::optional<bool>& value, std::string_view name) {
        if (value) facts.push_back(fmt::format("{}{}", *value ? "" : "not ", name));
    };
    flag(format.bold, "bold");
    flag(format.italic, "italic");
    flag(format.strike, "struck out");
    if (format.underline) facts.emplace_back(underline_name(*format.underline));
    if (format.font_color) facts.push_back("font " + color_text(workbook, *format.font_color, "automatic"));
    if (format.fill) {
        // The color of a solid fill is the background here, unlike in cell formats.
        facts.push_back(fmt::format("fill {}", color_text(workbook, format.fill->background, "none")));
        if (format.fill->pattern != host::Pattern::None && format.fill->pattern != host::Pattern::Solid)
            facts.push_back(fmt::format("{} {}", pattern_name(format.fill->pattern),
                                        color_text(workbook, format.fill->foreground, "automatic")));
    }
    if (format.border) {
        const host::Border& border = *format.border;
        for (const auto& [side, name] : {std::pair{&border.left, "left"},
                                         {&border.top, "top"},
                                         {&border.bottom, "bottom"},
                                         {&border.right, "right"}}) {
            if (side->style != host::LineStyle::None)
                facts.push_back(fmt::format("{} {}", name, line_text(workbook, *side)));
        }
    }
    if (format.number_format) facts.push_back(*format.number_format);
    return fmt::format("{}", fmt::join(facts, ", "));
}

}  // namespace

std::string condition_facts(host::Sheet& sheet) {
    std::vector<std::pair<std::int32_t, std::string>> rules;
    const host::Workbook& workbook = sheet.workbook();
    for (const host::ConditionalFormat& format : sheet.conditional_formats()) {
        std::vector<std::string> areas;
        for (const formula::Area& area : rectangles(format.areas)) areas.push_back(formula::area_text(area));
        for (const host::ConditionalRule& rule : format.rules) {
            std::string text = fmt::format("{} {} {} {}", fmt::join(areas, ","), rule.type, rule.operator_name,
                                           fmt::join(rule.formulas, " "));
            // Broken files name formats beyond the end of the list.
            if (rule.differential && *rule.differential < workbook.styles.differentials.size())
                text += fmt::format(" ({})", format_text(workbook, workbook.styles.differentials[*rule.differential]));
            if (rule.stop_if_true) text += " and stop";
            rules.emplace_back(rule.priority, std::move(text));
        }
    }
    std::ranges::sort(rules);
    std::vector<std::string> lines;
    for (auto& [priority, text] : rules) lines.push_back(std::move(text));
    return fmt::format("{}", fmt::join(lines, "; "));
}

}  // namespace kestrune::cli
