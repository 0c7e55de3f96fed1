#include "smart/copy/FormatCopy.h"

#include "automation/ResumeNext.h"
#include "excel/Constants.h"

namespace kestrune::smart {
namespace {

using automation::Value;
using excel::Range;

// A colour, or xlColorIndexAutomatic, which is no colour's number.
Value font_color(const Range& cells) {
    const Value index = cells.Font().ColorIndex();
    return index == Value(excel::xlColorIndexAutomatic) || index.is(Value::Kind::Null) ? index : cells.Font().Color();
}

void set_font_color(const Range& cells, const Value& color) {
    if (color == Value(excel::xlColorIndexAutomatic)) {
        cells.Font().ColorIndex(color);
    } else {
        cells.Font().Color(color);
    }
}

template <Value (excel::Font::*getter)() const, void (excel::Font::*setter)(Value) const>
constexpr CellProperty font_property{
    [](const Range& cells) { return (cells.Font().*getter)(); },
    [](const Range& cells, const Value& value) { (cells.Font().*setter)(value); },
};

using excel::Font;

constexpr CellProperty number_format{
    [](const Range& cells) { return cells.NumberFormat(); },
    [](const Range& cells, const Value& value) { cells.NumberFormat(value); },
};

constexpr CellProperty properties[] = {
    font_property<&Font::Name, &Font::Name>,
    font_property<&Font::Size, &Font::Size>,
    font_property<&Font::Bold, &Font::Bold>,
    font_property<&Font::Italic, &Font::Italic>,
    font_property<&Font::Underline, &Font::Underline>,
    font_property<&Font::Strikethrough, &Font::Strikethrough>,
    {font_color, set_font_color},
    // Formulas and dates that are entered bring number formats along, so theirs is written once more afterwards.
    number_format,
    {[](const Range& cells) { return cells.HorizontalAlignment(); },
     [](const Range& cells, const Value& value) { cells.HorizontalAlignment(value); }},
};

}  // namespace

std::vector<Rectangle> rectangles_of(const CopyDirection& direction, RectangleBuilder builder) {
    std::vector<Rectangle> rectangles = std::move(builder).rectangles();
    for (Rectangle& one : rectangles) one = direction.rectangle(one.top, one.left, one.bottom, one.right);
    return rectangles;
}

void FormatCopy::copy_number_formats() { copy(number_format, places_); }

void FormatCopy::copy_all() {
    for (const CellProperty& property : properties) copy(property, places_);
}

// Halves the places until each part of the copied line looks alike.
void FormatCopy::copy(const CellProperty& property, std::pair<std::int32_t, std::int32_t> places) {
    const automation::ResumeNext attempt(shared_.trace);
    const auto [first, last] = places;
    Value value;
    const bool known = attempt.assign(value, [&] {
        return property.get(sheet_.Range(address_of(direction_.rectangle(source_line_, first, source_line_, last))));
    });
    if (!known) return;
    if (!value.is(Value::Kind::Null)) {
        targets(places).put(property, value);
    } else if (last > first) {
        const std::int32_t middle = first + (last - first) / 2;
        copy(property, {first, middle});
        copy(property, {middle + 1, last});
    }
}

const CellGroups& FormatCopy::targets(std::pair<std::int32_t, std::int32_t> places) {
    const auto found = targets_.find(places);
    if (found != targets_.end()) return found->second;
    RectangleBuilder builder;
    for (const LinePlace& cell : cells_) {
        if (cell.place >= places.first && cell.place <= places.second) builder.add(cell.line, cell.place);
    }
    return targets_.try_emplace(places, shared_, sheet_, rectangles_of(direction_, std::move(builder))).first->second;
}

}  // namespace kestrune::smart
