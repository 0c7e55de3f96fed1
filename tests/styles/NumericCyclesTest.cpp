#include <functional>
#include <random>

#include "core/bridges/SharedState.h"
#include "styles/AddInInHost.h"
#include "styles/cLongToggle.h"

namespace kestrune::styles {
namespace {

using automation::Value;
using ApplyMember = void (cLongToggle::*)(const core::SharedState&, const excel::Range&, std::int32_t);

// An application that says it is another version of Excel.
class OtherVersion : public automation::Object {
  public:
    OtherVersion(automation::ObjectRef application, const char* version)
        : application_(std::move(application)), version_(version) {}
    Value invoke(std::string_view member, automation::Call kind, automation::Arguments& arguments) override {
        return member == "Version" ? Value(version_) : application_->invoke(member, kind, arguments);
    }
    [[nodiscard]] std::string_view type_name() const override { return "Application"; }

  private:
    automation::ObjectRef application_;
    const char* version_;
};

struct NumericCycles : AddInInHost {
    NumericCycles() {
        shared.application = application.object();
        shared.general_library = std::make_shared<core::diBRVBLib>(trace);
        shared.spreadsheet_library = std::make_shared<core::diBRXLLib>(trace);
        EXPECT_TRUE(shared.general_library->Create());
        EXPECT_TRUE(shared.spreadsheet_library->Create());
    }

    void in_version(const char* version) {
        shared.application = std::make_shared<OtherVersion>(application.object(), version);
    }
    [[nodiscard]] Value palette_color(std::string_view address) const {
        return application.ActiveWorkbook().Colors(cells(address).Font().ColorIndex());
    }
    [[nodiscard]] std::string format(std::string_view address) const {
        return automation::to_text(cells(address).NumberFormat());
    }
    [[nodiscard]] std::int64_t calls_of(const std::function<void()>& statement) const {
        const std::int64_t before = session.calls();
        statement();
        return session.calls() - before;
    }

