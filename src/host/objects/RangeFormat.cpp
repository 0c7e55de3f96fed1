#include <algorithm>
#include <utility>

#include "host/objects/BordersObject.h"
#include "host/objects/FontObject.h"
#include "host/objects/FormatConditionsObject.h"
#include "host/objects/HyperlinksObject.h"
#include "host/objects/InteriorObject.h"
#include "host/objects/RangeObject.h"
#include "host/objects/Refusal.h"
#include "host/objects/StyleObject.h"
#include "host/objects/StylesObject.h"
#include "number_format/BuiltInFormats.h"
#include "number_format/NumberFormat.h"

namespace kestrune::host {

using number_format::built_in_format_id;
using number_format::is_valid_format;
namespace {

constexpr std::pair<Horizontal, std::int32_t> horizontals[] = {
    {Horizontal::General, xlGeneral},
    {Horizontal::Left, xlLeft},
    {Horizontal::Center, xlCenter},
    {Horizontal::Right, xlRight},
    {Horizontal::Fill, xlFill},
    {Horizontal::Justify, xlJustify},
    {Horizontal::CenterContinuous, xlCenterAcrossSelection},
    {Horizontal::Distributed, xlDistributed},
};

constexpr std::pair<Vertical, std::int32_t> verticals[] = {
    {Vertical::Top, xlTop},         {Vertical::Center, xlCenter},           {Vertical::Bottom, xlBottom},
    {Vertical::Justify, xlJustify}, {Vertical::Distributed, xlDistributed},
};

template <class Alignment, std::size_t N>
std::int32_t constant_of(const std::pair<Alignment, std::int32_t> (&table)[N], Alignment alignment) {
    return std::ranges::find(table, alignment, &std::pair<Alignment, std::int32_t>::first)->second;
}

template <class Alignment, std::size_t N>
Alignment alignment_of(std::string_view member, const std::pair<Alignment, std::int32_t> (&table)[N],
                       std::int32_t constant) {
    const auto row = std::ranges::find(table, constant, &std::pair<Alignment, std::int32_t>::second);
    if (row == std::end(table)) refuse(member, "there is no such alignment");
    return row->first;
}

bool carries_indent(Horizontal horizontal) {
    return horizontal == Horizontal::Left || horizontal == Horizontal::Right || horizontal == Horizontal::Distributed;
}

constexpr std::int32_t deepest_indent = 15;
constexpr std::size_t most_custom_formats = 250;

// Rotations as stored: 0..90 degrees up, 91..180 down as 90 minus degrees, 255 stacked (ECMA-376 18.8.1).
constexpr std::int32_t stacked = 255;

std::int32_t orientation_of_rotation(std::int32_t rotation) {
    switch (rotation) {
        case 0:
            return xlHorizontal;
        case 90:
            return xlUpward;
        case 180:
            return xlDownward;
        case stacked:
            return xlVertical;
        default:
            return rotation <= 90 ? rotation : 90 - rotation;
    }
}

std::int32_t rotation_of_orientation(std::int32_t orientation) {
    switch (orientation) {
        case xlHorizontal:
            return 0;
        case xlUpward:
            return 90;
        case xlDownward:
            return 180;
        case xlVertical:
            return stacked;
        default:
            break;
    }
    if (orientation < -90 || orientation > 90) {
        refuse("Range.Orientation", "an orientation is -90 to 90 degrees, or a constant of XlOrientation");
    }
    return orientation >= 0 ? orientation : 90 - orientation;
}

// In the order in which files count them (ECMA-376 18.8.1).
constexpr std::int32_t reading_orders[] = {xlContext, xlLTR, xlRTL};

// Whether the workbook knows the code already, or has room for one more.
bool has_room_for(const StyleTable& styles, std::string_view code) {
    const auto& custom = styles.custom_number_formats();
    if (custom.size() < most_custom_formats) return true;
    if (std::ranges::any_of(custom, [&](const auto& known) { return known.second == code; })) return true;
    return built_in_format_id(code).has_value();
}

}  // namespace

ObjectRef RangeObject::font() const { return std::make_shared<FontObject>(cells_); }
ObjectRef RangeObject::interior() const { return std::make_shared<InteriorObject>(cells_); }
ObjectRef RangeObject::borders() const { return std::make_shared<BordersObject>(cells_); }
ObjectRef RangeObject::format_conditions() const { return std::make_shared<FormatConditionsObject>(cells_); }
ObjectRef RangeObject::hyperlinks() const { return std::make_shared<HyperlinksObject>(cells_); }

Value RangeObject::number_format() const {
    return read_format([&](const CellFormat& format) { return cells_.styles().number_format(format.number_format); });
}

void RangeObject::set_number_format(const std::string& code) {
    constexpr std::string_view member = "Range.NumberFormat";
    const std::string canonical = automation::same_text(code, "General") || code.empty() ? "General" : code;
    if (!is_valid_format(canonical)) refuse(member, "'" + code + "' is no number format");
    cells_.require_format_allowed(member);
    if (!has_room_for(cells_.styles(), canonical)) refuse(member, "the workbook has too many custom number formats");
    const std::uint32_t number = cells_.styles().intern_number_format(canonical);
    write_format(member, [&](CellFormat& format) { format.number_format = number; });
}

Value RangeObject::horizontal_alignment() const {
    return read_format([](const CellFormat& format) { return constant_of(horizontals, format.alignment.horizontal); });
}

void RangeObject::set_horizontal_alignment(std::int32_t alignment) {
    const Horizontal horizontal = alignment_of("Range.HorizontalAlignment", horizontals, alignment);
    write_format("Range.HorizontalAlignment", [&](CellFormat& format) {
        format.alignment.horizontal = horizontal;
        if (!carries_indent(horizontal)) format.alignment.indent = 0;
    });
}

Value RangeObject::vertical_alignment() const {
    return read_format([](const CellFormat& format) { return constant_of(verticals, format.alignment.vertical); });
}

void RangeObject::set_vertical_alignment(std::int32_t alignment) {
    const Vertical vertical = alignment_of("Range.VerticalAlignment", verticals, alignment);
    write_format("Range.VerticalAlignment", [&](CellFormat& format) { format.alignment.vertical = vertical; });
}

Value RangeObject::orientation() const {
    return read_format([](const CellFormat& format) { return orientation_of_rotation(format.alignment.rotation); });
}

void RangeObject::set_orientation(std::int32_t orientation) {
    const std::int32_t rotation = rotation_of_orientation(orientation);
    write_format("Range.Orientation", [&](CellFormat& format) { format.alignment.rotation = rotation; });
}

Value RangeObject::indent_level() const {
    return read_format([](const CellFormat& format) { return format.alignment.indent; });
}

void RangeObject::set_indent_level(std::int32_t level) {
    if (level < 0 || level > deepest_indent) refuse("Range.IndentLevel", "an indent level is 0 to 15");
    write_format("Range.IndentLevel", [&](CellFormat& format) {
        // An indent needs a side to be counted from.
        if (level > 0 && !carries_indent(format.alignment.horizontal)) format.alignment.horizontal = Horizontal::Left;
        format.alignment.indent = level;
    });
}

Value RangeObject::add_indent() const {
    return read_format([](const CellFormat& format) { return format.alignment.justify_last_line; });
}

void RangeObject::set_add_indent(bool on) {
    write_format("Range.AddIndent", [&](CellFormat& format) { format.alignment.justify_last_line = on; });
}

Value RangeObject::shrink_to_fit() const {
    return read_format([](const CellFormat& format) { return format.alignment.shrink; });
}

void RangeObject::set_shrink_to_fit(bool on) {
    write_format("Range.ShrinkToFit", [&](CellFormat& format) { format.alignment.shrink = on; });
}

Value RangeObject::wrap_text() const {
    return read_format([](const CellFormat& format) { return format.alignment.wrap; });
}

void RangeObject::set_wrap_text(bool on) {
    write_format("Range.WrapText", [&](CellFormat& format) { format.alignment.wrap = on; });
}

Value RangeObject::reading_order() const {
    return read_format([](const CellFormat& format) {
        const auto order = static_cast<std::size_t>(format.alignment.reading_order);
        return order < std::size(reading_orders) ? reading_orders[order] : xlContext;
    });
}

void RangeObject::set_reading_order(std::int32_t order) {
    const auto* known = std::ranges::find(reading_orders, order);
    if (known == std::end(reading_orders)) refuse("Range.ReadingOrder", "there is no such reading order");
    const auto stored = static_cast<std::int32_t>(known - reading_orders);
    write_format("Range.ReadingOrder", [&](CellFormat& format) { format.alignment.reading_order = stored; });
}

Value RangeObject::style() const {
    const Value position =
        read_format([](const CellFormat& format) { return static_cast<std::int32_t>(format.named_style); });
    if (position.is(Value::Kind::Null)) return position;
    return std::make_shared<StyleObject>(session(), cells_.workbook(),
                                         static_cast<std::uint32_t>(automation::to_integer(position)));
}

void RangeObject::set_style(const Value& style) {
    constexpr std::string_view member = "Range.Style";
    const std::uint32_t position = style_argument(member, cells_.workbook(), style);
    const CellFormat format = cells_.styles().named_styles[position].format;
    write_format(member, [&](CellFormat& changed) {
        const bool quoted = changed.quote_prefix;
        const bool button = changed.pivot_button;
        changed = format;
        changed.named_style = position;
        changed.quote_prefix = quoted;
        changed.pivot_button = button;
    });
}

Value RangeObject::locked() const {
    return read_format([](const CellFormat& format) { return format.protection.locked; });
}

void RangeObject::set_locked(bool on) {
    if (cells_.sheet().protection().on) refuse("Range.Locked", "the sheet is protected");
    write_format("Range.Locked", [&](CellFormat& format) { format.protection.locked = on; });
}

Value RangeObject::formula_hidden() const {
    return read_format([](const CellFormat& format) { return format.protection.hidden; });
}

void RangeObject::set_formula_hidden(bool on) {
    if (cells_.sheet().protection().on) refuse("Range.FormulaHidden", "the sheet is protected");
    write_format("Range.FormulaHidden", [&](CellFormat& format) { format.protection.hidden = on; });
}

}  // namespace kestrune::host
