#include "settings/style_editor/StyleSample.h"

#include <array>
#include <charconv>
#include <cstdlib>
#include <optional>

#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "excel/Application.h"
#include "number_format/Calendar.h"
#include "number_format/NumberFormat.h"

namespace kestrune::settings {
namespace {

using forms::Dash;
using forms::Looks;
using forms::Side;
using number_format::NumberFormat;
using styles::StyleFields;

constexpr double points_of_indent = 6.75;  // a level, in Excel's usual font

// The serial number of a day written as 2026-03-31.
std::optional<double> typed_date(std::string_view text) {
    constexpr std::size_t length = 10;
    if (text.size() != length || text[4] != '-' || text[7] != '-') return std::nullopt;
    number_format::CalendarDate date;
    const auto read = [&](std::size_t from, std::size_t count, std::int32_t& number) {
        const char* end = text.data() + from + count;
        const auto [read_to, failure] = std::from_chars(text.data() + from, end, number);
        return failure == std::errc{} && read_to == end;
    };
    if (!read(0, 4, date.year) || !read(5, 2, date.month) || !read(8, 2, date.day)) return std::nullopt;
    const auto serial = number_format::serial_from_date(date);
    return serial ? std::optional<double>(static_cast<double>(*serial)) : std::nullopt;
}

std::optional<double> typed_number(const core::SharedState& shared, std::string_view text) {
    std::optional<double> number = typed_date(text);
    const automation::ResumeNext attempt(shared.trace);
    if (!number) attempt.assign(number, [&] { return shared.general().typed_number(text); });
    return number;
}

number_format::Rendered shown(const core::SharedState& shared, std::string_view code, std::string_view value) {
    const NumberFormat format(code);
    value = automation::trimmed(value);
    const auto number = typed_number(shared, value);
    return number ? format.render(*number) : format.render_text(value);
}

Side across_of(std::int32_t alignment, bool is_number) {
    switch (alignment) {
        case excel::xlCenter:
        case excel::xlCenterAcrossSelection:
            return Side::Middle;
        case excel::xlRight:
            return Side::End;
        case excel::xlDistributed:
            return Side::Spread;
        case excel::xlGeneral:
            return is_number ? Side::End : Side::Start;
        default:
            return Side::Start;
    }
}

Side down_of(std::int32_t alignment) {
    switch (alignment) {
        case excel::xlTop:
            return Side::Start;
        case excel::xlCenter:
            return Side::Middle;
        case excel::xlBottom:
            return Side::End;
        default:
            return Side::Spread;
    }
}

void turn(Looks& looks, std::int32_t orientation) {
    switch (orientation) {
        case excel::xlHorizontal:
            break;
        case excel::xlUpward:
            looks.turn = 90;
            break;
        case excel::xlDownward:
            looks.turn = -90;
            break;
        case excel::xlVertical:
            looks.stacked = true;
            break;
        default:
            if (std::abs(orientation) <= 90) looks.turn = orientation;
    }
}

void underline(Looks& looks, std::int32_t style) {
    const bool twice = style == excel::xlUnderlineStyleDouble || style == excel::xlUnderlineStyleDoubleAccounting;
    if (style == excel::xlUnderlineStyleNone) return;
    looks.underlining = twice ? forms::Underlining::Double : forms::Underlining::Single;
    looks.underlines_box =
        style == excel::xlUnderlineStyleSingleAccounting || style == excel::xlUnderlineStyleDoubleAccounting;
}

Dash dash_of(std::int32_t style, std::int32_t weight) {
    switch (style) {
        case excel::xlContinuous:
            return weight == excel::xlHairline ? Dash::Dots : Dash::Solid;
        case excel::xlDash:
            return Dash::Dashes;
        case excel::xlDot:
            return Dash::Dots;
        case excel::xlDashDot:
        case excel::xlSlantDashDot:
            return Dash::DashDot;
        case excel::xlDashDotDot:
            return Dash::DashDotDot;
        case excel::xlDouble:
            return Dash::Double;
        default:
            return Dash::None;
    }
}

double width_of(std::int32_t weight) {
    switch (weight) {
        case excel::xlHairline:
            return 0.5;
        case excel::xlMedium:
            return 1.5;
        case excel::xlThick:
            return 2.25;
        default:
            return 0.75;
    }
}

void add_edges(Looks& looks, const StyleFields& style) {
    // In the order in which samples have them.
    constexpr std::array<bool StyleFields::*, 4> sides{&StyleFields::BorderLeft, &StyleFields::BorderTop,
                                                       &StyleFields::BorderRight, &StyleFields::BorderBottom};
    const forms::Edge edge{dash_of(style.BorderStyle, style.BorderWeight), width_of(style.BorderWeight),
                           style.BorderColor};
    for (std::size_t i = 0; i < sides.size(); ++i) {
        if (style.*sides[i]) looks.edges[i] = edge;
    }
}

}  // namespace

std::string_view sample_for(std::string_view number_format) {
    const NumberFormat format(number_format);
    if (format.kind() == number_format::FormatKind::text) return text_sample;
    return format.is_date_or_time() ? date_sample : number_sample;
}

std::string shown_text(const core::SharedState& shared, std::string_view number_format, std::string_view value) {
    return shown(shared, number_format, value).text;
}

Looks sample_of(const core::SharedState& shared, const StyleFields& style, std::string_view value) {
    StyleFields seen;  // what is left alone is as nobody formatted it
    const auto take = [&](bool transparent, auto StyleFields::*... members) {
        if (!transparent) ((seen.*members = style.*members), ...);
    };
    using S = StyleFields;
    take(style.bTransNumberFormat, &S::NumberFormat);
    take(style.bTransFontSetting, &S::FontName);
    take(style.bTransFontStyle, &S::Bold, &S::Italics);
    take(style.bTransFontSize, &S::Size);
    take(style.bTransUnderline, &S::Underline);
    take(style.bTransFontColor, &S::FontColor);
    take(style.bTransCellColor, &S::CellColor);
    take(style.bTransHorizontalAlignment, &S::HorizontalAlignment);
    take(style.bTransVerticalAlignment, &S::VerticalAlignment);
    take(style.bTransOrientation, &S::Orientation);
    take(style.bTransIndents, &S::Indents);
    take(style.bTransShrinkToFit, &S::ShrinkToFit);
    take(style.bTransWrapTest, &S::WrapText);
    take(style.bTransStrikeThrough, &S::FontStrikeThrough);
    take(style.bTransBorders, &S::BorderStyle, &S::BorderWeight, &S::BorderColor, &S::BorderLeft, &S::BorderTop,
         &S::BorderRight, &S::BorderBottom);

    const auto rendered = shown(shared, seen.NumberFormat, value);
    Looks looks;
    looks.text = rendered.text;
    looks.font = seen.FontName;
    looks.size = seen.Size;
    looks.bold = seen.Bold;
    looks.italic = seen.Italics;
    looks.struck = seen.FontStrikeThrough;
    underline(looks, seen.Underline);
    looks.color = seen.FontColor;
    // A color of the number format wins over the font's.
    const automation::ResumeNext attempt(shared.trace);
    if (rendered.colour) {
        attempt.assign(looks.color, [&] {
            return excel::Application(shared.application).ActiveWorkbook().Colors(*rendered.colour);
        });
    }
    if (seen.CellColor != styles::no_fill) looks.fill = seen.CellColor;
    looks.across = across_of(seen.HorizontalAlignment, typed_number(shared, automation::trimmed(value)).has_value());
    looks.down = down_of(seen.VerticalAlignment);
    looks.inset = seen.Indents * points_of_indent;
    turn(looks, seen.Orientation);
    looks.repeats = seen.HorizontalAlignment == excel::xlFill;
    looks.wraps = seen.WrapText || seen.HorizontalAlignment == excel::xlJustify ||
                  seen.HorizontalAlignment == excel::xlDistributed;
    looks.shrinks = seen.ShrinkToFit;
    add_edges(looks, seen);
    return looks;
}

}  // namespace kestrune::settings