    core::SharedState shared{presenter, trace};
};

// What a cell shows after each press, whatever the cycle's values became on the sheet.
TEST_F(NumericCycles, StepByWhatTheSheetMadeOfTheValues) {
    const auto height = [&] { return cells("B2").RowHeight(); };
    const auto width = [&] { return cells("B2").ColumnWidth(); };
    const auto indent = [&] { return cells("B2").IndentLevel(); };
    const auto color = [&] { return palette_color("B2"); };
    const struct {
        const char* what;
        std::function<void()> prepare;
        ApplyMember apply;
        std::function<Value()> shown;
        std::vector<double> settings;
        std::vector<double> seen;
    } rows[] = {
        {"a height that is none of them",
         [&] { cells("B2").RowHeight(14.25); },
         &cLongToggle::ApplyAsRowHeight,
         height,
         {12.75, 15, 20},
         {12.75, 15, 20.25, 12.75, 15}},
        {"the last height",
         [&] { cells("B2").RowHeight(20.25); },
         &cLongToggle::ApplyAsRowHeight,
         height,
         {12.75, 15, 20},
         {12.75}},
        {"widths of whole pixels",
         [&] { cells("B2").ColumnWidth(8); },
         &cLongToggle::ApplyAsColWidth,
         width,
         {10.33, 20, 30.7},
         {10.29, 20, 30.71, 10.29, 20}},
        {"one value", [&] { cells("B2").RowHeight(9); }, &cLongToggle::ApplyAsRowHeight, height, {30}, {30, 30}},
        {"a value that stands twice", [&] {}, &cLongToggle::ApplyAsIndents, indent, {1, 3, 1, 5}, {1, 3, 1, 5, 1, 3}},
        {"the last value twice", [&] {}, &cLongToggle::ApplyAsIndents, indent, {1, 0, 0}, {1, 0, 1, 0}},
        {"two that the sheet makes one",
         [&] { cells("B2").RowHeight(50); },
         &cLongToggle::ApplyAsRowHeight,
         height,
         {12.7, 12.8, 20},
         {12.75, 12.75, 20.25, 12.75, 20.25}},
        {"indents", [&] { cells("B2").IndentLevel(0); }, &cLongToggle::ApplyAsIndents, indent, {1, 2, 0}, {1, 2, 0, 1}},
        {"right indents",
         [&] { cells("B2").IndentLevel(0); },
         &cLongToggle::ApplyAsRightIndents,
         indent,
         {1, 2, 0},
         {1, 2, 0, 1}},
        {"colours beside the palette",
         [&] {},
         &cLongToggle::ApplyAsColors,
         color,
         {0x1030F0, 0xF01010, 0x109010},
         {0x0000FF, 0xFF0000, 0x008000, 0x0000FF}},
        {"the automatic colour is black",
         [&] { cells("B2").Font().ColorIndex(excel::xlColorIndexAutomatic); },
         &cLongToggle::ApplyAsColors,
         color,
         {0, 0xFF0000},
         {0xFF0000, 0, 0xFF0000}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        row.prepare();
        cLongToggle cycle("A SmartCycle", row.settings);
        for (std::size_t press = 0; press < row.seen.size(); ++press) {
            (cycle.*row.apply)(shared, cells("B2"), 0);
            ASSERT_NEAR(automation::to_double(row.shown()), row.seen[press], 0.005) << "press " << press + 1;
            const double shown = automation::to_double(row.shown());
            EXPECT_TRUE(cycle.IncludesSetting(shown, true)) << "what is shown is recognised from now on";
        }
        EXPECT_EQ(cycle.Settings, row.settings) << "what the user entered stays";
    }
}

TEST_F(NumericCycles, PositionsGoStraightToAValue) {
    cLongToggle cycle("A SmartCycle", {10, 20.1, 30});
    cycle.LookFors = {10};  // a file edited by hand
    cycle.ApplyAsRowHeight(shared, cells("A2:A3,A7"), 2);
    EXPECT_EQ(cells("A2:A3,A7").RowHeight(), Value(20.25));
    EXPECT_EQ(cycle.LookFors, (std::vector<double>{10, 20.25, 30}));
    for (const std::int32_t nowhere : {4, -1, std::numeric_limits<std::int32_t>::max()}) {
        cycle.ApplyAsRowHeight(shared, cells("A2"), nowhere);
    }
    cycle.ApplyAsRowHeight(shared, excel::Range(), 1);
    cLongToggle().ApplyAsRowHeight(shared, cells("A2"), 0);
    EXPECT_EQ(cells("A2:A3").RowHeight(), Value(20.25));
}

TEST_F(NumericCycles, TheFirstCellDecidesForAll) {
    cLongToggle indents("Indents", {1, 2, 3, 0});
    cells("B2").IndentLevel(2);
    cells("B3").IndentLevel(1);
    indents.ApplyAsIndents(shared, cells("B2:B9,D4"), 0);
    EXPECT_EQ(cells("B2:B9,D4").IndentLevel(), Value(3));
    for (const char* all : {"3:4", "E:F", "1:1048576"}) {
        indents.ApplyAsIndents(shared, cells(all), 1);
        EXPECT_EQ(cells(all).IndentLevel(), Value(1)) << all;
        indents.ApplyAsIndents(shared, cells(all), 0);
        EXPECT_EQ(cells(all).IndentLevel(), Value(2)) << all;
    }
    cLongToggle widths("Widths", {5, 15});
    widths.ApplyAsColWidth(shared, cells("1:1"), 0);
    EXPECT_EQ(cells("A1:XFD1").ColumnWidth(), Value(5.0));
    cLongToggle heights("Heights", {30, 40});
    heights.ApplyAsRowHeight(shared, cells("C:C"), 2);
    EXPECT_EQ(cells("A1:A1048576").RowHeight(), Value(39.75));
}

// A value that the sheet refuses is recognised by what the cell shows instead; the next press goes on.
TEST_F(NumericCycles, RefusedValuesLeaveTheCells) {
    const double height = automation::to_double(cells("B2").RowHeight());
    cLongToggle heights("Heights", {1000, 30});
    heights.ApplyAsRowHeight(shared, cells("B2"), 0);
    EXPECT_EQ(cells("B2").RowHeight(), Value(height));
    EXPECT_EQ(heights.LookFors, (std::vector<double>{height, 30}));
    heights.ApplyAsRowHeight(shared, cells("B2"), 0);
    EXPECT_EQ(cells("B2").RowHeight(), Value(30.0));

    cLongToggle indents("Indents", {16, 1e300, 2});
    for (int press = 1; press <= 2; ++press) indents.ApplyAsIndents(shared, cells("B2"), 0);
    EXPECT_EQ(indents.LookFors, (std::vector<double>{0, 0, 2}));
    indents.ApplyAsIndents(shared, cells("B3"), 0);
    EXPECT_EQ(cells("B3").IndentLevel(), Value(2)) << "what looks the same is stepped over";
    indents.ApplyAsIndents(shared, cells("B2"), 0);
    EXPECT_EQ(cells("B2").IndentLevel(), Value(2));

    session.active_sheet()->protection().on = true;
    cLongToggle colors("Colors", {0xFF0000, 0x0000FF});
    colors.ApplyAsColors(shared, cells("B2"), 0);
    EXPECT_EQ(colors.LookFors, (std::vector<double>{0, 0x0000FF}));
    EXPECT_EQ(palette_color("B2"), Value(0));
}

TEST_F(NumericCycles, ColoursSelectTheRangeAgain) {
    cells("D5").Select();
    cLongToggle("Colors", {255}).ApplyAsColors(shared, cells("B2:B3,F4"), 0);
    EXPECT_EQ(excel::Range(application.Selection()).Address(), "$B$2:$B$3,$F$4");
    cells("D5").Select();
    cLongToggle("Indents", {1}).ApplyAsIndents(shared, cells("B2"), 0);
    EXPECT_EQ(excel::Range(application.Selection()).Address(), "$D$5");
}

TEST_F(NumericCycles, OldVersionsIndentThroughTheNumberFormat) {
    in_version("9.0");
    const struct {
        const char* before;
        std::int32_t level;
        const char* after;
    } rows[] = {
        {"General", 2, "General  "},
        {"#,##0_);(#,##0)", 1, "#,##0_) ;(#,##0) "},
        {"#,##0_)   ; (#,##0) ", 2, "#,##0_)  ;(#,##0)  "},
        {"0.0;-0.0;\"-\";@", 3, "0.0   ;-0.0   ;\"-\"   ;@   "},
        {"0;\"a;b \";\";\"", 1, "0 ;\"a;b \" ;\";\" "},
        {"0  ;-0", 0, "0;-0"},
        {";;;", 1, " ; ; ; "},
        {";;0  ;", 0, ";;0;"},
        {"0\\;;-0\\ ", 2, "0\\;  ;-0\\   "},            // a blank that is shown on purpose stays
        {"#,##0_ ;-#,##0_ ", 1, "#,##0_  ;-#,##0_  "},  // and so does the width of one
        {"#,##0_ ;-#,##0_ ", 0, "#,##0_ ;-#,##0_ "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.before) + " " + std::to_string(row.level));
        cells("B2").NumberFormat(row.before);
        ASSERT_EQ(format("B2"), row.before);
        cLongToggle cycle("Right Indent SmartCycle", {static_cast<double>(row.level)});
        cycle.ApplyAsRightIndents(shared, cells("B2"), 0);
        EXPECT_EQ(format("B2"), row.after);
        EXPECT_EQ(cycle.LookFors.front(), row.level) << "as it is read back";
        EXPECT_EQ(cells("B2").HorizontalAlignment(), Value(excel::xlRight));
        EXPECT_EQ(cells("B2").IndentLevel(), Value(0));
    }
    cLongToggle cycle("Right Indent SmartCycle", {1, 3, 0});
    cells("B2:C3").NumberFormat("0;-0");
    for (const char* seen : {"0 ;-0 ", "0   ;-0   ", "0;-0", "0 ;-0 "}) {
        cycle.ApplyAsRightIndents(shared, cells("B2:C3"), 0);
        EXPECT_EQ(format("B2:C3"), seen);
    }
    in_version("10.0");
    cycle.ApplyAsRightIndents(shared, cells("B2:C3"), 2);
    EXPECT_EQ(cells("B2:C3").IndentLevel(), Value(3));
    EXPECT_EQ(format("B2:C3"), "0 ;-0 ") << "the application indents";
}

// The rule for one cell, by itself.
std::string indented(std::string_view format, std::size_t level) {
    std::string result;
    std::string section;
    bool quoted = false;
    const auto close = [&] {
        section.erase(0, section.find_first_not_of(' '));
        section.erase(section.find_last_not_of(' ') + 1);
        result += section + std::string(level, ' ');
        section.clear();
    };
    for (const char c : format) {
        if (c == '"') quoted = !quoted;
        if (c != ';' || quoted) {
            section += c;
            continue;
        }
        close();
        result += ';';
    }
    close();
    return result;
}

TEST_F(NumericCycles, BlockwiseRightIndentIsThatOfEachCell) {
    in_version("9.0");
    const char* formats[] = {"General", "0", "0.00;-0.00", "#,##0_);(#,##0)  ", "0\"x;\" ;\"n/a\"", " @", "m/d/yyyy"};
    const char* ranges[] = {"A1:F12", "B2:C9,D4:F6", "C3", "A:B,D2:D9", "4:6", "A1:C4,B3:D8"};
    std::mt19937 random(11);
    const auto below = [&](std::size_t limit) { return static_cast<std::int32_t>(random() % limit); };
    for (int round = 0; round < 24; ++round) {
        cells("A1:F12").NumberFormat(formats[below(std::size(formats))]);
        for (int i = below(12); i > 0; --i) {
            const std::int32_t row = 1 + below(12);
            const std::int32_t column = 1 + below(6);
            cells("A1:F12")
                .Cells(row, column)
                .Resize(1 + below(13 - static_cast<std::size_t>(row)), 1 + below(7 - static_cast<std::size_t>(column)))
                .NumberFormat(formats[below(std::size(formats))]);
        }
        const char* range = ranges[below(std::size(ranges))];
        const auto level = static_cast<std::size_t>(below(5));
        const excel::Range block = cells("A1:F12");
        std::vector<std::string> expected;
        for (int i = 0; i < 72; ++i) {
            const excel::Range cell = block.Cells(i / 6 + 1, i % 6 + 1);
            const std::string now = automation::to_text(cell.NumberFormat());
            expected.push_back(application.Intersect(cell, cells(range)) ? indented(now, level) : now);
        }
        cLongToggle("Right", {static_cast<double>(level)}).ApplyAsRightIndents(shared, cells(range), 0);
        for (int i = 0; i < 72; ++i) {
            const excel::Range cell = block.Cells(i / 6 + 1, i % 6 + 1);
            ASSERT_EQ(automation::to_text(cell.NumberFormat()), expected[static_cast<std::size_t>(i)])
                << range << " " << cell.Address() << " in round " << round;
        }
    }
}

TEST_F(NumericCycles, APressCostsTheSameHoweverManyCells) {
    const ApplyMember members[] = {&cLongToggle::ApplyAsIndents, &cLongToggle::ApplyAsRightIndents,
                                   &cLongToggle::ApplyAsRowHeight, &cLongToggle::ApplyAsColWidth,
                                   &cLongToggle::ApplyAsColors};
    for (const char* version : {"9.0", "16.0"}) {
        in_version(version);
        for (const ApplyMember member : members) {
            const auto press = [&](const char* address) {
                cLongToggle cycle("A SmartCycle", {1, 2, 3});
                const excel::Range range = cells(address);
                return calls_of([&] { (cycle.*member)(shared, range, 0); });
            };
            const std::int64_t one = press("B2");
            EXPECT_LE(one, 20);
            EXPECT_EQ(press("D1:M10"), one);
            EXPECT_EQ(press("P1:Y1000"), one);
            EXPECT_EQ(press("AA:AC"), one);
        }
    }
    // Formats of columns, 10,000 cells.
    in_version("9.0");
    for (const char* column : {"P1:P1000", "R1:R1000", "T1:T1000", "V1:V1000", "X1:X1000"}) {
        cells(column).NumberFormat("0.00");
    }
    cLongToggle cycle("Right", {2});
    EXPECT_LE(calls_of([&] { cycle.ApplyAsRightIndents(shared, cells("P1:Y1000"), 0); }), 120);
    EXPECT_EQ(format("T1:T1000"), "0.00  ");
}

// The commands on the user's cycles: a press, straight to a value, no such value.
TEST_F(NumericCycles, CommandsDriveTheirProperty) {
    const auto indent = [&] { return cells("B2").IndentLevel(); };
    const auto height = [&] { return cells("B2").RowHeight(); };
    const auto width = [&] { return cells("B2").ColumnWidth(); };
    const auto color = [&] { return cells("B2").Font().Color(); };
    const struct {
        const char* request;
        std::function<Value()> shown;
        std::vector<double> seen;
    } rows[] = {
        {"58", indent, {1, 2, 3, 4, 0, 1}},
        {"58.3", indent, {3, 3}},
        {"58.6", indent, {3}},
        {"97", indent, {4, 0, 1}},
        {"97.2", indent, {2}},
        {"59", height, {8.25, 17.25, 33.75, 8.25}},
        {"60", width, {5, 15, 64, 150, 5}},
        {"60.2", width, {15}},
        {"46", color, {0xFF0000, 0, 0xFF0000}},
        {"47", color, {0xFFFFFF, 0x808080}},
        {"48.1", color, {0x0000FF}},
        {"48", color, {0x00FF00, 0x00FFFF, 0}},
        {"48", color, {0x0000FF}},  // black stands twice, and is left at once
        {"49.2", color, {0x00FFFF}},
        {"50", color, {0, 0x0000FF, 0x00FF00}},
    };
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < row.seen.size(); ++i) {
            press("B2", row.request);
            ASSERT_NEAR(automation::to_double(row.shown()), row.seen[i], 0.005) << row.request << " " << i;
        }
    }
    EXPECT_EQ(cells("B2").HorizontalAlignment(), Value(excel::xlRight));
    EXPECT_EQ(automation::to_integer(cells("B3").Font().Color()), 0);
}

}  // namespace
}  // namespace kestrune::styles
