#include "styles/StyleLibrary.h"

#include <array>

#include "styles/StyleDesign.h"

namespace kestrune::styles {
namespace {

using namespace excel;

// The colours of the library. All are entries of the default palette, so a cell keeps them unchanged.
constexpr PaletteColor black{0x000000, 1};
constexpr PaletteColor white{0xFFFFFF, 2};
constexpr PaletteColor red{0x0000FF, 3};
constexpr PaletteColor blue{0xFF0000, 5};
constexpr PaletteColor yellow{0x00FFFF, 6};
constexpr PaletteColor green{0x008000, 10};
constexpr PaletteColor dark_blue{0x800000, 11};
constexpr PaletteColor light_gray{0xC0C0C0, 15};
constexpr PaletteColor dark_gray{0x808080, 16};
constexpr PaletteColor light_yellow{0x99FFFF, 36};
constexpr PaletteColor light_blue{0xFFCC99, 37};
constexpr PaletteColor orange{0x0099FF, 45};
constexpr PaletteColor unfilled{no_fill, xlNone};

constexpr BorderDesign no_border{};
constexpr BorderDesign solid_bottom{xlContinuous, xlThin, "B"};

// The families. Each carries only what its name says, so that styles of several families add up on a
// cell: a currency leaves fonts, colours and borders as they are, a background leaves the number.
//   number           the number format
//   underline, face  the underline; the font's name
//   horizontal, ...  one alignment
//   fill             the fill
//   border           the border of all four sides
//   header           everything but the number format
//   column_header    font, alignments, wrapping and border; no fill
//   label            font, indent and horizontal alignment
//   highlight        font colour and fill
//   standard         font style and colour, fill and border; a role that a cell plays in a model
constexpr StyleDesign number(std::string_view format) { return {.number_format = format}; }
constexpr StyleDesign underline(std::int32_t kind) { return {.underline = kind}; }
constexpr StyleDesign face(std::string_view name) { return {.font_name = name}; }
constexpr StyleDesign horizontal(std::int32_t alignment) { return {.horizontal = alignment}; }
constexpr StyleDesign vertical(std::int32_t alignment) { return {.vertical = alignment}; }
constexpr StyleDesign wrapped(bool wrap) { return {.wrap = wrap}; }
constexpr StyleDesign fill(PaletteColor color) { return {.fill = color}; }
constexpr StyleDesign border(std::int32_t style, std::int32_t weight, std::string_view sides, bool internal = false) {
    return {.border = BorderDesign{style, weight, sides, internal}};
}
constexpr StyleDesign header(std::int32_t size, PaletteColor color, PaletteColor background) {
    return {.font_name = "Arial",
            .font_style = FontStyle::bold,
            .size = size,
            .underline = xlUnderlineStyleNone,
            .font_color = color,
            .fill = background,
            .indents = 0,
            .horizontal = xlLeft,
            .vertical = xlCenter,
            .orientation = xlHorizontal,
            .shrink = false,
            .wrap = false,
            .strike = false,
            .border = no_border};
}
constexpr StyleDesign column_header(FontStyle style, BorderDesign lines) {
    return {.font_name = "Arial",
            .font_style = style,
            .size = 10,
            .underline = xlUnderlineStyleNone,
            .font_color = black,
            .indents = 0,
            .horizontal = xlCenter,
            .vertical = xlBottom,
            .wrap = true,
            .border = lines};
}
constexpr StyleDesign label(std::int32_t size, FontStyle style, PaletteColor color, std::int32_t alignment,
                            std::int32_t indents) {
    return {.font_name = "Arial",
            .font_style = style,
            .size = size,
            .font_color = color,
            .indents = indents,
            .horizontal = alignment};
}
constexpr StyleDesign highlight(PaletteColor color, PaletteColor background) {
    return {.font_color = color, .fill = background};
}
constexpr StyleDesign standard(FontStyle style, PaletteColor color, PaletteColor background, BorderDesign lines) {
    return {.font_style = style, .font_color = color, .fill = background, .border = lines};
}

struct Row {
    std::string_view name;
    std::int32_t category;
    StyleDesign design;
};

// Numbers of no decimals are short, of one medium, longer ones and fixed layouts long.
using namespace category;

// Format codes as Excel reports them back, literals quoted: a style is recognised by its exact code.
// clang-format off
constexpr std::array<Row, 129> library{{
    // Numbers
    {"BR General",                           short_number,  number("General")},
    {"BR No Decimals",                       short_number,  number("#,##0_);(#,##0)")},
    {"BR One Decimal",                       medium_number, number("#,##0.0_);(#,##0.0)")},
    {"BR Two Decimals",                      long_number,   number("#,##0.00_);(#,##0.00)")},
    {"BR Three Decimals",                    long_number,   number("#,##0.000_);(#,##0.000)")},
    {"BR Accounting No Decimals",            short_number,  number("_(* #,##0_);_(* (#,##0);_(* \"-\"_);_(@_)")},
    {"BR Accounting Two Decimals",           long_number,   number("_(* #,##0.00_);_(* (#,##0.00);_(* \"-\"??_);_(@_)")},
    {"BR Thousands",                         short_number,  number("#,##0,_);(#,##0,)")},
    {"BR Millions One Decimal",              medium_number, number("#,##0.0,,_);(#,##0.0,,)")},
    {"BR Fraction 1",                        short_number,  number("# ?/?")},
    {"BR Fraction 2",                        medium_number, number("# ?\?/??")},
    {"BR Fraction 3",                        long_number,   number("# ??\?/???")},
    {"BR Halves",                            short_number,  number("# ?/2")},
    {"BR Thirds",                            short_number,  number("# ?/3")},
    {"BR Quarters",                          short_number,  number("# ?/4")},
    {"BR Eighths",                           short_number,  number("# ?/8")},
    {"BR Tenths",                            medium_number, number("# ?/10")},
    {"BR Sixteenths",                        medium_number, number("# ?/16")},
    {"BR Thirty-seconds",                    medium_number, number("# ?/32")},
    {"BR Hundredths",                        long_number,   number("# ?/100")},
    {"BR Scientific One Decimal",            medium_number, number("0.0E+00")},
    {"BR Scientific Two Decimals",           long_number,   number("0.00E+00")},
    {"BR Scientific Three Decimals",         long_number,   number("0.000E+00")},
    {"BR Off",                               short_number,  number(";;;")},  // shows nothing

    // Currencies
    {"BR Local No Decimals",                 short_number,  number("$#,##0_);($#,##0)")},
    {"BR Local One Decimal",                 medium_number, number("$#,##0.0_);($#,##0.0)")},
    {"BR Local Two Decimals",                long_number,   number("$#,##0.00_);($#,##0.00)")},
    {"BR Local Accounting",                  long_number,   number("_($* #,##0.00_);_($* (#,##0.00);_($* \"-\"??_);_(@_)")},
    {"BR US Dollar No Decimals",             short_number,  number("[$$-409]#,##0_);([$$-409]#,##0)")},
    {"BR US Dollar One Decimal",             medium_number, number("[$$-409]#,##0.0_);([$$-409]#,##0.0)")},
    {"BR US Dollar Two Decimals",            long_number,   number("[$$-409]#,##0.00_);([$$-409]#,##0.00)")},
    {"BR US Dollar Accounting",              long_number,   number("_([$$-409]* #,##0.00_);_([$$-409]* (#,##0.00);_([$$-409]* \"-\"??_);_(@_)")},
    {"BR British Pounds",                    long_number,   number("[$£-809]#,##0.00_);([$£-809]#,##0.00)")},
    {"BR British Pounds Accounting",         long_number,   number("_([$£-809]* #,##0.00_);_([$£-809]* (#,##0.00);_([$£-809]* \"-\"??_);_(@_)")},
    {"BR Euros (Before)",                    long_number,   number("[$€-2] #,##0.00_);([$€-2] #,##0.00)")},
    {"BR Euros (After)",                     long_number,   number("#,##0.00 [$€-1]_);(#,##0.00 [$€-1])")},
    {"BR Euros Accounting",                  long_number,   number("_([$€-2]* #,##0.00_);_([$€-2]* (#,##0.00);_([$€-2]* \"-\"??_);_(@_)")},
    {"BR Japanese Yen",                      short_number,  number("[$¥-411]#,##0_);([$¥-411]#,##0)")},
    {"BR Japanese Yen Accounting",           short_number,  number("_([$¥-411]* #,##0_);_([$¥-411]* (#,##0);_([$¥-411]* \"-\"_);_(@_)")},
    {"BR Swiss Francs",                      long_number,   number("[$CHF-807] #,##0.00_);([$CHF-807] #,##0.00)")},
    {"BR Canadian Dollars",                  long_number,   number("[$C$-1009]#,##0.00_);([$C$-1009]#,##0.00)")},
    {"BR Spanish Pesetas",                   short_number,  number("#,##0 [$Pts-C0A]_);(#,##0 [$Pts-C0A])")},

    // Percentages and multiples
    {"BR Percent No Decimals",               short_number,  number("0%_);(0%)")},
    {"BR Percent One Decimal",               medium_number, number("0.0%_);(0.0%)")},
    {"BR Percent Two Decimals",              long_number,   number("0.00%_);(0.00%)")},
    {"BR Basis Points",                      short_number,  number("#,##0\" bp\"_);(#,##0\" bp\")")},
    {"BR Multiple No Decimals",              short_number,  number("#,##0\"x\"_);(#,##0\"x\")")},
    {"BR Multiple Space No Decimals",        short_number,  number("#,##0\" x\"_);(#,##0\" x\")")},
    {"BR Multiple One Decimal",              medium_number, number("#,##0.0\"x\"_);(#,##0.0\"x\")")},
    {"BR Multiple Space One Decimal",        medium_number, number("#,##0.0\" x\"_);(#,##0.0\" x\")")},
    {"BR Multiple Two Decimals",             long_number,   number("#,##0.00\"x\"_);(#,##0.00\"x\")")},
    {"BR Multiple Space Two Decimals",       long_number,   number("#,##0.00\" x\"_);(#,##0.00\" x\")")},

    // Dates and times
    {"BR Date Short 1 (US)",                 date,          number("m/d/yyyy")},
    {"BR Date Short 2 (US)",                 date,          number("mm/dd/yy")},
    {"BR Date Short (European)",             date,          number("dd/mm/yyyy")},
    {"BR Date ISO",                          date,          number("yyyy-mm-dd")},
    {"BR Month Year",                        date,          number("mmm-yy")},
    {"BR Year Only",                         date,          number("yyyy")},
    {"BR Date Medium",                       date,          number("d-mmm-yyyy")},
    {"BR Date Long",                         date,          number("mmmm d, yyyy")},
    {"BR Date Full",                         date,          number("dddd, mmmm d, yyyy")},
    {"BR Date Time",                         date,          number("m/d/yyyy h:mm")},
    {"BR Time",                              date,          number("h:mm AM/PM")},
    {"BR Elapsed Time",                      date,          number("[h]:mm")},

    // Flags: 1 and 0 in words
    {"BR Yes/No",                            text,          number("\"Yes\";\"Yes\";\"No\"")},
    {"BR Y/N",                               text,          number("\"Y\";\"Y\";\"N\"")},
    {"BR On/Off",                            text,          number("\"On\";\"On\";\"Off\"")},
    {"BR True/False",                        text,          number("\"True\";\"True\";\"False\"")},
    {"BR Set/Not Set",                       text,          number("\"Set\";\"Set\";\"Not Set\"")},
    {"BR Text",                              text,          number("@")},

    // Underlines; the fancy ones leave a gap below figures and run through the cell
    {"BR Underline",                         text,          underline(xlUnderlineStyleSingle)},
    {"BR Fancy Underline",                   text,          underline(xlUnderlineStyleSingleAccounting)},
    {"BR Double Underline",                  text,          underline(xlUnderlineStyleDouble)},
    {"BR Double Fancy Underline",            text,          underline(xlUnderlineStyleDoubleAccounting)},
    {"BR No Underline",                      text,          underline(xlUnderlineStyleNone)},

    // Alignments
    {"BR HAlign General",                    text,          horizontal(xlGeneral)},
    {"BR HAlign Left",                       text,          horizontal(xlLeft)},
    {"BR HAlign Center",                     text,          horizontal(xlCenter)},
    {"BR HAlign Right",                      text,          horizontal(xlRight)},
    {"BR HAlign Justify",                    text,          horizontal(xlJustify)},
    {"BR HAlign Center Across",              text,          horizontal(xlCenterAcrossSelection)},
    {"BR HAlign Fill",                       text,          horizontal(xlFill)},
    {"BR VAlign Top",                        text,          vertical(xlTop)},
    {"BR VAlign Center",                     text,          vertical(xlCenter)},
    {"BR VAlign Justify",                    text,          vertical(xlJustify)},
    {"BR VAlign Bottom",                     text,          vertical(xlBottom)},
    {"BR Wrap Text",                         text,          wrapped(true)},
    {"BR No Wrap Text",                      text,          wrapped(false)},

    // Backgrounds
    {"BR Light Yellow Background",           text,          fill(light_yellow)},
    {"BR Light Blue Background",             text,          fill(light_blue)},
    {"BR Gray Background",                   text,          fill(light_gray)},
    {"BR Yellow Background",                 text,          fill(yellow)},
    {"BR White Background",                  text,          fill(unfilled)},

    // Borders: round the whole selection, but for the grid
    {"BR Border Solid Box",                  text,          border(xlContinuous, xlThin,  "LTBR")},
    {"BR Border Dash Box",                   text,          border(xlDash,       xlThin,  "LTBR")},
    {"BR Border Double Box",                 text,          border(xlDouble,     xlThick, "LTBR")},
    {"BR Border Grid",                       text,          border(xlContinuous, xlThin,  "LTBR", true)},
    {"BR Border Solid Bottom",               text,          border(xlContinuous, xlThin,  "B")},
    {"BR Border Solid Top Bottom",           text,          border(xlContinuous, xlThin,  "TB")},
    {"BR Border None",                       text,          border(xlNone,       xlThin,  "")},

    // Headers, labels and highlights
    {"BR Header",                            text,          header(14, black, unfilled)},
    {"BR Header White on Black",             text,          header(14, white, black)},
    {"BR Header on Blue",                    text,          header(14, white, dark_blue)},
    {"BR Header Small",                      text,          header(10, black, unfilled)},
    {"BR Header Small White on Black",       text,          header(10, white, black)},
    {"BR Header Small on Blue",              text,          header(10, white, dark_blue)},
    {"BR Column Header",                     text,          column_header(FontStyle::bold,        solid_bottom)},
    {"BR Column Header Italics",             text,          column_header(FontStyle::bold_italic, solid_bottom)},
    {"BR Column Header Double",              text,          column_header(FontStyle::bold,        {xlDouble,     xlThick, "B"})},
    {"BR Column Header Border",              text,          column_header(FontStyle::bold,        {xlContinuous, xlThin,  "LTBR", true})},
    {"BR Primary Row Label",                 text,          label(10, FontStyle::bold,    black,     xlLeft,   0)},
    {"BR Secondary Row Label",               text,          label(10, FontStyle::regular, black,     xlLeft,   1)},
    {"BR Tertiary Row Label",                text,          label(10, FontStyle::italic,  black,     xlLeft,   2)},
    {"BR Notes",                             text,          label( 8, FontStyle::italic,  dark_gray, xlLeft,   0)},
    {"BR Notes Center",                      text,          label( 8, FontStyle::italic,  dark_gray, xlCenter, 0)},
    {"BR Highlight Black on Yellow",         text,          highlight(black, yellow)},
    {"BR Highlight Red on Yellow",           text,          highlight(red,   yellow)},
    {"BR Highlight Black on Blue",           text,          highlight(black, light_blue)},
    {"BR Highlight Black on Orange",         text,          highlight(black, orange)},

    // Fonts
    {"BR Arial",                             text,          face("Arial")},
    {"BR Helvetica",                         text,          face("Helvetica")},
    {"BR Courier New",                       text,          face("Courier New")},
    {"BR Courier",                           text,          face("Courier")},
    {"BR Times New Roman",                   text,          face("Times New Roman")},

    // The parts that cells play in a model
    {"BR Standard Input",                    medium_number, standard(FontStyle::regular, blue,  light_yellow, no_border)},
    {"BR Standard Calculation",              medium_number, standard(FontStyle::regular, black, unfilled,     no_border)},
    {"BR Standard Link",                     medium_number, standard(FontStyle::regular, green, unfilled,     no_border)},
    {"BR Standard Subtotal",                 medium_number, standard(FontStyle::bold,    black, unfilled,     {xlContinuous, xlThin,  "T", true})},
    {"BR Standard Total",                    medium_number, standard(FontStyle::bold,    black, unfilled,     {xlDouble,     xlThick, "B", true})},
}};
// clang-format on

}  // namespace

StylesRef built_in_styles() {
    auto styles = std::make_shared<cStyles>();
    for (const Row& row : library) styles->Add(std::make_shared<cStyle>(fields_of(row.name, row.category, row.design)));
    styles->SetAccessLevels();
    return styles;
}

}  // namespace kestrune::styles
