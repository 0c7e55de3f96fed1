#include "brxllib/DependentIndex.h"
#include "brxllib/LibraryInHost.h"

namespace kestrune::brxllib {
namespace {

// A budget of three months, a second workbook that is open, and one that is not.
struct LinksTest : LibraryInHost {
    LinksTest() {
        open("Rates.xlsx", "/rates", {"FX", "Old"});
        host::Workbook& budget = open("Budget.xlsx", "C:\\plans", {"Jan", "Feb", "Mar", "Sum", "It's"});
        session.activate(budget);
        name("Rate", "=Jan!$B$2");
        name("Twice", "=Rate*2");
        name("Loop", "=Loop+Jan!$B$9");
        name("Left", "=Sum!RC[-1]", true);
        name("Rows", "=OFFSET(Jan!$A$1:$A$9,0,0,COUNT(Jan!$C:$C))");
        name("Sum!Rate", "=Sum!$D$4");
        name("Percent", "=0.05");
        application.Workbooks().Item("Rates.xlsx").Names().Add("Euro", "=FX!$A$2");
    }

    void name(std::string_view text, std::string_view refers_to, bool r1c1 = false) const {
        automation::Arguments arguments;
        arguments.name("Name", text).name(r1c1 ? "RefersToR1C1" : "RefersTo", refers_to);
        automation::call(*book("Budget.xlsx").Names().object(), "Add", std::move(arguments));
    }
    [[nodiscard]] excel::Range at(std::string_view sheet, std::string_view address,
                                  std::string_view workbook = "Budget.xlsx") const {
        return book(workbook).Worksheets().Item(sheet).Range(address);
    }
    static std::string line(const core::CellLink& link) {
        std::string text =
            link.text + " > " + link.folder + "[" + link.workbook + "]" + link.sheet + "!" + link.address;
        return link.through.empty() ? text : text + " (" + link.through + ")";
    }
    [[nodiscard]] std::vector<std::string> precedents_of(const excel::Range& cell) const {
        std::vector<std::string> lines;
        for (const auto& link : library->precedents(cell.object())) lines.push_back(line(link));
        return lines;
    }
    // "Sheet!Address" of each dependent; of a single cell as the index tells them, too.
    [[nodiscard]] std::vector<std::string> dependents_of(const excel::Range& cell) const {
        std::vector<std::string> lines;
        for (const auto& link : library->dependents(cell.object())) lines.push_back(link.sheet + "!" + link.address);
        if (cell.Count() > 1) return lines;
        std::vector<std::string> indexed;
        const excel::Worksheet sheet = cell.Worksheet();
        DependentIndex index(application);
        for (const auto& link : index.dependents(sheet.Parent().Name(), sheet.Name(), {cell.Row(), cell.Column()})) {
            indexed.push_back(link.sheet + "!" + link.address);
        }
        EXPECT_EQ(indexed, lines);
        return lines;
    }
};

TEST_F(LinksTest, PrecedentsOfEveryKindOfReference) {
    const std::string own = " > C:\\plans[Budget.xlsx]";
    const struct {
        const char* formula;
        std::vector<std::string> lines;
    } rows[] = {
        {"=1+2", {}},
        {"=B2+$C3*B2", {"B2" + own + "Sum!$B$2", "$C3" + own + "Sum!$C$3", "B2" + own + "Sum!$B$2"}},
        {"=SUM(A:B,5:7,Feb!$A$1:C9)",
         {"A:B" + own + "Sum!$A:$B", "5:7" + own + "Sum!$5:$7", "Feb!$A$1:C9" + own + "Feb!$A$1:$C$9"}},
        {"=SUM(B1:B3 A2:C2,'It''s'!A1)",
         {"B1:B3" + own + "Sum!$B$1:$B$3", "A2:C2" + own + "Sum!$A$2:$C$2", "'It''s'!A1" + own + "It's!$A$1"}},
        {"=SUM(Jan:Mar!B2)",
         {"Jan:Mar!B2" + own + "Jan!$B$2", "Jan:Mar!B2" + own + "Feb!$B$2", "Jan:Mar!B2" + own + "Mar!$B$2"}},
        {"=SUM(Jan!A1:Jan!C3)+SUM(B1:INDEX(B:B,9))",
         {"Jan!A1:Jan!C3" + own + "Jan!$A$1:$C$3", "B1" + own + "Sum!$B$1", "B:B" + own + "Sum!$B:$B"}},
        {"=Rate+Jan!B5", {"Rate" + own + "Sum!$D$4 (Rate)", "Jan!B5" + own + "Jan!$B$5"}},
        {"=Twice", {"Twice" + own + "Jan!$B$2 (Twice)"}},
        {"=Loop+Percent+Unknown", {"Loop" + own + "Jan!$B$9 (Loop)"}},
        {"=Left", {"Left" + own + "Sum!$G$20 (Left)"}},
        {"=SUM(Rows)", {"Rows" + own + "Jan!$A$1:$A$9 (Rows)", "Rows" + own + "Jan!$C:$C (Rows)"}},
        {"=[Rates.xlsx]FX!$A$1+Rates.xlsx!Euro",
         {"[Rates.xlsx]FX!$A$1 > /rates[Rates.xlsx]FX!$A$1", "Rates.xlsx!Euro > /rates[Rates.xlsx]FX!$A$2 (Euro)"}},
        {"='C:\\old\\[Last year.xlsx]P&L'!B3+'C:\\old\\Last year.xlsx'!Tax",
         {"'C:\\old\\[Last year.xlsx]P&L'!B3 > C:\\old[Last year.xlsx]P&L!$B$3",
          "'C:\\old\\Last year.xlsx'!Tax > C:\\old[Last year.xlsx]!Tax"}},
        {"=\"Sheet1!A1\"&#REF!&Jan!#REF!", {}},
    };
    for (const auto& row : rows) {
        at("Sum", "H20").Formula(row.formula);
        EXPECT_EQ(precedents_of(at("Sum", "H20")), row.lines) << row.formula;
    }
    at("Sum", "H20").Formula("'=A1");
    EXPECT_TRUE(precedents_of(at("Sum", "H20")).empty()) << "a text";
}

TEST_F(LinksTest, PositionsCountCharactersOfTheFormula) {
    at("Sum", "A1").Formula("=\"Größe 📏\"&B1");
    const auto links = library->precedents(at("Sum", "A1").object());
    ASSERT_EQ(links.size(), 1U);
    EXPECT_EQ(links[0].position, 13);
    EXPECT_EQ(links[0].length, 2);
    EXPECT_EQ(links[0].formula, "=\"Größe 📏\"&B1");
}

TEST_F(LinksTest, DependentsThroughEveryKindOfReference) {
    at("Jan", "B2").Value(7.0);
    const struct {
        const char* sheet;
        const char* address;
        const char* formula;
        bool depends;
    } rows[] = {
        {"Jan", "A1", "=B3", false},
        {"Jan", "A2", "=B2", true},
        {"Jan", "A3", "=SUM($A$1:$C$9)", true},
        {"Jan", "A4", "=SUM(B:B)+SUM(2:2)", true},
        {"Jan", "A5", "=SUM(A:A)", false},
        {"Jan", "A6", "='It''s'!B2+Feb!B2", false},
        {"Jan", "A7", "=Rate", true},
        {"Jan", "A8", "=Loop+Percent", false},
        {"Jan", "A9", "=\"B2\"", false},
        {"Jan", "C1", "=SUM(Jan!A1:Jan!D4)", true},
        {"Jan", "C2", "=Left+1", false},
        {"Jan", "C3", "'=B2", false},
        {"Feb", "A1", "=B2", false},
        {"Feb", "A2", "=Jan!B2", true},
        {"Feb", "A3", "=JAN!$B$1:$B$2", true},
        {"Feb", "A4", "=Twice", true},
        {"Feb", "A5", "=SUM(Jan:Mar!B2)", true},
        {"Feb", "A6", "=SUM(Feb:Mar!B2)", false},
        {"Sum", "A1", "=Rate", false},  // the sheet's own name
        {"Sum", "A2", "=Budget.xlsx!Rate", true},
        {"Sum", "A3", "=[Rates.xlsx]FX!B2", false},
    };
    std::vector<std::string> expected;
    for (const auto& row : rows) {
        const excel::Range cell = at(row.sheet, row.address);
        cell.Formula(row.formula);
        if (row.depends) expected.push_back(std::string(row.sheet) + "!" + cell.Address());
    }
    at("FX", "A1", "Rates.xlsx").Formula("=[Budget.xlsx]Jan!$B$2");
    at("FX", "A2", "Rates.xlsx").Formula("=Jan!$B$2");
    at("FX", "A3", "Rates.xlsx").Formula("=Budget.xlsx!Twice");
    expected.insert(expected.end(), {"FX!$A$1", "FX!$A$3"});
    EXPECT_THAT(dependents_of(at("Jan", "B2")), testing::UnorderedElementsAreArray(expected));
    EXPECT_EQ(dependents_of(at("Sum", "D4")), std::vector<std::string>{"Sum!$A$1"});
    EXPECT_THAT(dependents_of(at("Jan", "B7:B9")), testing::Contains("Jan!$A$8")) << "one of several cells";
    EXPECT_TRUE(dependents_of(at("Mar", "Z99")).empty());

    at("Sum", "K5").Formula("=Left*2");
    EXPECT_EQ(dependents_of(at("Sum", "J5")), std::vector<std::string>{"Sum!$K$5"}) << "a name that moves";
}

TEST_F(LinksTest, TablesStandForTheirCells) {
    host::Workbook& budget = *session.find("Budget.xlsx")->model;
    // Sales: headers in row 3, rows 4 to 8, totals in row 9.
    budget.read_tables = [] {
        return std::vector<host::Table>{{"Sales", 0, {3, 2, 9, 4}, true, true, {"Month", "Net [k$]", "Tax"}},
                                        {"Bare", 2, {3, 2, 9, 4}, false, false, {"Column1", "Column2", "Net"}}};
    };
    at("Jan", "B3:D3").Formula("Month");
    at("Jan", "C3").Value("Net [k$]");
    at("Jan", "D3").Value("Tax");
    const struct {
        const char* sheet;
        const char* cell;
        const char* formula;
        const char* address;  // on Jan; null for no reference
        bool means_c5;
    } rows[] = {
        {"Sum", "A1", "=SUM(Sales)", "$B$4:$D$8", true},
        {"Sum", "A2", "=SUM(Sales[Tax])", "$D$4:$D$8", false},
        {"Sum", "A4", "=SUM(Sales[Net '[k$']])", "$C$4:$C$8", true},
        {"Sum", "A5", "=Sales[[#Totals],[Tax]]", "$D$9", false},
        {"Sum", "A6", "=COUNTA(Sales[#All])", "$B$3:$D$9", true},
        {"Sum", "A7", "=SUM(Sales[[Month]:[Net '[k$']]])", "$B$4:$C$8", true},
        {"Sum", "A8", "=SUM(Sales[[#Headers],[#Data],[Tax]])", "$D$3:$D$8", false},
        {"Sum", "A9", "=Sales[Gross]", nullptr, false},
        {"Sum", "B1", "=Sales[@Tax]", nullptr, false},  // no row of the table
        {"Jan", "F5", "=Sales[@[Net '[k$']]]*2", "$C$5", true},
        {"Jan", "D6", "=[@[Net '[k$']]]*0.2", "$C$6", false},
        {"Jan", "F7", "=Sales[[#This Row],[Month]]", "$B$7", false},
    };
    // What names no table stands in one.
    for (const char* outside : {"F6", "D5:F6"}) {
        EXPECT_THROW(at("Jan", outside).Formula("=[@Tax]*2"), automation::AutomationError) << outside;
    }
    EXPECT_EQ(at("Jan", "D5").Formula(), Value(""));
    std::vector<std::string> expected;
    for (const auto& row : rows) {
        at(row.sheet, row.cell).Formula(row.formula);
        const auto links = library->precedents(at(row.sheet, row.cell).object());
        ASSERT_EQ(links.size(), row.address ? 1U : 0U) << row.formula;
        if (row.address) {
            EXPECT_EQ(links[0].sheet + "!" + links[0].address, std::string("Jan!") + row.address) << row.formula;
            EXPECT_EQ(links[0].through, "Sales");
        }
        if (row.means_c5) expected.push_back(std::string(row.sheet) + "!" + at(row.sheet, row.cell).Address());
    }
    EXPECT_THAT(dependents_of(at("Jan", "C5")), testing::UnorderedElementsAreArray(expected));

    // A table without headers tells no names of its columns.
    at("Sum", "C1").Formula("=SUM(Bare[Column2])+SUM(Bare[Net])");
    const auto links = library->precedents(at("Sum", "C1").object());
    ASSERT_EQ(links.size(), 2U);
    EXPECT_EQ(links[0].address + " " + links[1].address, "$C$3:$C$9 $B$3:$D$9");
}

TEST_F(LinksTest, NumberedLinksLeadToTheirFiles) {
    host::Workbook& budget = *session.find("Budget.xlsx")->model;
    budget.read_external_links = [] { return std::vector<std::string>{"/rates/Rates.xlsx", "D:\\far\\Away.xlsx"}; };
    budget.sheets()[3]->set_formula({1, 1}, "[1]FX!$A$1+'[2]P&L'!B2+[7]Lost!C3+[2]!Tax");
    EXPECT_EQ(
        precedents_of(at("Sum", "A1")),
        (std::vector<std::string>{"[1]FX!$A$1 > /rates[Rates.xlsx]FX!$A$1", "'[2]P&L'!B2 > D:\\far[Away.xlsx]P&L!$B$2",
                                  "[7]Lost!C3 > [[7]]Lost!$C$3", "[2]!Tax > D:\\far[Away.xlsx]!Tax"}));
    EXPECT_EQ(dependents_of(at("FX", "A1", "Rates.xlsx")), std::vector<std::string>{"Sum!$A$1"});
}

TEST_F(LinksTest, DependentsTellTheirFormulas) {
    at("Mar", "C3").Formula("=1+SUM('Jan'!$B$1:$B$4)");
    const auto links = library->dependents(at("Jan", "B2").object());
    ASSERT_EQ(links.size(), 1U);
    EXPECT_EQ(line(links[0]), "'Jan'!$B$1:$B$4 > C:\\plans[Budget.xlsx]Mar!$C$3");
    EXPECT_EQ(links[0].position, 8);
    EXPECT_EQ(links[0].length, 15);
    EXPECT_EQ(links[0].formula, "=1+SUM('Jan'!$B$1:$B$4)");
}

TEST_F(LinksTest, DependentsOfTheOwnSheetAndWorkbookComeFirst) {
    at("Old", "A1", "Rates.xlsx").Formula("=[Budget.xlsx]Mar!$C$3");
    at("Jan", "A1").Formula("=SUM(Mar!C:C)+Mar!C3");
    at("Mar", "D1:D2").Formula("=$C$3+SUM(C1:C3)");
    EXPECT_EQ(dependents_of(at("Mar", "C3")),
              (std::vector<std::string>{"Mar!$D$1", "Mar!$D$2", "Jan!$A$1", "Old!$A$1"}));
}

TEST_F(LinksTest, ThousandsOfDependentsTakeAFewCalls) {
    at("Feb", "A1:D2500").Formula("=Jan!$B$2+A1");
    std::size_t found = 0;
    EXPECT_LT(calls_of([&] { found = library->dependents(at("Jan", "B2").object()).size(); }), 150);
    EXPECT_EQ(found, 10'000U);
    EXPECT_EQ(library->dependents(at("Feb", "B2").object()).size(), 1U);
}

}  // namespace
}  // namespace kestrune::brxllib
