#include "host/xlsx/AreaText.h"

#include "formula/A1.h"

namespace kestrune::host {

std::optional<formula::Area> parse_area(std::string_view text) {
    formula::Reference reference;
    if (text.empty() || formula::match_a1(text, reference) != text.size()) return std::nullopt;
    return formula::area_of(reference);
}

std::optional<std::vector<formula::Area>> parse_areas(std::string_view text) {
    static constexpr std::string_view white = " \t\r\n";
    std::vector<formula::Area> areas;
    for (auto at = text.find_first_not_of(white); at != std::string_view::npos;
         at = text.find_first_not_of(white, at)) {
        const auto end = text.find_first_of(white, at);
        const auto area = parse_area(text.substr(at, end == std::string_view::npos ? end : end - at));
        if (!area) return std::nullopt;
        areas.push_back(*area);
        if (end == std::string_view::npos) break;
        at = end;
    }
    return areas;
}

std::string areas_text(const std::vector<formula::Area>& areas) {
    std::string text;
    for (const auto& area : areas) {
        if (!text.empty()) text += ' ';
        formula::append_cell(text, area.top_left());
        if (area.single_cell()) continue;
        text += ':';
        formula::append_cell(text, {area.last_row, area.last_column});
    }
    return text;
}

}  // namespace kestrune::host
