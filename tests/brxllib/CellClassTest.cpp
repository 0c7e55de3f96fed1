#include <gtest/gtest.h>

#include "automation/AutomationError.h"
#include "brxllib/autocolor/CellClass.h"
#include "brxllib/autocolor/HardCodedNumbers.h"

namespace kestrune::brxllib {
namespace {

// A sheet whose workbook has a few names, and which counts how often it is asked for one.
class NamesOnly : public automation::Object {
  public:
    explicit NamesOnly(int& asked) : asked_(asked) {}
    automation::Value invoke(std::string_view member, automation::Call, automation::Arguments& arguments) override {
        if (member == "RefersTo") return meaning_;
        if (member == "ListObjects") return std::make_shared<NamesOnly>(*this, true, true);
        if (member == "Name") return "Own";
        if (member == "Item") {
            if (tables_ && automation::to_text(arguments.positional[0]) == "Own") return shared_from_this();
            ++asked_;
            const std::string name = automation::to_text(arguments.positional[0]);
            for (const auto& [known, of_workbook, meaning] : names) {
                if (known != name || of_workbook != workbook_) continue;
                meaning_ = meaning;
                return shared_from_this();
            }
            throw automation::AutomationError(automation::hresult::excel_error, "Names", "no such name");
        }
        if (member == "Names") return shared_from_this();
        return std::make_shared<NamesOnly>(*this, true);  // the workbook
    }
    NamesOnly(const NamesOnly& other, bool workbook, bool tables = false)
        : workbook_(workbook), tables_(tables), asked_(other.asked_) {}
    [[nodiscard]] std::string_view type_name() const override { return "Worksheet"; }

  private:
    struct Name {
        std::string_view name;
        bool of_workbook;
        std::string_view meaning;
    };
    static constexpr Name names[] = {
        {"Growth", true, "=Inputs!$B$3"}, {"Local", false, "=Model!$A$1"},
        {"Rate", true, "=0.35"},          {"Far", true, "='C:\\m\\[Book.xlsx]S'!A1"},
        {"Alias", true, "=Growth*2"},     {"Loop", true, "=Loop+1"},
        {"Both", true, "=Model!$A$1"},    {"Both", false, "=Inputs!$A$1"},
    };

    bool workbook_ = false;
    bool tables_ = false;
    std::string_view meaning_;
    int& asked_;
};

struct CellClasses : testing::Test {
    CellClass of(std::string_view formula, bool hyperlinks = true) {
        return class_of_formula(formula, names, hyperlinks);
    }

