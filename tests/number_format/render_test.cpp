#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "number_format/GeneralText.h"
#include "number_format/NumberFormat.h"

namespace kestrune::number_format {
namespace {

struct Case {
    const char* code;
    double value;
    const char* shown;
};

void expect_all(const std::vector<Case>& cases) {
    for (const auto& [code, value, shown] : cases) {
        const NumberFormat format(code);
        EXPECT_EQ(format.error(), "") << code;
        EXPECT_EQ(format.render(value).text, shown) << code << " of " << value;
    }
}

TEST(General, ShowsWhatFitsADefaultCell) {
    const std::vector<std::pair<double, const char*>> cases{
        {0, "0"},
        {-0.0, "0"},
        {1, "1"},
        {-1.5, "-1.5"},
        {1.0 / 3, "0.333333333"},
        {-1.0 / 3, "-0.333333333"},
        {2.0 / 3, "0.666666667"},
        {0.1 + 0.2, "0.3"},
        {1234.56789012, "1234.56789"},
        {1234567890.12, "1234567890"},
        {12345678901, "12345678901"},
        {12345678901.5, "12345678902"},
        {99999999999.7, "1E+11"},
        {100000000000, "1E+11"},
        {123456789012, "1.23457E+11"},
        {-123456789012, "-1.23457E+11"},
        {0.0001, "0.0001"},
        {0.00012345678, "0.000123457"},
        {0.00001, "0.00001"},
        {0.000012345, "0.000012345"},
        {0.000012345678, "1.23457E-05"},
        {1e-10, "1E-10"},
        {1.23456e100, "1.2346E+100"},
        {1e300, "1E+300"},
    };
    for (const auto& [value, shown] : cases) EXPECT_EQ(NumberFormat("General").render(value).text, shown);
}

TEST(General, ShrinksWithTheColumn) {
    EXPECT_EQ(general_text(3.14159265358979, 8), "3.141593");
    EXPECT_EQ(general_text(-3.14159265358979, 8), "-3.14159");
    EXPECT_EQ(general_text(1234567.8, 7), "1234568");
    EXPECT_EQ(general_text(1234567.8, 6), "1E+06");
    EXPECT_EQ(general_text(9.96, 3), "10");
    EXPECT_EQ(general_text(99.6, 2), "");
    const NumberFormat general("General");
    EXPECT_EQ(general.render(123456, {false, 3}).text, "###");
    EXPECT_EQ(NumberFormat("#,##0").render(1234567, {false, 5}).text, "#####");
    EXPECT_TRUE(NumberFormat("#,##0").render(1234567, {false, 5}).overflow);
}

TEST(General, FormulaBarShowsAllDigits) {
    const std::vector<std::pair<double, const char*>> cases{{1234567.89, "1234567.89"},
                                                            {0.1 + 0.2, "0.3"},
                                                            {1e20, "100000000000000000000"},
                                                            {1e21, "1E+21"},
                                                            {123456789012345678, "123456789012346000"},
                                                            {-0.000012345678, "-0.000012345678"},
                                                            {1.23456789012345e-10, "1.23456789012345E-10"}};
    for (const auto& [value, shown] : cases) EXPECT_EQ(full_number_text(value), shown);
}

TEST(Numbers, AreRoundedOnTheirDecimalDigits) {
    expect_all({
        {"0.00", 0.125, "0.13"},
        {"0.00", 1.005, "1.01"},
        {"0.00", -1.005, "-1.01"},
        {"0", 0.5, "1"},
        {"0", 1.5, "2"},
        {"0", 2.5, "3"},
        {"0", 0.49999999999999994, "1"},
        {"0.0", 9.95, "10.0"},
        {"0", 999999999999999.5, "1000000000000000"},
        {"0", 1e20, "100000000000000000000"},
        {"0.00", 1e-300, "0.00"},
        {"0.000000000000000000", 0.1, "0.100000000000000000"},
    });
}

TEST(Numbers, FillTheirPlaceholders) {
    expect_all({
        {"#,##0", 1234567, "1,234,567"},
        {"#,##0", 12, "12"},
        {"#,###", 0, ""},
        {"0000", 12, "0012"},
        {"0,000", 12, "0,012"},
        {"#.##", 0, "."},
        {"#.##", 1.5, "1.5"},
        {"0.0#0", 1, "1.000"},
        {"0.0?", 1.5, "1.5 "},
        {"???.??", 1.5, "  1.5 "},
        {".00", 5.5, "5.50"},
        {"0.", 5, "5."},
        {"000-00-0000", 123456789, "123-45-6789"},
        {"(000) 000-0000", 5551234567, "(555) 123-4567"},
        {"\\c\\c\\c?????0\"aaaa\"0\"bbbb\"000000.00%", -12.3456789, "-ccc     0aaaa0bbbb001234.57%"},
        {"#,##0,", 1234567, "1,235"},
        {"0.0,,\"M\"", 1234567, "1.2M"},
        {"#,##0.0,", 1234567, "1,234.6"},
        {"0%", 0.125, "13%"},
        {"0.0%", -0.1234, "-12.3%"},
        {"0%%", 0.5, "5000%%"},
        {"0.00E+00", 12345, "1.23E+04"},
        {"0.00E-00", 0.00012345, "1.23E-04"},
        {"0.00E-00", 12345, "1.23E04"},
        {"##0.0E+0", 12345, "12.3E+3"},
        {"##0.0E+0", 999960, "1.0E+6"},
        {"0.0E+0", 9.97, "1.0E+1"},
        {"0.00E+00", 0, "0.00E+00"},
        {"0.00E+00", -1e-120, "-1.00E-120"},
        {"[$€-407] #,##0.00", 1234.5, "€ 1,234.50"},
        {"$#,##0.00", -5, "-$5.00"},
        {"\"x\"", -5, "-x"},
        {"General\" kg\"", -1.5, "-1.5 kg"},
        {"@", 1.5, "1.5"},
        {"\"a\"@", 26, "26"},
        {"0\" € \"0", 12, "1 € 2"},
    });
}

TEST(Numbers, ChooseTheirSection) {
    expect_all({
        {"0.0", -0.01, "0.0"},
        {"0.0;-0.0", -0.01, "-0.0"},
        {"0.0;@", -0.01, "-0.0"},
        {"0_);(0)", -5, "(5)"},
        {"0;;", -5, ""},
        {"0;-0;\"zero\"", 0, "zero"},
        {"0;-0;;@", 0, ""},
        {";;;", 5, ""},
        {"[>1000][Red]0.00E+00;General;0.00", 999, "999.00"},
        {"[>100]General;[<100](General);General", -5, "-(5)"},
        {"[>100]General;[<0](General);General", -5, "(5)"},
        {"[<=9999999]###\\-####;\\(###\\)\\ ###\\-####", -12.3, "--12"},
        {"[<=9999999]###\\-####;\\(###\\)\\ ###\\-####", 5551234567, "(555) 123-4567"},
        {"[>=1000000]0.0,,\"M\";[>=1000]0.0,\"K\";0", 1500, "1.5K"},
        {"[>=1000000]0.0,,\"M\";[>=1000]0.0,\"K\";0", -7, "-7"},
        {"[<1]0.00;0", 7, "7"},
        {"[>=0]0;0", -7, "7"},
        {"[=1]\"one\";[=2]\"two\"", 3, "########"},
        {"[>=1000]0.0,\"K\"", 12.5, "12.5"},
        {"[<>0]0", 0, "0"},
    });
}

TEST(Numbers, AccountingHasAFillAndBlanks) {
    const NumberFormat accounting("_($* #,##0.00_);_($* (#,##0.00);_($* \"-\"?\?_);_(@_)");
    EXPECT_EQ(accounting.render(1234.5).text, " $1,234.50 ");
    EXPECT_EQ(accounting.render(-1234.5).text, " $(1,234.50)");
    EXPECT_EQ(accounting.render(0).text, " $-   ");
    EXPECT_EQ(accounting.render_text("n/a").text, " n/a ");
    EXPECT_EQ(accounting.render(0).fill_at, 2U);
    EXPECT_EQ(accounting.render(0).fill, " ");
    EXPECT_EQ(NumberFormat("0").render(5).fill_at, std::nullopt);
}

TEST(Numbers, SectionsBringColours) {
    const NumberFormat format("[Blue]0;[Color 12]-0;[color5]0;[GREEN]@");
    EXPECT_EQ(format.render(1).colour, 5);
    EXPECT_EQ(format.render(-1).colour, 12);
    EXPECT_EQ(format.render(0).colour, 5);
    EXPECT_EQ(format.render_text("x").colour, 4);
    EXPECT_EQ(NumberFormat("0").render(1).colour, std::nullopt);
    EXPECT_EQ(NumberFormat("[Red]yyyy").render(-1).colour, 3);
}

TEST(Fractions, AreNearAndAligned) {
    expect_all({
        {"# ?/?", 0.5, " 1/2"},
        {"# ?/?", 5, "5    "},
        {"# ?/?", 0, "0    "},
        {"# ?/?", -1.25, "-1 1/4"},
        {"# ?\?/?\?", 1.5, "1  1/2 "},
        {"# ?\?/?\?", 123456.789, "123456 15/19"},
        {"# ?\?/?\?", 12345.6789, "12345 55/81"},
        {"# ?/?", 123456.789, "123456 4/5"},
        {"# ?\?/?\?", 0.23, "  3/13"},
        {"# ?\?/?????????", 0.123251512342345, " 480894/3901729  "},
        {"\"s\"?\?/?????????\"e\"", 0.123251512342345, "s480894/3901729  e"},
        {"?/?", 1.5, "3/2"},
        {"0 0/0", 5, "5 0/1"},
        {"?/?", 5551234567, "5551234567/1"},
        {"?/16", 1e12, "16000000000000/16"},
        {"0 ##/##", -0.01, "-0     "},
        {"# ?/16", 0.25, " 4/16"},
        {"?/16", 1.25, "20/16"},
        {"# ?/100", 2.999, "3      "},
        {"#,### ?/10", 1000.1, "1,000 1/10"},
        {"# \"h\" ? \"a\" / \"b\" ?", 1.2, "1 h 1 a / b 5"},
        {"# \"h\" ? \"a\" / \"b\" ?", 1, "1            "},
        {"#\"abded\" ?\?/?\?", 12.3456789, "12abded 28/81"},
    });
}

TEST(Texts, UseTheirSection) {
    struct TextCase {
        const char* code;
        const char* shown;
    };
    for (const auto& [code, shown] : {TextCase{"0.00", "abc"},
                                      {"@", "abc"},
                                      {"0;0;0;\"<\"@\">\"", "<abc>"},
                                      {";;;", ""},
                                      {"\"Haha!\" @ \"Yeah!\"", "Haha! abc Yeah!"},
                                      {"0;@@", "abcabc"},
                                      {"General;General;General;General'", "abc'"},
                                      {"0;-0;", "abc"}})
        EXPECT_EQ(NumberFormat(code).render_text("abc").text, shown) << code;
    EXPECT_EQ(NumberFormat("0;0;0;@").render_boolean(true).text, "TRUE");
}

TEST(Dates, ShowTheirParts) {
    constexpr double moment = 44621.6462268519;  // March 1, 2022, 15:30:34.000
    expect_all({
        {"m/d/yyyy", moment, "3/1/2022"},
        {"dd-mmm-yy", moment, "01-Mar-22"},
        {"dddd, mmmm d, yyyy", moment, "Tuesday, March 1, 2022"},
        {"ddd mmmmm e", moment, "Tue M 2022"},
        {"yyyy-mm-dd hh:mm:ss", moment, "2022-03-01 15:30:34"},
        {"h:mm AM/PM", moment, "3:30 PM"},
        {"hh:mm a/p", moment, "03:30 p"},
        {"mm:ss", moment, "30:34"},
        {"m/d/yyyy h:m", moment, "3/1/2022 15:30"},
        {"h \"o'clock\" m", moment, "15 o'clock 30"},
        {"[$-407]dddd, d. mmmm yyyy", moment, "Dienstag, 1. März 2022"},
        {"[$-F800]dddd\\,\\ mmmm\\ dd\\,\\ yyyy", moment, "Tuesday, March 1, 2022"},
        {"[$-409]mmmm\\ d\\,\\ yyyy;@", moment, "March 1, 2022"},
        {"bbbb", moment, "2565"},
        {"h:mm AM/PM", 0, "12:00 AM"},
        {"h:mm AM/PM", 0.5, "12:00 PM"},
        {"[h]:mm:ss", 1.5, "36:00:00"},
        {"[hh]:mm", 0.05, "01:12"},
        {"[mm]:ss", 0.1, "144:00"},
        {"[s].00", 0.000005, "0.43"},
        {"mm:ss.0", 0.000711458333333333, "01:01.5"},
        {"ss.000", 0.999999999, "00.000"},
        {"m/d/yyyy h:mm", 44621.9999999, "3/2/2022 0:00"},
        {"m/d/yyyy", 44621.9999999, "3/1/2022"},
        {"m/d/yyyy", 0, "1/0/1900"},
        {"m/d/yyyy", 60, "2/29/1900"},
        {"dddd", 1, "Sunday"},
        {"m/d/yyyy", 61, "3/1/1900"},
        {"m/d/yyyy", 2958465, "12/31/9999"},
        {"m/d/yyyy", 2958466, "########"},
        {"m/d/yyyy", -1, "########"},
        {"yyyy;\"old\"", -1, "old"},
        {"[h]:mm;-[h]:mm", -0.5, "-12:00"},
    });
    const NumberFormat date("m/d/yyyy");
    EXPECT_EQ(date.render(0, {true, {}}).text, "1/1/1904");
    EXPECT_EQ(date.render(-1, {true, {}}).text, "-1/2/1904");
    EXPECT_EQ(date.render(2957003, {true, {}}).text, "12/31/9999");
    EXPECT_TRUE(date.render(2957004, {true, {}}).overflow);
    EXPECT_TRUE(date.render(44621, {false, 5}).overflow);
    EXPECT_TRUE(date.render(std::numeric_limits<double>::quiet_NaN()).overflow);
}

}  // namespace
}  // namespace kestrune::number_format
