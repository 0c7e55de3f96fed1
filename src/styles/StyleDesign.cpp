#include "styles/StyleDesign.h"

namespace kestrune::styles {
namespace {

// Gives a field its value, or makes its component transparent.
template <class T, class Design>
void set(T& field, bool& transparent, const std::optional<Design>& value) {
    transparent = !value;
    if (value) field = *value;
}

void set(std::string& field, bool& transparent, std::string_view value) {
    transparent = value.empty();
    if (!transparent) field = value;
}

bool bordered(const BorderDesign& border, char side) { return border.sides.find(side) != std::string_view::npos; }

}  // namespace

StyleFields fields_of(std::string_view name, std::int32_t category, const StyleDesign& design) {
    StyleFields fields;
    fields.FriendlyName = name;
    fields.Category = category;
    set(fields.NumberFormat, fields.bTransNumberFormat, design.number_format);
    set(fields.FontName, fields.bTransFontSetting, design.font_name);
    set(fields.Size, fields.bTransFontSize, design.size);
    set(fields.Underline, fields.bTransUnderline, design.underline);
    set(fields.Indents, fields.bTransIndents, design.indents);
    set(fields.HorizontalAlignment, fields.bTransHorizontalAlignment, design.horizontal);
    set(fields.VerticalAlignment, fields.bTransVerticalAlignment, design.vertical);
    set(fields.Orientation, fields.bTransOrientation, design.orientation);
    set(fields.ShrinkToFit, fields.bTransShrinkToFit, design.shrink);
    set(fields.WrapText, fields.bTransWrapTest, design.wrap);
    set(fields.FontStrikeThrough, fields.bTransStrikeThrough, design.strike);

    fields.bTransFontStyle = !design.font_style;
    if (design.font_style) {
        fields.Bold = *design.font_style == FontStyle::bold || *design.font_style == FontStyle::bold_italic;
        fields.Italics = *design.font_style == FontStyle::italic || *design.font_style == FontStyle::bold_italic;
    }
    fields.bTransFontColor = !design.font_color;
    if (design.font_color) fields.FontColor = fields.AsFontColor = design.font_color->color;
    fields.bTransCellColor = !design.fill;
    if (design.fill) {
        fields.CellColor = design.fill->color;
        fields.AsCellColorIndex = design.fill->index;
    }
    fields.bTransBorders = !design.border;
    if (design.border) {
        fields.BorderStyle = design.border->style;
        fields.BorderWeight = design.border->weight;
        fields.AsBorderColorIndex = design.border->style == excel::xlNone ? 0 : 1;  // black
        fields.BorderLeft = bordered(*design.border, 'L');
        fields.BorderTop = bordered(*design.border, 'T');
        fields.BorderBottom = bordered(*design.border, 'B');
        fields.BorderRight = bordered(*design.border, 'R');
        fields.BordersInternal = design.border->internal;
    }
    return fields;
}

}  // namespace kestrune::styles
