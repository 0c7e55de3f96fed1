#include "settings/Fields.h"

#include <array>
#include <vector>

namespace kestrune::settings {

using styles::StyleFields;

namespace {

constexpr auto interval_kinds = std::to_array<std::string_view>({"INTERVAL", "ALL"});
constexpr auto rules = std::to_array<std::string_view>({"FILL", "ALWAYS", "INTERVAL"});
constexpr auto date_units = std::to_array<std::string_view>({"d", "m", "yyyy"});

}  // namespace

template <>
std::span<const Field<StyleFields>> fields() {
    using S = StyleFields;
    static constexpr auto rows = std::to_array<Field<S>>({
        {"FriendlyName", &S::FriendlyName},
        {"NumberFormat", &S::NumberFormat},
        {"FontName", &S::FontName},
        {"Size", &S::Size},
        {"Bold", &S::Bold},
        {"Italics", &S::Italics},
        {"Underline", &S::Underline},
        {"FontColor", &S::FontColor, Sense::color},
        {"AsFontColor", &S::AsFontColor, Sense::color},
        {"CellColor", &S::CellColor, Sense::color},
        {"AsCellColorIndex", &S::AsCellColorIndex},
        {"HorizontalAlignment", &S::HorizontalAlignment},
        {"VerticalAlignment", &S::VerticalAlignment},
        {"Orientation", &S::Orientation},
        {"Indents", &S::Indents},
        {"ShrinkToFit", &S::ShrinkToFit},
        {"WrapText", &S::WrapText},
        {"FontStrikeThrough", &S::FontStrikeThrough},
        {"AccessLevel", &S::AccessLevel},
        {"Comments", &S::Comments},
        {"BorderStyle", &S::BorderStyle},
        {"BorderWeight", &S::BorderWeight},
        {"BorderColor", &S::BorderColor, Sense::color},
        {"AsBorderColorIndex", &S::AsBorderColorIndex},
        {"BorderTop", &S::BorderTop},
        {"BorderBottom", &S::BorderBottom},
        {"BorderLeft", &S::BorderLeft},
        {"BorderRight", &S::BorderRight},
        {"BordersInternal", &S::BordersInternal},
        {"bTransNumberFormat", &S::bTransNumberFormat},
        {"bTransFontSetting", &S::bTransFontSetting},
        {"bTransFontStyle", &S::bTransFontStyle},
        {"bTransFontSize", &S::bTransFontSize},
        {"bTransUnderline", &S::bTransUnderline},
        {"bTransFontColor", &S::bTransFontColor},
        {"bTransCellColor", &S::bTransCellColor},
        {"bTransHorizontalAlignment", &S::bTransHorizontalAlignment},
        {"bTransVerticalAlignment", &S::bTransVerticalAlignment},
        {"bTransOrientation", &S::bTransOrientation},
        {"bTransIndents", &S::bTransIndents},
        {"bTransShrinkToFit", &S::bTransShrinkToFit},
        {"bTransWrapTest", &S::bTransWrapTest},
        {"bTransStrikeThrough", &S::bTransStrikeThrough},
        {"bTransBorders", &S::bTransBorders},
        {"Category", &S::Category},
    });
    return rows;
}

template <>
std::span<const Field<cUserSettings>> fields() {
    using U = cUserSettings;
    static const auto rows = [] {
        std::vector<Field<U>> list{
            {"BRPaintbrushStyle", &U::BRPaintbrushStyle, Sense::style_name},
            {"SheetStyle", &U::SheetStyle, Sense::style_name},
            {"ErrorMsg", &U::ErrorMsg},
            {"ZoomInterval", &U::ZoomInterval},
        };
        for (const core::AutoColorField& field : core::auto_color_fields) {
            const bool is_color = std::holds_alternative<std::int32_t core::AutoColorSettings::*>(field.member);
            list.push_back({field.name, &U::bAutoColorOn, is_color ? Sense::color : Sense::plain});
            std::visit([&](auto member) { list.back().member = member; }, field.member);
        }
        list.push_back({"TrainingModule", &U::TrainingModule});
        return list;
    }();
    return rows;
}

template <>
std::span<const Field<SmartCopyOptions>> fields() {
    using S = SmartCopyOptions;
    static constexpr auto rows = std::to_array<Field<S>>({
        {"Intervals", &S::Intervals, Sense::plain, interval_kinds},
        {"IntervalValues", &S::IntervalValues},
        {"Rule", &S::Rule, Sense::plain, rules},
        {"Skip", &S::Skip},
        {"Formulas", &S::Formulas},
        {"Values", &S::Values},
        {"Text", &S::Text},
        {"Value", &S::Value},
        {"Format", &S::Format},
        {"Adjust", &S::Adjust},
        {"Show", &S::Show},
    });
    return rows;
}

template <>
std::span<const Field<SmartFillDatesOptions>> fields() {
    using S = SmartFillDatesOptions;
    static constexpr auto rows = std::to_array<Field<S>>({
        {"StartDate", &S::StartDate},
        {"EndDate", &S::EndDate},
        {"DateUnit", &S::DateUnit, Sense::plain, date_units},
        {"Style", &S::Style, Sense::style_name},
        {"Across", &S::Across},
        {"Spacing", &S::Spacing},
        {"Show", &S::Show},
    });
    return rows;
}

template <>
std::span<const Field<SmartFillNumbersOptions>> fields() {
    using S = SmartFillNumbersOptions;
    static constexpr auto rows = std::to_array<Field<S>>({
        {"StartValue", &S::StartValue},
        {"EndValue", &S::EndValue},
        {"Interval", &S::Interval},
        {"Type", &S::Type},
        {"Style", &S::Style, Sense::style_name},
        {"Across", &S::Across},
        {"Spacing", &S::Spacing},
        {"Show", &S::Show},
    });
    return rows;
}

template <>
std::span<const Field<SmartFmlaRowSpacingOptions>> fields() {
    using S = SmartFmlaRowSpacingOptions;
    static constexpr auto rows =
        std::to_array<Field<S>>({{"FmlaRows", &S::FmlaRows}, {"ReferenceRows", &S::ReferenceRows}, {"Show", &S::Show}});
    return rows;
}

template <>
std::span<const Field<SmartFmlaColSpacingOptions>> fields() {
    using S = SmartFmlaColSpacingOptions;
    static constexpr auto rows =
        std::to_array<Field<S>>({{"FmlaCols", &S::FmlaCols}, {"ReferenceCols", &S::ReferenceCols}, {"Show", &S::Show}});
    return rows;
}

}  // namespace kestrune::settings
