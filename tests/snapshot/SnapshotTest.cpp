#include "snapshot/TwoExcels.h"

namespace kestrune::brxllib::undo {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

TEST(Snapshot, ContentsThatReadAsSomethingElseComeBackAsTheyWere) {
    const std::string longest(32'000, 'x');
    for (const std::string& text :
         {std::string("5%"), std::string("=1+1"), std::string("TRUE"), std::string("007"), std::string("3/4/2020"),
          std::string("-x"), std::string("#N/A"), std::string(" padded "), std::string("two\nlines"), longest}) {
        for (const char* format : {"General", "@", "0%"}) {
            OneExcel excel;
            excel.cells("B2").NumberFormat(format);
            excel.sheet().set_content({2, 2}, host::CellContent::of(text));
            const Snapshot snapshot = excel.take("A1:C3", {Aspect::Contents, Aspect::Formats});
            for (const char* entered : {"12", "'quoted", "=A1", ""}) {
                excel.cells("A1:C3").Formula(entered);
                EXPECT_THAT(snapshot.restore(excel.trace), IsEmpty()) << text << format << entered;
                EXPECT_EQ(excel.sheet().content_at({2, 2}).text, text) << format << entered;
                EXPECT_TRUE(excel.still(snapshot)) << text << format << entered;
            }
        }
    }
}

TEST(Snapshot, FormulasShowTheirResultsAgain) {
    OneExcel excel;
    excel.sheet().set_formula({1, 1}, "B1*2");
    // As a file would bring it.
    const_cast<host::Cell*>(excel.sheet().find({1, 1}))->kind = host::CellKind::Number;
    const_cast<host::Cell*>(excel.sheet().find({1, 1}))->number = 42;
    const Snapshot snapshot = excel.take("A1");
    excel.cells("A1").Value2("gone");
    EXPECT_THAT(snapshot.restore(excel.trace), IsEmpty());
    EXPECT_EQ(excel.sheet().content_at({1, 1}).number, 42);
}

TEST(Snapshot, AWholeColumnComesBackWithoutLeavingCellsBehind) {
    for (const char* address : {"B:D", "3:4", "A:XFD"}) {
        OneExcel excel;
        excel.cells("B2:C9").Value2(1.0);
        excel.cells("C:C").Font().Bold(true);
        excel.cells("3:3").Interior().Color(255);
        const std::int64_t stored = excel.sheet().stored_cells();
        const Snapshot snapshot = excel.take(address);
        const excel::Range cells = excel.cells(address);
        cells.Interior().Color(65535);
        cells.Borders().LineStyle(host::xlContinuous);
        cells.Style("Share");
        cells.Borders().LineStyle(host::xlContinuous);
        EXPECT_THAT(snapshot.restore(excel.trace), IsEmpty()) << address;
        EXPECT_TRUE(excel.still(snapshot)) << address;
        EXPECT_LE(excel.sheet().stored_cells(), stored + 64) << address;
    }
}

TEST(Snapshot, UniformCellsCostTheSameCallsHoweverMany) {
    const auto calls = [](const char* address) {
        OneExcel excel;
        const excel::Range cells = excel.cells(address);
        cells.FormulaR1C1("=RC[200]+1");
        cells.NumberFormat("0.00");
        cells.Interior().Color(255);
        const std::int64_t start = excel.session.calls();
        const Snapshot snapshot = excel.take(address);
        const std::int64_t taken = excel.session.calls();
        EXPECT_LT(snapshot.bytes(), 10'000U + static_cast<std::size_t>(cells.CountLarge()) * 12);
        EXPECT_LT(Snapshot::estimate(cells, Aspects::all()), 2 * snapshot.bytes());
        cells.Interior().Color(0);
        cells.Value2("x");
        const std::int64_t before = excel.session.calls();
        EXPECT_THAT(snapshot.restore(excel.trace), IsEmpty());
        return std::pair(taken - start, excel.session.calls() - before);
    };
    const auto many = calls("A1:CV100");
    EXPECT_EQ(many, calls("A1:J10"));
    const auto one = calls("A1");
    EXPECT_LE(one.first, many.first) << "lines inside are asked besides";
    EXPECT_LE(one.second, many.second);
    EXPECT_LT(many.first, 250);
}

TEST(Snapshot, SaysWhatCannotComeBackAndKeepsWhatIsLeftOfIt) {
    OneExcel excel;
    host::ConditionalFormat scale;
    scale.areas = {{1, 1, 10, 1}};
    scale.rules.push_back({"colorScale", "", {}, 1, false, {}, "<cfRule type=\"colorScale\" priority=\"1\"/>"});
    excel.sheet().conditional_formats().push_back(scale);
    const Snapshot part = excel.take("A1:A5", Aspect::Conditions);
    EXPECT_THAT(part.irreplaceable(), IsEmpty());
    EXPECT_THAT(excel.take("A1:B10", Aspect::Conditions).irreplaceable(), SizeIs(1));
    excel.cells("A1:A5").FormatConditions().Delete();
    EXPECT_THAT(part.restore(excel.trace), IsEmpty());
    ASSERT_THAT(excel.sheet().conditional_formats(), SizeIs(1));
    EXPECT_EQ(excel.sheet().conditional_formats()[0].areas, scale.areas);
    EXPECT_EQ(excel.sheet().conditional_formats()[0].rules[0].source, scale.rules[0].source);
}

TEST(Snapshot, NamesComeBack) {
    OneExcel excel;
    const excel::Names names = excel.application.ActiveWorkbook().Names();
    names.Add("Rate", "=Sheet1!$A$1");
    names.Add("'Other Sheet'!Rate", "=Sheet1!B2", false);
    names.Add("Kept", "=1+1");
    const Snapshot snapshot = excel.take("A1", Aspect::Names);
    names.Item("Rate").Delete();
    names.Item("'Other Sheet'!Rate").RefersTo("=2");
    names.Add("Fresh", "=3");
    EXPECT_FALSE(excel.still(snapshot));
    EXPECT_THAT(snapshot.restore(excel.trace), IsEmpty());
    EXPECT_TRUE(excel.still(snapshot));
    EXPECT_EQ(names.Count(), 3);
    EXPECT_EQ(names.Item("'Other Sheet'!Rate").RefersTo(), "=Sheet1!B2");
    EXPECT_FALSE(names.Item("'Other Sheet'!Rate").Visible());
}

TEST(Snapshot, RefusalsAreToldAndRecordsAreBounded) {
    OneExcel excel;
    excel.cells("A1:D500").Value2("some text");
    EXPECT_FALSE(Snapshot::take(excel.application, excel.cells("A1:D500"), Aspect::Contents, 4'000, excel.trace));
    const Snapshot snapshot = excel.take("A1:B2");
    excel.cells("A1").Value2(5.0);
    excel.sheet().protection().on = true;
    EXPECT_THAT(snapshot.restore(excel.trace), testing::Contains(testing::HasSubstr("protected")));
    EXPECT_EQ(excel.sheet().content_at({1, 1}).number, 5);
    EXPECT_TRUE(snapshot.in_place());
}

}  // namespace
}  // namespace kestrune::brxllib::undo
