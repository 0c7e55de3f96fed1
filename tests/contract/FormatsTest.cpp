#include "contract/ContractTest.h"

namespace kestrune::contract {
namespace {

struct Format {
    const char* part;  // of the range; empty: the range itself
    const char* member;
    Value written;
    Value read;
};

const std::vector<Format>& formats() {
    static const std::vector<Format> all{
        {"Font", "Name", "Arial", "Arial"},
        {"Font", "Size", 10, 10.0},
        {"Font", "Bold", true, true},
        {"Font", "Italic", true, true},
        {"Font", "FontStyle", "Bold Italic", "Bold Italic"},
        {"Font", "Underline", xlUnderlineStyleDoubleAccounting, xlUnderlineStyleDoubleAccounting},
        {"Font", "Strikethrough", true, true},
        {"Font", "Superscript", true, true},
        {"Font", "Color", 0x1234FF, double{0x1234FF}},
        {"Font", "ColorIndex", 5, 5},
        {"Font", "ThemeColor", 5, 5},
        {"Interior", "Color", 65535, 65535.0},
        {"Interior", "ColorIndex", 6, 6},
        {"Interior", "Pattern", 17, 17},
        {"", "NumberFormat", "0.000", "0.000"},
        {"", "HorizontalAlignment", xlCenter, xlCenter},
        {"", "VerticalAlignment", xlTop, xlTop},
        {"", "Orientation", 45, 45},
        {"", "Orientation", -30, -30},
        {"", "Orientation", 90, xlUpward},
        {"", "Orientation", xlVertical, xlVertical},
        {"", "IndentLevel", 3, 3},
        {"", "ShrinkToFit", true, true},
        {"", "WrapText", true, true},
        {"", "Locked", false, false},
        {"", "FormulaHidden", true, true},
        {"", "RowHeight", 30.1, 30.0},
        {"", "ColumnWidth", 10.33, 10.29},
    };
    return all;
}

TEST_F(Sure, FormatsReadBackAsWritten) {
    for (const auto& [part, member, written, read] : formats()) {
        SCOPED_TRACE(member);
        const auto of = [&](const char* cells) { return *part ? object(range(cells), part) : range(cells); };
        put(of("B2:C3,D9"), member, written);
        EXPECT_EQ(get(of("B2:C3,D9"), member), read);
        EXPECT_EQ(get(of("C3"), member), read);
    }
}

// Null, which is neither Empty nor a text nor an error.
template <class Test>
void expect_mixed_null(Test& test, bool sure) {
    for (const auto& [part, member, written, read] : formats()) {
        const bool documented = std::string_view(member) == "NumberFormat" || std::string_view(member) == "Locked";
        if (documented != sure) continue;
        SCOPED_TRACE(member);
        const auto of = [&](const char* cells) {
            return *part ? test.object(test.range(cells), part) : test.range(cells);
        };
        test.call(test.range("A:XFD"), "ClearFormats");
        test.put(test.range("1:100"), "RowHeight", 15);
        test.put(test.range("A:Z"), "ColumnWidth", 8.43);
        test.put(of("B2"), member, written);
        EXPECT_EQ(test.get(of("B2:C3"), member), Value(Null{}));
        EXPECT_EQ(test.get(of("B2,D9"), member), Value(Null{}));
        EXPECT_EQ(test.get(of("B2"), member), read);
    }
}

TEST_F(Sure, MixedNumberFormatAndLockedAreNull) { expect_mixed_null(*this, true); }
TEST_F(Likely, MixedFormatsAreNull) { expect_mixed_null(*this, false); }

TEST_F(Sure, NumberFormatsOfAWorkbookHaveALimit) {
    int taken = 0;
    for (HResult code = ok; code == ok && taken < 1000; ++taken) {
        code = refused(range("A1"), "NumberFormat", "0." + std::string(1, '0') + "\"" + std::to_string(taken) + "\"");
        if (code != ok) {
            EXPECT_EQ(code, error_1004);
        }
    }
    EXPECT_GE(taken, 200);
    EXPECT_LE(taken, 251);
}

TEST_F(Sure, FormatsOfUnknownConstantsAreRefused) {
    const struct {
        const char* part;
        const char* member;
        Value value;
    } cases[] = {
        {"", "HorizontalAlignment", 12345},
        {"", "VerticalAlignment", 1},
        {"", "Orientation", 91},
        {"", "NumberFormat", "0.0.0;;;;;"},
        {"", "NumberFormat", "[Redd]0"},
        {"", "RowHeight", 409.6},
        {"", "RowHeight", -1},
        {"", "ColumnWidth", 255.5},
        {"", "Hidden", true},
        {"", "OutlineLevel", 9},
        {"Font", "Size", 0.5},
        {"Font", "Size", 410},
        {"Font", "Name", ""},
        {"Font", "Underline", 3},
        {"Font", "ColorIndex", 57},
        {"Font", "ThemeColor", 13},
        {"Font", "TintAndShade", 1.5},
        {"Interior", "ColorIndex", -1},
        {"Interior", "Pattern", 99},
        {"Borders", "LineStyle", 7},
        {"Borders", "Weight", 3},
        {"Borders", "ColorIndex", 99},
    };
    for (const auto& [part, member, value] : cases) {
        const ObjectRef target = *part ? object(range("A1"), part) : range("A1");
        const Value before = *member == 'H' && std::string_view(member) == "Hidden" ? Value() : get(target, member);
        EXPECT_EQ(refused(target, member, value), error_1004) << part << member;
        if (std::string_view(member) != "Hidden") {
            EXPECT_EQ(get(target, member), before) << part << member;
        }
    }
    EXPECT_EQ(refused(range("A1"), "RowHeight", Null{}), hresult::type_mismatch);
}

TEST_F(Likely, IndentsGoToFifteen) {
    put(range("A1"), "IndentLevel", 15);
    for (const int level : {-1, 16}) EXPECT_EQ(refused(range("A1"), "IndentLevel", level), error_1004);
    EXPECT_EQ(get(range("A1"), "IndentLevel"), Value(15));
}

TEST_F(Likely, IndentsNeedASide) {
    const ObjectRef cell = range("A1");
    put(cell, "IndentLevel", 2);
    EXPECT_EQ(get(cell, "HorizontalAlignment"), Value(xlLeft));
    put(cell, "HorizontalAlignment", xlRight);
    EXPECT_EQ(get(cell, "IndentLevel"), Value(2));
    for (const std::int32_t alignment : {xlCenter, xlGeneral, xlFill, xlJustify}) {
        put(cell, "IndentLevel", 2);
        put(cell, "HorizontalAlignment", alignment);
        EXPECT_EQ(get(cell, "IndentLevel"), Value(0)) << alignment;
    }
    put(cell, "HorizontalAlignment", xlGeneral);
    put(cell, "IndentLevel", 0);
    EXPECT_EQ(get(cell, "HorizontalAlignment"), Value(xlGeneral));
}

}  // namespace
}  // namespace kestrune::contract
