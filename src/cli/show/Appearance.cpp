#include "cli/show/Appearance.h"

#include <algorithm>

#include "host/model/TextWidth.h"
#include "host/objects/ErrorValues.h"

namespace kestrune::cli {
namespace {

// The alignment that General stands for: texts left, numbers right, truth values and errors in the middle.
host::Horizontal shown_alignment(host::Horizontal horizontal, host::CellKind kind) {
    if (horizontal != host::Horizontal::General) return horizontal;
    switch (kind) {
        case host::CellKind::Number:
            return host::Horizontal::Right;
        case host::CellKind::Boolean:
        case host::CellKind::Error:
            return host::Horizontal::Center;
        default:
            return host::Horizontal::Left;
    }
}

}  // namespace

const number_format::NumberFormat& SheetAppearance::format_of(host::StyleId style) {
    const std::uint32_t number = workbook_.styles.formats[style].number_format;
    const auto known = formats_.find(number);
    if (known != formats_.end()) return known->second;
    return formats_.try_emplace(number, workbook_.styles.number_format(number)).first->second;
}

void SheetAppearance::write_text(Appearance& look, formula::Position position, host::StyleId style) {
    const host::CellContent content = sheet_.content_at(position);
    look.kind = content.kind;
    const number_format::NumberFormat& format = format_of(style);
    number_format::Rendered shown;
    switch (content.kind) {
        case host::CellKind::Blank: {
            // A formula of ours has no value yet; Excel works it out when it opens the file.
            const std::string formula = sheet_.formula_at(position);
            if (!formula.empty()) {
                shown.text = "=" + formula;
                look.kind = host::CellKind::String;
            }
            break;
        }
        case host::CellKind::Number:
            shown = format.render(content.number, {.date1904 = workbook_.date1904, .width = std::nullopt});
            fit_number(shown, content.number, position, style);
            break;
        case host::CellKind::Boolean:
            shown = format.render_boolean(content.boolean);
            break;
        case host::CellKind::Error:
            shown.text = host::text_of_error(content.error);
            break;
        case host::CellKind::String:
            shown = format.render_text(content.text);
            break;
    }
    look.text = std::move(shown.text);
    look.blank = look.text.empty();
    look.fill_at = shown.fill_at;
    if (shown.colour) look.font_color = workbook_.palette[static_cast<std::size_t>(*shown.colour - 1)];
}

void SheetAppearance::fit_number(number_format::Rendered& shown, double value, formula::Position position,
                                 host::StyleId style) {
    const host::Alignment& alignment = workbook_.styles.formats[style].alignment;
    if (alignment.shrink || alignment.rotation != 0) return;
    const auto merged = sheet_.merge_at(position);
    const std::int32_t last_column = merged ? merged->last_column : position.column;
    double room = -host::cell_padding;
    for (std::int32_t column = position.column; column <= last_column; ++column) room += sheet_.column_pixels(column);
    const host::Font& font = workbook_.styles.font_of(style);
    // Widths are estimates: in doubt a number is shown.
    constexpr double doubt = 1.1;
    if (room <= 0 || host::text_pixels(shown.text, font) <= room * doubt) return;
    const int digits = static_cast<int>(room / host::text_pixels("0", font));
    shown = format_of(style).render(value, {.date1904 = workbook_.date1904, .width = digits});
    if (!shown.text.empty() && host::text_pixels(shown.text, font) <= room * doubt) return;
    shown = {};
    shown.text = std::string(static_cast<std::size_t>(std::max(digits, 1)), '#');
}

Appearance SheetAppearance::at(formula::Position position) {
    Appearance look;
    const host::StyleId style = sheet_.style_at(position);
    const host::StyleTable& styles = workbook_.styles;
    const host::Font& font = styles.font_of(style);
    look.font = &font;
    look.bold = font.bold;
    look.italic = font.italic;
    look.strike = font.strike;
    look.underline = font.underline;
    look.font_color = workbook_.rgb_of(font.color, 0);
    look.alignment = styles.formats[style].alignment;
    lay_fill(look, styles.fill_of(style));
    write_text(look, position, style);
    look.horizontal = shown_alignment(look.alignment.horizontal, look.kind);
    const auto line = [&](host::Edge edge) {
        const host::Line drawn = sheet_.edge_line(position, edge);
        return VisibleLine{drawn.style, workbook_.rgb_of(drawn.color, 0)};
    };
    look.left = line(host::Edge::Left);
    look.top = line(host::Edge::Top);
    look.right = line(host::Edge::Right);
    look.bottom = line(host::Edge::Bottom);
    lay_conditional_formats(look, position);
    return look;
}

void SheetAppearance::lay_fill(Appearance& look, const host::Fill& fill) const {
    if (fill.pattern == host::Pattern::None) return;
    const bool solid = fill.pattern == host::Pattern::Solid;
    // A pattern of dots or lines reads as its background from afar.
    const host::Color& color = solid ? fill.foreground : fill.background;
    look.fill = workbook_.rgb_of(color, 0xFFFFFF);
}

void SheetAppearance::lay_conditional_formats(Appearance& look, formula::Position position) {
    // The first rule that says something of a component has it.
    bool bold = false, italic = false, strike = false, underline = false, font_color = false, fill = false;
    for (const host::DifferentialFormat* format : conditions_.at(position).formats) {
        const auto take = [](bool& taken, const auto& wanted, auto set) {
            if (taken || !wanted) return;
            set(*wanted);
            taken = true;
        };
        take(bold, format->bold, [&](bool value) { look.bold = value; });
        take(italic, format->italic, [&](bool value) { look.italic = value; });
        take(strike, format->strike, [&](bool value) { look.strike = value; });
        take(underline, format->underline, [&](host::Underline value) { look.underline = value; });
        take(font_color, format->font_color,
             [&](const host::Color& value) { look.font_color = workbook_.rgb_of(value, 0); });
        take(fill, format->fill, [&](const host::Fill& value) {
            // In these formats a solid fill names its colour as the background.
            const bool background = value.background.kind != host::Color::Kind::None;
            look.fill = workbook_.rgb_of(background ? value.background : value.foreground, 0xFFFFFF);
        });
    }
}

}  // namespace kestrune::cli
