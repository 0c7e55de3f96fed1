#include "settings/DefaultCycles.h"

#include <array>

namespace kestrune::settings {
namespace {

// BGR colours. All are entries of the default palette, so that fonts keep them unchanged.
constexpr double black = 0x000000;
constexpr double white = 0xFFFFFF;
constexpr double red = 0x0000FF;
constexpr double green = 0x00FF00;
constexpr double blue = 0xFF0000;
constexpr double yellow = 0x00FFFF;
constexpr double gray = 0x808080;
constexpr double light_gray = 0xC0C0C0;
constexpr double orange = 0x0099FF;

}  // namespace

std::span<const DefaultNumericCycle> default_numeric_cycles() {
    using enum NumericCycle;
    static const std::array<DefaultNumericCycle, numeric_cycle_count> rows{{
        {IndentToggle, "Indent SmartCycle", {1, 2, 3, 4, 0}},
        {RightIndentToggle, "Right Indent SmartCycle", {1, 2, 3, 4, 0}},
        {RowHeightToggle, "Row Height SmartCycle", {8, 17, 34}},
        {ColWidthToggle, "Column Width SmartCycle", {5, 15, 64, 150}},
        {MyColorToggle1, "Blue Black SmartCycle", {blue, black}},
        // What AutoColor leaves alone: texts on dark fills, notes, marks. None of the colours that it gives itself,
        // since cells would keep those for ever.
        {MyColorToggle2, "", {white, gray, light_gray, orange}},
        {MyColorToggle3, "My Color SmartCycle 3", {red, green, yellow, black, black}},
        {MyColorToggle4, "My Color SmartCycle 4", {green, yellow, black, black}},
        {MyColorToggle5, "My Color SmartCycle 5", {red, green, yellow, black}},
    }};
    return rows;
}

std::span<const DefaultCycle> default_cycles() {
    using enum StyleCycle;
    static const std::array<DefaultCycle, style_cycle_count> rows{{
        {GeneralStyleToggle,
         "General Number SmartCycle",
         {"BR No Decimals", "BR One Decimal", "BR Two Decimals", "BR Hundredths", "BR Sixteenths",
          "BR Scientific One Decimal", "BR General"}},
        {CurrencyStyleToggle,
         "Currency SmartCycle",
         {"BR US Dollar No Decimals", "BR US Dollar One Decimal", "BR US Dollar Two Decimals",
          "BR US Dollar Accounting", "BR British Pounds", "BR British Pounds Accounting", "BR Euros (Before)",
          "BR Euros Accounting", "BR Japanese Yen", "BR General"}},
        {MultipleSTyleToggle,
         "Multiple SmartCycle",
         {"BR Multiple No Decimals", "BR Multiple Space No Decimals", "BR Multiple One Decimal",
          "BR Multiple Space One Decimal", "BR Multiple Two Decimals", "BR Multiple Space Two Decimals", "BR General"}},
        {DateStyleToggle,
         "Date SmartCycle",
         {"BR Date Short 1 (US)", "BR Date Short 2 (US)", "BR Month Year", "BR Year Only", "BR Date Medium",
          "BR Date Long", "BR Date Full", "BR Date Time", "BR Time", "BR General"}},
        {PercentStyleToggle,
         "Percent SmartCycle",
         {"BR Percent No Decimals", "BR Percent One Decimal", "BR Percent Two Decimals", "BR General"}},
        {BinaryStyleToggle,
         "Binary Number SmartCycle",
         {"BR Yes/No", "BR Y/N", "BR On/Off", "BR True/False", "BR Set/Not Set", "BR General"}},
        {UnderlineStyleToggle,
         "Underline SmartCycle",
         {"BR Underline", "BR Fancy Underline", "BR Double Underline", "BR Double Fancy Underline", "BR No Underline"}},
        {CenterStyleToggle, "Center SmartCycle", {"BR HAlign Center", "BR HAlign Center Across", "BR HAlign General"}},
        {HAlignStyleToggle,
         "Horizontal Alignment SmartCycle",
         {"BR HAlign Left", "BR HAlign Center", "BR HAlign Right", "BR HAlign Justify", "BR HAlign Center Across",
          "BR HAlign Fill"}},
        {VAlignStyleToggle,
         "Vertical Alignment SmartCycle",
         {"BR VAlign Top", "BR VAlign Center", "BR VAlign Justify", "BR VAlign Bottom"}},
        {BorderStyleToggle,
         "Border SmartCycle",
         {"BR Border Solid Box", "BR Border Dash Box", "BR Border Double Box", "BR Border Solid Bottom",
          "BR Border Solid Top Bottom", "BR Border None"}},
        {CellColorStyleToggle,
         "Cell Back Color SmartCycle",
         {"BR Light Yellow Background", "BR Light Blue Background", "BR Gray Background", "BR Yellow Background",
          "BR White Background"}},
        {MyStyleToggle1,
         "My Header SmartCycle",
         {"BR Header", "BR Header White on Black", "BR Header on Blue", "BR Header Small",
          "BR Header Small White on Black", "BR Header Small on Blue"}},
        {MyStyleToggle2,
         "My Column Header SmartCycle",
         {"BR Column Header", "BR Column Header Italics", "BR Column Header Double", "BR Column Header Border"}},
        {MyStyleToggle3,
         "My Label SmartCycle",
         {"BR Primary Row Label", "BR Secondary Row Label", "BR Tertiary Row Label", "BR Notes", "BR Notes Center"}},
        {MyStyleToggle4,
         "My Highlight SmartCycle",
         {"BR Highlight Black on Yellow", "BR Highlight Red on Yellow", "BR Highlight Black on Blue",
          "BR Highlight Black on Orange"}},
        {MyStyleToggle5,
         "My Font SmartCycle",
         {"BR Arial", "BR Helvetica", "BR Courier New", "BR Courier", "BR Times New Roman"}},
        {MyStyleToggle6, "My SmartCycle 6", {}},
        {MyStyleToggle7, "My SmartCycle 7", {}},
        {MyStyleToggle8, "My SmartCycle 8", {}},
        {MyStyleToggle9, "My SmartCycle 9", {}},
        {MyStyleToggle10, "My SmartCycle 10", {}},
        {MyStyleToggle11, "My SmartCycle 11", {}},
        {MyStyleToggle12, "My SmartCycle 12", {}},
        {MyStyleToggle13, "My SmartCycle 13", {}},
        {MyStyleToggle14, "My SmartCycle 14", {}},
        {MyStyleToggle15, "My SmartCycle 15", {}},
    }};
    return rows;
}

}  // namespace kestrune::settings
