#include "settings/StyleEdits.h"

#include <array>
#include <utility>

#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "excel/Application.h"

namespace kestrune::settings {

using automation::same_text;
using styles::cStyle;

namespace {

template <class Settings, class Act>
void for_each_style_cycle(Settings& settings, Act&& act) {
    for (std::size_t i = 0; i < style_cycle_count; ++i) act(*settings.cycle(static_cast<StyleCycle>(i)));
}

constexpr std::string_view standard = "BR Standard";

}  // namespace

std::optional<core::Text> style_name_problem(const cUserSettings& settings, std::string_view name,
                                             const cStyle* style) {
    const styles::StyleRef other = settings.Styles->Item(name);
    if (name.empty()) return core::Text::StyleNameMissing;
    if (other && other.get() != style) return core::Text::StyleNameTaken;
    if (same_text(name.substr(0, standard.size()), standard)) return core::Text::StyleNameIsStandard;
    return std::nullopt;
}

void change_style(cUserSettings& settings, cStyle& style, const styles::StyleFields& fields) {
    if (fields.FriendlyName != style.FriendlyName) rename_style(settings, style, fields.FriendlyName);
    const std::int32_t level = style.AccessLevel;
    static_cast<styles::StyleFields&>(style) = fields;
    style.AccessLevel = level;
}

std::optional<styles::StyleFields> captured_fields(const core::SharedState& shared, styles::StyleFields fields) {
    const automation::ResumeNext attempt(shared.trace);
    excel::Range cell;
    attempt.assign(cell, [&] { return excel::Application(shared.application).ActiveCell(); });
    if (!cell) return std::nullopt;
    cStyle captured(std::move(fields));
    captured.CaptureFromCell(shared, cell);
    return captured;
}

void recognise_colors(const core::SharedState& shared, const styles::StyleFields& before, styles::StyleFields& fields) {
    const automation::ResumeNext attempt(shared.trace);
    excel::Workbook workbook;
    attempt.assign(workbook, [&] { return excel::Application(shared.application).ActiveWorkbook(); });
    if (!workbook) return;
    const auto nearest = [&](std::int32_t color) {
        return shared.spreadsheet().nearest_color_index(color, workbook.object());
    };
    if (fields.FontColor != before.FontColor) {
        attempt.assign(fields.AsFontColor, [&] { return workbook.Colors(nearest(fields.FontColor)); });
    }
    const bool fill_unknown =
        !fields.bTransCellColor && fields.CellColor != styles::no_fill && fields.AsCellColorIndex == excel::xlNone;
    if (fields.CellColor != before.CellColor || fill_unknown) {
        attempt.assign(fields.AsCellColorIndex,
                       [&] { return fields.CellColor == styles::no_fill ? excel::xlNone : nearest(fields.CellColor); });
    }
    const bool line_unknown = !fields.bTransBorders && fields.AsBorderColorIndex == 0;
    if (fields.BorderColor != before.BorderColor || line_unknown) {
        attempt.assign(fields.AsBorderColorIndex, [&] { return nearest(fields.BorderColor); });
    }
}

void rename_style(cUserSettings& settings, cStyle& style, const std::string& name) {
    for (std::string* used : {&settings.SmartFillDates.Style, &settings.SmartFillNumbers.Style}) {
        if (same_text(*used, style.FriendlyName)) *used = name;
    }
    style.FriendlyName = name;
    settings.Styles->follow_name(style);
    for_each_style_cycle(settings, [&](auto& cycle) { cycle.Styles->follow_name(style); });
}

std::string use_of(const cUserSettings& settings, const cStyle& style) {
    const auto uses = std::to_array<std::pair<bool, const char*>>({
        {settings.BRPaintbrushStyle.get() == &style, "the Paintbrush style"},
        {settings.SheetStyle.get() == &style, "the sheet style"},
        {same_text(settings.SmartFillDates.Style, style.FriendlyName), "the style of Smart Fill Dates"},
        {same_text(settings.SmartFillNumbers.Style, style.FriendlyName), "the style of Smart Fill Numbers"},
    });
    for (const auto& [used, what] : uses) {
        if (used) return what;
    }
    return {};
}

std::vector<std::string> cycles_with(const cUserSettings& settings, const cStyle& style) {
    std::vector<std::string> names;
    for_each_style_cycle(settings, [&](const auto& cycle) {
        if (cycle.Styles->position_of(style) > 0) names.push_back(cycle.Name);
    });
    return names;
}

void remove_style(cUserSettings& settings, cStyle& style) {
    for_each_style_cycle(settings, [&](auto& cycle) { cycle.Styles->Remove(cycle.Styles->position_of(style)); });
    settings.Styles->Remove(settings.Styles->position_of(style));
}

std::string unused_style_name(const cUserSettings& settings, std::string_view name) {
    std::string free(name);
    for (int number = 2; settings.Styles->Item(free); ++number) {
        free = std::string(name) + " " + std::to_string(number);
    }
    return free;
}

}  // namespace kestrune::settings
