#include "host/objects/BorderLine.h"

#include <algorithm>
#include <cstdlib>

#include "host/objects/Constants.h"
#include "host/objects/Refusal.h"

namespace kestrune::host {
namespace {

struct Pair {
    LineStyle stored;
    std::int32_t style;
    std::int32_t weight;
};

constexpr Pair pairs[] = {
    {LineStyle::Hair, xlContinuous, xlHairline},
    {LineStyle::Thin, xlContinuous, xlThin},
    {LineStyle::Medium, xlContinuous, xlMedium},
    {LineStyle::Thick, xlContinuous, xlThick},
    {LineStyle::Dashed, xlDash, xlThin},
    {LineStyle::MediumDashed, xlDash, xlMedium},
    {LineStyle::Dotted, xlDot, xlThin},
    {LineStyle::DashDot, xlDashDot, xlThin},
    {LineStyle::MediumDashDot, xlDashDot, xlMedium},
    {LineStyle::DashDotDot, xlDashDotDot, xlThin},
    {LineStyle::MediumDashDotDot, xlDashDotDot, xlMedium},
    {LineStyle::SlantDashDot, xlSlantDashDot, xlMedium},
    {LineStyle::Double, xlDouble, xlThick},
};

// Weights from thin to thick.
int rank_of(std::int32_t weight) {
    switch (weight) {
        case xlHairline:
            return 0;
        case xlThin:
            return 1;
        case xlMedium:
            return 2;
        default:
            return 3;
    }
}

const Pair* pair_of(const Line& line) {
    const auto* pair = std::ranges::find(pairs, line.style, &Pair::stored);
    return pair == std::end(pairs) ? nullptr : pair;
}

}  // namespace

std::int32_t line_style(const Line& line) {
    const Pair* pair = pair_of(line);
    return pair ? pair->style : xlNone;
}

std::int32_t line_weight(const Line& line) {
    const Pair* pair = pair_of(line);
    return pair ? pair->weight : xlThin;
}

void check_line_style(std::string_view member, std::int32_t style) {
    if (style == xlNone || style == xlAutomatic) return;
    if (std::ranges::find(pairs, style, &Pair::style) == std::end(pairs)) refuse(member, "there is no such line style");
}

void check_line_weight(std::string_view member, std::int32_t weight) {
    if (std::ranges::find(pairs, weight, &Pair::weight) == std::end(pairs)) refuse(member, "there is no such weight");
}

void set_line_style(Line& line, std::int32_t style) {
    if (style == xlNone) {
        line = Line{};
        return;
    }
    if (style == xlAutomatic) style = xlContinuous;
    if (line.style == LineStyle::None) line.color = Color::automatic();
    const int wanted = rank_of(line_weight(line));
    const Pair* nearest = nullptr;
    for (const Pair& pair : pairs) {
        if (pair.style != style) continue;
        if (!nearest || std::abs(rank_of(pair.weight) - wanted) < std::abs(rank_of(nearest->weight) - wanted)) {
            nearest = &pair;
        }
    }
    if (nearest) line.style = nearest->stored;
}

void set_line_weight(Line& line, std::int32_t weight) {
    const std::int32_t style = line.style == LineStyle::None ? xlContinuous : line_style(line);
    if (line.style == LineStyle::None) line.color = Color::automatic();
    // Continuous lines have every weight.
    const Pair* nearest = nullptr;
    for (const Pair& pair : pairs) {
        if (pair.weight == weight && (pair.style == style || (!nearest && pair.style == xlContinuous))) nearest = &pair;
    }
    if (nearest) line.style = nearest->stored;
}

void set_line_color(Line& line, const Color& color) {
    if (line.style == LineStyle::None) line.style = LineStyle::Thin;
    line.color = color;
}

}  // namespace kestrune::host
