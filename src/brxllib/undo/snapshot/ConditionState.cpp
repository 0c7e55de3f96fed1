#include "brxllib/undo/snapshot/ConditionState.h"

#include <algorithm>
#include <array>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "brxllib/autocolor/ClassReader.h"
#include "brxllib/undo/snapshot/ColorState.h"
#include "excel/Constants.h"
#include "formula/Convert.h"

namespace kestrune::brxllib::undo {
namespace {

using automation::Null;
using automation::Value;
using excel::FormatCondition;

// Types that FormatConditions.Add makes from formulas: cell value, expression, blanks, no blanks, errors, no errors.
constexpr std::int32_t replaceable_types[] = {1, 2, 10, 13, 16, 17};
constexpr std::int32_t types_with_formulas = 2;  // the types up to this one take them

constexpr std::int32_t sides[] = {excel::xlLeft, excel::xlTop, excel::xlBottom, excel::xlRight};

// One thing that a conditional format shows; read answers Null where it leaves the cell's own.
struct Show {
    Value (*read)(const FormatCondition& condition);
    void (*write)(const FormatCondition& condition, const Value& value);
};

template <Value (excel::Font::*get)() const, void (excel::Font::*put)(Value) const>
constexpr Show font_show{[](const FormatCondition& condition) { return (condition.Font().*get)(); },
                         [](const FormatCondition& condition, const Value& value) { (condition.Font().*put)(value); }};

// Colours are written with their kind, kept in one value as an array of kind, colour and tint.
template <class Colored>
Value color_value(const Colored& colored) {
    const auto color = read_color(colored, [&] { return colored; });
    if (!color) return Null{};
    automation::Array answer({0, static_cast<std::int32_t>(color->size())});
    answer.elements() = *color;
    return answer;
}

excel::Border side_of(const FormatCondition& condition, std::int32_t side) { return condition.Borders().Item(side); }

template <std::int32_t side>
constexpr Show line_show{
    [](const FormatCondition& condition) { return side_of(condition, side).LineStyle(); },
    [](const FormatCondition& condition, const Value& value) { side_of(condition, side).LineStyle(value); }};
template <std::int32_t side>
constexpr Show line_color_show{[](const FormatCondition& condition) {
                                   const excel::Border line = side_of(condition, side);
                                   const Value style = line.LineStyle();
                                   if (style.is(Value::Kind::Null) || automation::to_integer(style) == excel::xlNone)
                                       return Value(Null{});
                                   return color_value(line);
                               },
                               [](const FormatCondition& condition, const Value& value) {
                                   write_color(side_of(condition, side), value.array()->elements().data());
                               }};

// A pattern goes before the colour, which would make it solid.
constexpr auto shows = std::to_array<Show>({
    {[](const FormatCondition& condition) { return condition.NumberFormat(); },
     [](const FormatCondition& condition, const Value& value) { condition.NumberFormat(value); }},
    font_show<&excel::Font::Bold, &excel::Font::Bold>,
    font_show<&excel::Font::Italic, &excel::Font::Italic>,
    font_show<&excel::Font::Underline, &excel::Font::Underline>,
    font_show<&excel::Font::Strikethrough, &excel::Font::Strikethrough>,
    {[](const FormatCondition& condition) { return color_value(condition.Font()); },
     [](const FormatCondition& condition, const Value& value) {
         write_color(condition.Font(), value.array()->elements().data());
     }},
    {[](const FormatCondition& condition) { return condition.Interior().Pattern(); },
     [](const FormatCondition& condition, const Value& value) { condition.Interior().Pattern(value); }},
    {[](const FormatCondition& condition) { return color_value(condition.Interior()); },
     [](const FormatCondition& condition, const Value& value) {
         write_color(condition.Interior(), value.array()->elements().data());
     }},
    {[](const FormatCondition& condition) { return condition.Interior().PatternColor(); },
     [](const FormatCondition& condition, const Value& value) { condition.Interior().PatternColor(value); }},
    line_show<sides[0]>,
    line_color_show<sides[0]>,
    line_show<sides[1]>,
    line_color_show<sides[1]>,
    line_show<sides[2]>,
    line_color_show<sides[2]>,
    line_show<sides[3]>,
    line_color_show<sides[3]>,
});

std::string in_r1c1(const std::string& formula, formula::Position origin) {
    if (!formula.starts_with('=')) return formula;
    return "=" + formula::to_r1c1(formula.substr(1), origin);
}

std::string in_a1(const std::string& formula, formula::Position origin) {
    if (!formula.starts_with('=')) return formula;
    return "=" + formula::to_a1(formula.substr(1), origin);
}

// The cell that the formulas of a conditional format are told for.
formula::Position corner_of(const std::vector<formula::Area>& areas) {
    formula::Position corner = areas.front().top_left();
    for (const formula::Area& area : areas) {
        corner = {std::min(corner.row, area.first_row), std::min(corner.column, area.first_column)};
    }
    return corner;
}

}  // namespace

bool ConditionState::replaceable() const {
    return std::ranges::find(replaceable_types, type) != std::end(replaceable_types);
}

std::size_t ConditionState::bytes() const {
    std::size_t sum = sizeof(ConditionState) + bytes_of(formats) + applies_to.capacity() * sizeof(formula::Area);
    for (const std::string& formula : formulas) sum += sizeof(formula) + formula.capacity();
    return sum;
}

ConditionState read_condition(const FormatCondition& condition, const automation::Trace& trace) {
    const automation::ResumeNext attempt(trace);
    ConditionState state;
    state.type = condition.Type();
    state.priority = condition.Priority();
    state.applies_to = areas_of(condition.AppliesTo());
    if (state.type == excel::xlCellValue) state.operation = condition.Operator();
    const formula::Position origin = corner_of(state.applies_to);
    if (state.type <= types_with_formulas) state.formulas.push_back(in_r1c1(condition.Formula1(), origin));
    if (state.operation == excel::xlBetween || state.operation == excel::xlNotBetween) {
        state.formulas.push_back(in_r1c1(condition.Formula2(), origin));
    }
    // A colour scale has no font, and never stops.
    attempt([&] { state.stops = automation::to_boolean(condition.StopIfTrue()); });
    for (const Show& show : shows) {
        Value value = Null{};
        attempt.assign(value, [&] { return show.read(condition); });
        state.formats.push_back(std::move(value));
    }
    return state;
}

FormatCondition add_condition(const ConditionState& state, const excel::Range& cells, const excel::Range& active,
                              const automation::Trace& trace) {
    const auto add = [&](formula::Position origin) {
        const auto formula = [&](std::size_t place) {
            return place < state.formulas.size() ? Value(in_a1(state.formulas[place], origin))
                                                 : Value(automation::Missing{});
        };
        return cells.FormatConditions().Add(
            state.type, state.operation != 0 ? Value(state.operation) : Value(automation::Missing{}), formula(0),
            formula(1));
    };
    const formula::Position corner = corner_of(state.applies_to);
    FormatCondition condition = add(active ? formula::Position{active.Row(), active.Column()} : corner);
    // Should formulas be told as seen from the active cell, too, they go in as they were told.
    if (active && read_condition(condition, trace).formulas != state.formulas) {
        condition.Delete();
        condition = add(corner);
    }
    for (std::size_t i = 0; i < shows.size(); ++i) {
        if (!state.formats[i].is(Value::Kind::Null)) shows[i].write(condition, state.formats[i]);
    }
    condition.StopIfTrue(state.stops);
    return condition;
}

}  // namespace kestrune::brxllib::undo
