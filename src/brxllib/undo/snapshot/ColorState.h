#pragma once

#include <cstdint>
#include <optional>

#include "automation/AutomationError.h"
#include "automation/Conversion.h"
#include "brxllib/undo/snapshot/Reading.h"
#include "excel/Constants.h"

namespace kestrune::brxllib::undo {

// What kind of colour a reading of three answers holds: kind, colour, tint.
inline constexpr std::int32_t automatic_color = 0;
inline constexpr std::int32_t theme_color = 1;  // XlThemeColor and a tint
inline constexpr std::int32_t true_color = 2;   // BGR

// The theme colour of cells that show in one colour; Empty when it is none of the theme's, Null when they differ. Excel
// fails for a colour that is not the theme's; should it answer Null for one, the first cell tells which it means.
template <class Colored, class First>
automation::Value theme_color_of(const Colored& colored, First&& first) {
    try {
        automation::Value answer = colored.ThemeColor();
        if (!answer.is(automation::Value::Kind::Null)) return answer;
    } catch (const automation::AutomationError&) {
        return {};
    }
    try {
        if (first().ThemeColor().is(automation::Value::Kind::Null)) return {};
    } catch (const automation::AutomationError&) {
    }
    return automation::Null{};
}

// The colour of a font, a fill, a pattern or a line; nothing when the cells differ. first gives the same of one cell.
template <class Colored, class First>
std::optional<Reading> read_color(const Colored& colored, First&& first) {
    using automation::Value;
    const Value color = colored.Color();
    const Value index = colored.ColorIndex();
    if (color.is(Value::Kind::Null) || index.is(Value::Kind::Null)) return std::nullopt;
    if (automation::to_integer(index) == excel::xlColorIndexAutomatic) return Reading{automatic_color, 0, 0.0};
    const Value tint = colored.TintAndShade();
    if (tint.is(Value::Kind::Null)) return std::nullopt;
    const Value theme = theme_color_of(colored, first);
    if (theme.is(Value::Kind::Null)) return std::nullopt;
    if (theme.is(Value::Kind::Empty)) return Reading{true_color, automation::to_integer(color), 0.0};
    return Reading{theme_color, automation::to_integer(theme), automation::to_double(tint)};
}

// Writes a colour that read_color read; color: where its three answers begin.
template <class Colored>
void write_color(const Colored& colored, const automation::Value* color) {
    switch (automation::to_integer(color[0])) {
        case automatic_color:
            colored.ColorIndex(excel::xlColorIndexAutomatic);
            break;
        case theme_color:
            colored.ThemeColor(color[1]);
            if (automation::to_double(color[2]) != 0) colored.TintAndShade(color[2]);
            break;
        default:
            colored.Color(color[1]);
    }
}

}  // namespace kestrune::brxllib::undo
