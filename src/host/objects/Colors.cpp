#include "host/objects/Colors.h"

#include "host/objects/Constants.h"
#include "host/objects/Refusal.h"

namespace kestrune::host {
namespace {

constexpr std::uint32_t first_palette_entry = 8;  // entries 0..7 repeat 8..15
constexpr std::uint32_t first_system_entry = 64;

bool automatic_kind(const Color& color) {
    return color.kind == Color::Kind::None || color.kind == Color::Kind::Automatic ||
           (color.kind == Color::Kind::Indexed && color.value >= first_system_entry);
}

}  // namespace

automation::Value color_value(const Workbook& workbook, const Color& color, std::uint32_t automatic) {
    if (automatic_kind(color)) return static_cast<double>(automatic);
    return static_cast<double>(workbook.rgb_of(color, automatic));
}

automation::Value color_index(const Workbook& workbook, const Color& color) {
    if (automatic_kind(color)) return xlAutomatic;
    if (color.kind == Color::Kind::Indexed && color.tint == 0) {
        const std::uint32_t entry = color.value < first_palette_entry ? color.value : color.value - first_palette_entry;
        return static_cast<std::int32_t>(entry) + 1;
    }
    return workbook.nearest_index(workbook.rgb_of(color, 0));
}

automation::Value theme_color(const Color& color) {
    if (color.kind != Color::Kind::Theme) return {};
    return static_cast<std::int32_t>(color.value) + 1;
}

automation::Value themed(std::string_view member, automation::Value answer) {
    if (answer.is(automation::Value::Kind::Empty)) refuse(member, "the colour is none of the theme's");
    return answer;
}

Color color_of_value(std::int32_t bgr) { return Color::rgb(static_cast<std::uint32_t>(bgr) & 0xFFFFFFU); }

Color color_of_index(std::string_view member, std::int32_t index) {
    if (index == xlAutomatic || index == 0) return Color::automatic();
    if (index < 1 || index > 56) refuse(member, "a colour index is 1 to 56, or xlColorIndexAutomatic");
    return Color::indexed(static_cast<std::uint32_t>(index - 1) + first_palette_entry);
}

Color color_of_theme(std::string_view member, std::int32_t theme_color) {
    if (theme_color < 1 || theme_color > 12) refuse(member, "a theme colour is 1 to 12");
    return Color::theme(static_cast<std::uint32_t>(theme_color - 1));
}

double checked_tint(std::string_view member, double tint) {
    if (!(tint >= -1 && tint <= 1)) refuse(member, "a tint is between -1 and 1");
    return tint;
}

}  // namespace kestrune::host
