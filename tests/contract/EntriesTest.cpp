#include "contract/ContractTest.h"

namespace kestrune::contract {
namespace {

constexpr std::int32_t not_available = static_cast<std::int32_t>(0x800A0000 + 2042);

TEST_F(Sure, EntriesAreReadAsTyped) {
    const struct {
        const char* entered;
        Value value;
        const char* format;
    } cases[] = {
        {"12", 12.0, "General"},
        {" -1,234.5 ", -1234.5, "#,##0.00"},
        {"(5)", -5.0, "General"},
        {"1,234", 1234.0, "#,##0"},
        {"1,23", "1,23", "General"},
        {"$1,234.50", 1234.5, "$#,##0.00_);[Red]($#,##0.00)"},
        {"-$7", -7.0, "$#,##0_);[Red]($#,##0)"},
        {"5%", 0.05, "0%"},
        {"12.5%", 0.125, "0.00%"},
        {"1E3", 1000.0, "0.00E+00"},
        {"1 1/2", 1.5, "# ?/?"},
        {"1.2.3", "1.2.3", "General"},
        {"1/31/2024", Date{45322}, "m/d/yyyy"},
        {"2024-01-31", Date{45322}, "m/d/yyyy"},
        {"31-Jan-24", Date{45322}, "d-mmm-yy"},
        {"January 31, 2024", Date{45322}, "d-mmm-yy"},
        {"Jan-2024", Date{45292}, "mmm-yy"},
        {"2/30/2024", "2/30/2024", "General"},
        {"6:00 PM", Date{0.75}, "h:mm AM/PM"},
        {"1/31/2024 12:00", Date{45322.5}, "m/d/yyyy h:mm"},
        {"13:75", "13:75", "General"},
        {"true", true, "General"},
        {"#n/a", Error{not_available}, "General"},
        {"plain", "plain", "General"},
        {"- item", "- item", "General"},
        {"=", "=", "General"},
    };
    for (const auto& [entered, value, format] : cases) {
        const ObjectRef cell = range("B2");
        call(cell, "Clear");
        put(cell, "Value", entered);
        EXPECT_EQ(get(cell, "Value"), value) << entered;
        EXPECT_EQ(get(cell, "NumberFormat"), Value(format)) << entered;
    }
}

TEST_F(Sure, EntriesKeepAFormatThatIsThere) {
    put(range("A1"), "NumberFormat", "0.0");
    put(range("A1"), "Value", "5%");
    EXPECT_EQ(get(range("A1"), "NumberFormat"), Value("0.0"));
    put(range("A2"), "NumberFormat", "@");
    put(range("A2"), "Formula", "=1+1");
    EXPECT_EQ(get(range("A2"), "Value"), Value("=1+1"));
    put(range("A2"), "Value", 12);
    EXPECT_EQ(get(range("A2"), "Value"), Value("12"));
}

TEST_F(Sure, EntriesWithAnApostropheAreTexts) {
    const ObjectRef cell = range("A1");
    put(cell, "Value", "'------");
    EXPECT_EQ(get(cell, "Value"), Value("------"));
    EXPECT_EQ(get(cell, "Formula"), Value("------"));
    EXPECT_EQ(get(cell, "PrefixCharacter"), Value("'"));
    put(cell, "Formula", "'=A1");
    EXPECT_EQ(get(cell, "Formula"), Value("=A1"));
    EXPECT_EQ(get(cell, "HasFormula"), Value(false));
    put(cell, "Value", 7);
    EXPECT_EQ(get(cell, "PrefixCharacter"), Value("")) << "the prefix goes with the text";
    put(cell, "Formula", "");
    EXPECT_EQ(get(cell, "Value"), Value());
}

TEST_F(Sure, ValuesHaveTheirTypes) {
    put(range("A1"), "Value", Date{45322.25});
    EXPECT_EQ(get(range("A1"), "NumberFormat"), Value("m/d/yyyy h:mm"));
    EXPECT_EQ(get(range("A1"), "Value"), Value(Date{45322.25}));
    EXPECT_EQ(get(range("A1"), "Value2"), Value(45322.25));
    EXPECT_EQ(get(range("A1"), "Formula"), Value("45322.25"));
    put(range("A2"), "Value", -4);
    put(range("A2"), "NumberFormat", "m/d/yyyy");
    EXPECT_EQ(get(range("A2"), "Value"), Value(-4.0)) << "no day has this number";
    put(range("A3"), "Value", 1234.5);
    put(range("A3"), "NumberFormat", "$#,##0.00");
    EXPECT_EQ(get(range("A3"), "Value"), Value(1234.5));
    EXPECT_EQ(get(range("A3"), "Text"), Value("$1,234.50"));
    EXPECT_EQ(get(range("A2:A3"), "Text"), Value(Null{}));
    EXPECT_EQ(refused(range("A1"), "Value", std::numeric_limits<double>::infinity()), error_1004);
}

TEST_F(Sure, BlocksFillAndRepeat) {
    put(range("A1:C2"), "Value", block({{1, "x", true}}));
    EXPECT_EQ(get(range("A1:C2"), "Value"), block({{1.0, "x", true}, {1.0, "x", true}}));
    put(range("A1:C2"), "Value", block({{1, 2}, {3, 4}}));
    EXPECT_EQ(get(range("A1:C2"), "Value"),
              block({{1.0, 2.0, Error{not_available}}, {3.0, 4.0, Error{not_available}}}));
    Array flat({0, 2});
    flat.elements() = {"a", Value()};
    put(range("A1:B1"), "Value", flat);
    EXPECT_EQ(get(range("A1:B1"), "Value"), block({{"a", Value()}}));
    put(range("A5:B5"), "Value", range("A2:B2"));
    EXPECT_EQ(get(range("A5:B5"), "Value"), block({{3.0, 4.0}}));
}

TEST_F(Sure, ClearTakesContentsOrFormats) {
    put(range("A1:B2"), "Value", 5);
    put(interior(range("A1:B2")), "ColorIndex", 6);
    call(range("A1"), "ClearContents");
    EXPECT_EQ(get(range("A1"), "Value"), Value());
    EXPECT_EQ(get(interior(range("A1")), "ColorIndex"), Value(6));
    call(range("B2"), "ClearFormats");
    EXPECT_EQ(get(range("B2"), "Value"), Value(5.0));
    EXPECT_EQ(get(interior(range("B2")), "ColorIndex"), Value(xlNone));
    call(range("A:A"), "Clear");
    EXPECT_EQ(get(interior(range("A1")), "ColorIndex"), Value(xlNone));
}

}  // namespace
}  // namespace kestrune::contract
