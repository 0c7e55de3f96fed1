#include "brxllib/autocolor/FontPainter.h"

#include "automation/Conversion.h"
#include "brxllib/autocolor/Parting.h"
#include "brxllib/autocolor/Rectangles.h"
#include "formula/A1.h"

namespace kestrune::brxllib {

using automation::Value;
using formula::Area;

void FontPainter::paint(Areas areas, std::int32_t color, std::optional<std::int32_t> before) {
    if (before && keeps(*before, color)) return;
    while (!areas.empty()) {
        const std::size_t group = address_of(areas).areas;
        paint_group(areas.first(group), color, before.has_value());
        areas = areas.subspan(group);
    }
}

bool FontPainter::keeps(std::int32_t before, std::int32_t color) const {
    return before == color || respected_.holds(before);
}

void FontPainter::paint_group(Areas areas, std::int32_t color, bool known) {
    attempt_([&] {
        const excel::Font font = sheet_.Range(address_of(areas).text).Font();
        const Value now = known ? Value() : font.Color();
        if (known || (!now.is(Value::Kind::Null) && !keeps(automation::to_integer(now), color))) {
            font.Color(color);
        } else if (now.is(Value::Kind::Null) && areas.size() > 1) {
            paint_group(areas.first(areas.size() / 2), color, false);
            paint_group(areas.subspan(areas.size() / 2), color, false);
        } else if (now.is(Value::Kind::Null)) {
            paint_parts(areas.front(), color);
        }
    });
}

void FontPainter::paint_parts(const Area& area, std::int32_t color) {
    const auto font_of = [&](const Area& part) { return sheet_.Range(formula::area_text(part)).Font(); };
    visit_uniform_parts(
        area, [&](const Area& part) { return font_of(part).Color(); },
        [&](const Area& part, const Value& now) {
            if (!keeps(automation::to_integer(now), color)) attempt_([&] { font_of(part).Color(color); });
        });
}

}  // namespace kestrune::brxllib