    int asked = 0;
    NameMeanings names{excel::Worksheet(std::make_shared<NamesOnly>(asked)), "Model"};
};

TEST_F(CellClasses, FormulasByWhatTheyTakeFrom) {
    using enum CellClass;
    const struct {
        const char* formula;
        CellClass expected;
    } rows[] = {
        {"=A1+B1", Formula},
        {"=SUM(A1:A9)", Formula},
        {"=Model!A1", Formula},
        {"='model'!A1*B1", Formula},
        {"=SUM(Own[Amount])", Formula},
        {"=[@Amount]*Rate", Formula},
        {"=SUM(Sales[Amount])", SheetLink},
        {"=#REF!+A1", Formula},
        {"=#REF!", Formula},
        {"=TODAY()", Formula},
        {"=NA()", Formula},
        {"=A1*1.05", PartialInput},
        {"=A1+1", PartialInput},
        {"=-A1/12", PartialInput},
        {"=RAND()*100", PartialInput},
        {"=ROW()-3", PartialInput},
        {"=Rate*1000", PartialInput},
        {"=Inputs!B5", SheetLink},
        {"=Inputs!B5*12", SheetLink},
        {"=SUM(Jan:Dec!B2)", SheetLink},
        {"='It''s'!A1+A1", SheetLink},
        {"=[1]Sheet1!A1", WorkbookLink},
        {"='C:\\models\\[Other.xlsx]Model'!A1+Inputs!A1", WorkbookLink},
        {"=[2]!Rate", WorkbookLink},
        {"=Excel|Sheet1!R1C1", WorkbookLink},
        {"=[0]!Rate", Formula},
        {"=5+3", Input},
        {"=1000000", Input},
        {"=DATE(2026,1,31)", Input},
        {"=SUM(1,2)", Input},
        {"=-5%", Input},
        {"=TRUE", Input},
        {"=\"Total\"", Text},
        {"=\"Total\"&\" \"&\"cost\"", Text},
        {"=HYPERLINK(\"https://example.com\",\"go\")", Hyperlink},
        {"=IF(A1=\"\",\"\",hyperlink(A1))", Hyperlink},
        {"=Inputs!A1&\"HYPERLINK(\"", SheetLink},
    };
    for (const auto& row : rows) EXPECT_EQ(of(row.formula), row.expected) << row.formula;
    EXPECT_EQ(of("=HYPERLINK(Inputs!A1)", false), SheetLink) << "without a class of its own";
}

TEST_F(CellClasses, NamesAreFollowedAndAskedForOnce) {
    EXPECT_EQ(of("=Growth*A1"), CellClass::SheetLink);
    EXPECT_EQ(of("=Far"), CellClass::WorkbookLink);
    EXPECT_EQ(of("=Alias"), CellClass::SheetLink) << "through another name";
    EXPECT_EQ(of("=Loop"), CellClass::Formula) << "a circle ends";
    EXPECT_EQ(of("=Local+Rate"), CellClass::Formula);
    EXPECT_EQ(of("=Both"), CellClass::SheetLink) << "the sheet's own name hides the workbook's";
    EXPECT_EQ(of("=LET(x,A1,x*B1)"), CellClass::Formula);
    const int before = asked;
    EXPECT_EQ(of("=GROWTH+Alias+Far+Loop+x"), CellClass::WorkbookLink);
    EXPECT_EQ(asked, before);
}

TEST(CellClass, ConstantsByTheirValue) {
    using automation::Value;
    EXPECT_EQ(class_of_constant(12.5), CellClass::Input);
    EXPECT_EQ(class_of_constant(true), CellClass::Input);
    EXPECT_EQ(class_of_constant(automation::Error{-2146826246}), CellClass::Input);
    EXPECT_EQ(class_of_constant(automation::Date{46022}), CellClass::Date);
    EXPECT_EQ(class_of_constant("Revenue"), CellClass::Text);
    EXPECT_EQ(class_of_constant(Value()), CellClass::Empty);
}

TEST(CellClass, ColorsFollowTheSwitches) {
    AutoColorSettings settings;
    settings.bAutoColorText = settings.bAutoColorDate = false;
    EXPECT_EQ(color_of(CellClass::Text, settings), std::nullopt);
    EXPECT_EQ(color_of(CellClass::Date, settings), std::nullopt);
    EXPECT_EQ(color_of(CellClass::Empty, settings), std::nullopt);
    settings.bAutoColorText = settings.bAutoColorDate = true;
    for (const CellClass input : {CellClass::Text, CellClass::Date, CellClass::Input}) {
        EXPECT_EQ(color_of(input, settings), settings.InputColor);
    }
    EXPECT_EQ(color_of(CellClass::PartialInput, settings), settings.PartialInputColor);
    EXPECT_EQ(color_of(CellClass::SheetLink, settings), settings.WksLinkColor);
    EXPECT_EQ(color_of(CellClass::WorkbookLink, settings), settings.WkbLinkColor);
    EXPECT_EQ(color_of(CellClass::Hyperlink, settings), settings.HyperLinkColor);
}

TEST(HardCodedNumbers, AreAssumptionsOnly) {
    for (const char* formula : {"=A1*1.05",
                                "=A1+1",
                                "=A1/12",
                                "=A1-0.5",
                                "=NPV(0.1,A1:A9)",
                                "=IF(A1>5,A1,B1)",
                                "=IF(A1>B1,100,0)",
                                "=MAX(A1,250)",
                                "=A1*5%",
                                "=-3*A1",
                                "=A1^2",
                                "=B1*1",
                                "=1*B1",
                                "=SUM(A1,{1,2})",
                                "=(1+A1)^(1/12)",
                                "=IF(A1=2026,B1,C1)",
                                "=ROUND(A1*1.2,2)",
                                "=VLOOKUP(A1,B:D,1+2,0)",
                                "=A1+100%",
                                "=A1-1",
                                "=IF(A1/B1>2,C1-1,0)",

                                "=-1+A1",
                                "=PMT(A1,360,B1)"})
        EXPECT_TRUE(holds_hard_coded_number(formula)) << formula;
    for (const char* formula : {"=A1+B1",
                                "=ROUND(A1,2)",
                                "=ROUND(A1,-3)",
                                "=VLOOKUP(A1,B:D,3,0)",
                                "=IF(A1=0,0,B1/A1)",
                                "=IFERROR(A1,0)",
                                "=MAX(0,A1)",
                                "=MIN(A1,1)",
                                "=B1*(1+C1)",
                                "=B1*(C1+1)",
                                "=1-A1",
                                "=1/A1",
                                "=B1/A1-1",
                                "=SUM(B1:B4)/SUM(A1:A4)-1",
                                "=IF(A1=0,0,(B1/A1)-1)",
                                "=(B1/A1)^C1-100%",
                                "=100%-A1",
                                "=EOMONTH(A1,3)",
                                "=DATE(YEAR(A1),12,31)",
                                "=SUMPRODUCT((A1:A9>0)*B1:B9)",
                                "=INDEX(A1:C9,2,3)",
                                "=_xlfn.XLOOKUP(A1,B:B,C:C,0,-1)",
                                "=LEFT(A1,3)&\"2026\"",
                                "=IF(0<A1,1,0)",
                                "=SUBTOTAL(109,A1:A9)",
                                "=Q1+R2"})
        EXPECT_FALSE(holds_hard_coded_number(formula)) << formula;
}

}  // namespace
}  // namespace kestrune::brxllib
