#include <fmt/format.h>

#include <ostream>

#include "host/model/CustomFormats.h"
#include "lines/ModelToCut.h"

namespace kestrune::lines {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Requests = std::vector<std::string>;

// Requests for one selection after the other.
struct Presses {
    const char* selection;
    Requests requests;
};

std::ostream& operator<<(std::ostream& out, const Presses& presses) {
    out << presses.selection;
    for (const std::string& request : presses.requests) out << ' ' << request;
    return out;
}

// Everything undone is the start, everything redone is the end, twice.
TEST(RowsAndColumns, GivesBackWhatCommandsOnRowsAndColumnsDid) {
    const Presses all[] = {
        {"B3:C6", {"61"}},
        {"B:C", {"61"}},
        {"B4:C6", {"62"}},
        {"3:4", {"62"}},
        {"B4:C6", {"63"}},
        {"2:3,6:7", {"63"}},
        {"4:4,5:5", {"63"}},
        {"1:1", {"63"}},
        {"B4:C6", {"64"}},
        {"A:A,C:D", {"64"}},
        {"B4:C6", {"65"}},
        {"2:3,6:7", {"65"}},
        {"4:4,5:5", {"65"}},
        {"1:1", {"65"}},
        {"9:9", {"65"}},
        {"5:1048576", {"65"}},
        {"1048576:1048576", {"65"}},
        {"A:A", {"65"}},
        {"B4:C6", {"66"}},
        {"A:A,C:D", {"66"}},
        {"E:XFD", {"66"}},
        {"3:3", {"66"}},
        {"B4:C6", {"67"}},
        {"B4:C6", {"68"}},
        {"4:5", {"68"}},
        {"B4:C6", {"67", "67", "69"}},
        {"B4:C6", {"68", "74", "70"}},
        {"B4:C6", {"67", "73"}},
        {"B4:C6", {"67", "73", "71"}},
        {"B4:C6", {"68", "74", "72"}},
        {"B4:C6", {"67", "68", "79", "79"}},
        {"B4:C6", {"75"}},
        {"B4:C6", {"76"}},
        {"2:3,6:7", {"75", "77"}},
        {"B4:C6", {"76", "78"}},
        // Cells that a step speaks of go with rows that a later one deletes, and come back with them.
        {"B4:C6", {"63", "65"}},
        {"2:3,6:7", {"63", "20", "65"}},
        {"B4:C6", {"20", "65"}},
        {"B4:C6", {"59", "67", "65", "66"}},
        {"B4:C6", {"65", "65", "63", "66"}},
        {"B4:B9", {"66", "20", "64", "65"}},
        {"D5", {"65", "57"}},
    };
    for (const Presses& presses : all) {
        SCOPED_TRACE(testing::Message() << presses);
        ModelToCut fresh;
        for (const std::string& request : presses.requests) fresh.press(presses.selection, request);
        const auto steps = fresh.history("UndoHistory").size();
        const auto done = fresh.changes();
        EXPECT_EQ(steps, presses.requests.size());
        for (int times = 1; times <= 2; ++times) {
            for (std::size_t i = 0; i < steps; ++i) fresh.undo();
            EXPECT_THAT(fresh.changes(), IsEmpty()) << "undone";
            for (std::size_t i = 0; i < steps; ++i) fresh.redo();
            EXPECT_EQ(fresh.changes(), done) << "redone";
        }
        EXPECT_THAT(fresh.messages(), IsEmpty());
    }
}

// Formats, widths and heights at the sheet's end are gone once something came in before them, and so are the cells that
// earlier steps speak of.
TEST(RowsAndColumns, GivesBackWhatCameInPushedOffTheSheet) {
    ModelToCut fresh;
    const std::pair<const char*, const char*> presses[] = {
        {"XFD4:XFD6", "20"}, {"XFC:XFC", "60"}, {"B4:C6", "64"}, {"A1048570:D1048575", "21"}, {"1048576:1048576", "59"},
        {"4:6", "63"},       {"XFD:XFD", "30"}, {"A:A", "64"},   {"1048576:1048576", "63"},
    };
    for (const auto& [selection, request] : presses) fresh.press(selection, request);
    const auto done = fresh.changes();
    for (int times = 1; times <= 2; ++times) {
        for (std::size_t i = 0; i < std::size(presses); ++i) fresh.undo();
        EXPECT_THAT(fresh.changes(), IsEmpty()) << "undone";
        for (std::size_t i = 0; i < std::size(presses); ++i) fresh.redo();
        EXPECT_EQ(fresh.changes(), done) << "redone";
    }
    EXPECT_THAT(fresh.messages(), IsEmpty());
}

// As many rows as the sheet has would push everything off it.
TEST(RowsAndColumns, LetsNothingInWhereEverythingIsSelected) {
    for (const auto& [selection, request] :
         {std::pair{"1:4", "64"}, {"B:C", "63"}, {"A:XFD", "63"}, {"1:1048576", "64"}}) {
        ModelToCut fresh;
        fresh.press(selection, request);
        EXPECT_THAT(fresh.changes(), IsEmpty()) << selection;
        EXPECT_THAT(fresh.history("UndoHistory"), IsEmpty()) << selection;
    }
}

struct ByHand {
    const char* selection;
    Requests requests;
    std::function<void(const ModelToCut&)> edit;
    const char* message;  // of an undo
};

// What somebody did by hand in between stays, and nothing is written to cells that are others now.
TEST(RowsAndColumns, LeavesAloneWhatSomebodyMovedOrFilledByHand) {
    const auto insert = [](const char* lines) {
        return [lines](const ModelToCut& model) { model.cells(lines).Insert(); };
    };
    const auto enter = [](const char* cell, const char* text) {
        return [=](const ModelToCut& model) { model.cells(cell).Formula(text); };
    };
    constexpr const char* moved = "can no longer be undone: rows or columns have been inserted or deleted on Sheet1.";
    const ByHand all[] = {
        {"4:5", {"65"}, insert("2:2"), moved},
        {"4:5", {"65"}, insert("6:6"), moved},
        {"4:5", {"65"}, insert("C:C"), moved},
        {"C:C", {"66"}, insert("B:B"), moved},
        {"4:5", {"65"}, enter("D5", "=1"), "the formula in Sheet1!D5 has been changed since."},
        {"4:5",
         {"65"},
         [](const ModelToCut& model) { model.cells("A8:B8").MergeCells(true); },
         "merged areas, conditional formats or names have been changed since."},
        {"4:5", {"63"}, insert("1:1"), moved},
        {"4:5", {"63"}, insert("5:5"), moved},
        {"4:5", {"63"}, enter("C5", "mine"), "cannot be undone: something has been entered in the rows since."},
        {"C:C", {"64"}, enter("C5", "mine"), "cannot be undone: something has been entered in the columns since."},
        {"4:5", {"67"}, insert("1:1"), moved},
        {"4:5", {"75"}, insert("5:5"), moved},
        {"B4:C6", {"20"}, [](const ModelToCut& model) { model.cells("5:5").Delete(excel::xlUp); }, moved},
    };
    for (const ByHand& each : all) {
        SCOPED_TRACE(testing::Message() << each.selection << ' ' << each.requests.front() << ' ' << each.message);
        ModelToCut fresh;
        for (const std::string& request : each.requests) fresh.press(each.selection, request);
        each.edit(fresh);
        const auto before = fresh.changes();
        fresh.undo();
        EXPECT_EQ(fresh.changes(), before);
        EXPECT_THAT(fresh.messages(), ElementsAre(testing::EndsWith(each.message)));
    }
}

TEST_F(ModelToCut, DeletesAgainOnlyWhatItGaveBack) {
    press("4:5", "65");
    undo();
    cells("B4").Value("mine");
    const auto before = changes();
    redo();
    EXPECT_EQ(changes(), before);
    EXPECT_THAT(messages(),
                ElementsAre("Delete Rows on Sheet1!4:5 can no longer be redone: its cells have been changed "
                            "since."));
}

TEST_F(ModelToCut, HoldsRangesThroughRowsThatComeAndGo) {
    const excel::Range below = cells("B8");
    const excel::Range around = cells("A1:F9");
    const auto places = [&] { return below.Address() + " " + around.Address(); };
    press("4:5", "63");
    EXPECT_EQ(places(), "$B$10 $A$1:$F$11");
    undo();
    EXPECT_EQ(places(), "$B$8 $A$1:$F$9");
    press("4:5", "65");
    EXPECT_EQ(places(), "$B$6 $A$1:$F$7");
    undo();
    EXPECT_EQ(places(), "$B$8 $A$1:$F$9");
}

TEST(RowsAndColumns, SelectsWhatItChanged) {
    struct Selected {
        const char* selection;
        const char* request;
        const char* undone;
        const char* redone;
    };
    const Selected all[] = {
        {"B4:C6", "75", "$B$4:$C$6", "$B$4:$C$6"}, {"B4:C6", "63", "$4:$6", "$4:$6"}, {"B4:C6", "64", "$B:$C", "$B:$C"},
        {"2:3,6:7", "65", "$2:$3,$6:$7", "$2:$3"}, {"B4:C6", "66", "$B:$C", "$B:$C"},
    };
    for (const Selected& each : all) {
        SCOPED_TRACE(each.request);
        ModelToCut fresh;
        const auto selected = [&] { return excel::Range(fresh.application.Selection()).Address(); };
        fresh.press(each.selection, each.request);
        fresh.cells("F20").Select();
        fresh.undo();
        EXPECT_EQ(selected(), each.undone);
        fresh.cells("F20").Select();
        fresh.redo();
        EXPECT_EQ(selected(), each.redone);
    }
}

// A deletion asks when what lies on the lines would not be there again, and only then.
TEST(RowsAndColumns, AsksBeforeItDeletesWhatCannotBeMadeAnew) {
    using formula::Area;
    const auto validations = [](std::vector<std::vector<Area>> rules) { return host::LyingThings{{}, rules, {}}; };
    struct Lying {
        const char* selection;
        const char* request;
        host::LyingThings things;
        const char* why;  // empty: nobody is asked
    };
    const Lying all[] = {
        {"4:5", "65", {{Area{5, 2, 5, 2}}, {}, {}}, "its cells hold comments"},
        {"4:5", "65", {{Area{6, 2, 6, 2}}, {}, {}}, ""},
        {"C:C", "66", {{Area{6, 3, 6, 3}}, {}, {}}, "its cells hold comments"},
        {"4:5", "65", validations({{Area{4, 2, 8, 2}}}), "its cells hold data validations"},
        {"4:5", "65", validations({{Area{2, 2, 8, 2}}}), ""},
        {"4:5", "65", validations({{Area{2, 2, 8, 2}}, {Area{2, 3, 5, 3}}}), "its cells hold data validations"},
        {"4:5", "65", validations({{Area{6, 2, 8, 2}}}), ""},
        {"4:5", "65", {{}, {}, {{"Chart 1", Area{5, 2, 8, 4}}}}, "Chart 1 lies on its cells"},
        {"4:5", "65", {{}, {}, {{"Chart 1", Area{2, 2, 8, 4}}}}, ""},
        {"C:C", "66", {{}, {}, {{"Logo", Area{2, 3, 8, 3}}}}, "Logo lies on its cells"},
        {"12:13", "65", {}, "the table Prices would not be the same again"},
        {"13:13", "65", {}, ""},
        {"G:G", "66", {}, "the table Prices would not be the same again"},
    };
    for (const Lying& each : all) {
        SCOPED_TRACE(testing::Message() << each.selection << ' ' << each.request << ' ' << each.why);
        for (const forms::MsgBoxResult answer : {forms::vbCancel, forms::vbOK}) {
            ModelToCut fresh;
            fresh.workbook->read_lying = [&](std::size_t sheet) {
                return sheet == 0 ? each.things : host::LyingThings();
            };
            fresh.workbook->read_tables = [] {
                return std::vector<host::Table>{{"Prices", 0, Area{12, 7, 15, 8}, true, false, {"a", "b"}}};
            };
            fresh.presenter.answer_next(answer);
            fresh.press(each.selection, each.request);
            if (!*each.why) {
                EXPECT_THAT(fresh.messages(), IsEmpty());
                EXPECT_EQ(fresh.history("UndoHistory").size(), 1U);
                continue;
            }
            EXPECT_THAT(fresh.messages(), ElementsAre(testing::HasSubstr(fmt::format(
                                              " cannot be undone: {}.  Do you wish to proceed?", each.why))));
            EXPECT_THAT(fresh.history("UndoHistory"), IsEmpty());
            EXPECT_EQ(fresh.changes().empty(), answer == forms::vbCancel);
        }
    }
}

TEST(RowsAndColumns, RefusesAProtectedSheetWhole) {
    for (int command = 61; command <= 79; ++command) {
        ModelToCut fresh;
        for (host::Workbook* each : {fresh.workbook, fresh.first}) each->sheets()[0]->protection().on = true;
        fresh.press("B4:C6", std::to_string(command));
        EXPECT_THAT(fresh.changes(), IsEmpty()) << command;
        EXPECT_THAT(fresh.history("UndoHistory"), IsEmpty()) << command;
        EXPECT_THAT(fresh.messages(), IsEmpty()) << command;
    }
}

TEST_F(ModelToCut, WaitsForAProtectedSheetAndThenGivesBack) {
    press("B4:C6", "65");
    workbook->sheets()[0]->protection().on = true;
    undo();
    EXPECT_THAT(messages(),
                ElementsAre("Delete Rows on Sheet1!4:6 cannot be undone: the worksheet Sheet1 is protected."));
    workbook->sheets()[0]->protection().on = false;
    undo();
    EXPECT_THAT(changes(), IsEmpty());
}

// The outline opens when anything of it is closed, else closes; what the selection hides shows again.
TEST_F(ModelToCut, TogglesTheOutlineOfTheSheet) {
    const auto hidden = [&](const char* lines) { return cells(lines).Hidden(); };
    press("B4:C6", "67");
    press("B4:C6", "68");
    press("E1", "79");
    EXPECT_EQ(hidden("4:6"), automation::Value(true));
    EXPECT_EQ(hidden("B:C"), automation::Value(true));
    press("E1", "79");
    EXPECT_EQ(hidden("4:6"), automation::Value(false));
    EXPECT_EQ(hidden("B:C"), automation::Value(false));
    press("C5", "79");
    EXPECT_EQ(hidden("5:5"), automation::Value(false)) << "selected";
    EXPECT_EQ(hidden("4:4"), automation::Value(true));
    EXPECT_EQ(hidden("C:C"), automation::Value(false)) << "selected";
    EXPECT_EQ(hidden("B:B"), automation::Value(true));
}

// Tells the library the number formats of the model.
struct FormatsOfModel : brxllib::CustomFormats {
    std::vector<brxllib::CustomFormat> of(const excel::Workbook&) override {
        std::vector<brxllib::CustomFormat> formats;
        for (host::CustomNumberFormat& each : host::custom_number_formats(*model))
            formats.push_back({std::move(each.code), each.in_use});
        return formats;
    }
    host::Workbook* model = nullptr;
};

struct NumberFormatsTest : ModelToCut {
    NumberFormatsTest() {
        formats.model = workbook;
        stop();
        brxllib::register_library(trace, {.presenter = &presenter, .formats = &formats});
        start();
    }
    ~NumberFormatsTest() override { stop(); }
    [[nodiscard]] std::vector<std::string> codes() {
        std::vector<std::string> found;
        for (const brxllib::CustomFormat& format : formats.of({})) found.push_back(format.code);
        return found;
    }
    FormatsOfModel formats;
};

TEST_F(NumberFormatsTest, UnusedOnesThatWereRemovedComeBack) {
    for (const char* code : {"0.00000", "0.000000", "0.0x"}) cells("F1").NumberFormat(code);
    ASSERT_THAT(codes(), ElementsAre("0.00000", "0.000000", "0.0x"));
    press("A1", "100");
    EXPECT_THAT(codes(), ElementsAre("0.0x"));
    undo();
    EXPECT_THAT(codes(), testing::UnorderedElementsAre("0.00000", "0.000000", "0.0x"));
    EXPECT_EQ(cells("A1").NumberFormat(), automation::Value("General"));
    redo();
    EXPECT_THAT(codes(), ElementsAre("0.0x"));
    undo();
    cells("F2").NumberFormat("0.00000");
    const std::size_t said = messages().size();
    redo();
    ASSERT_EQ(messages().size(), said + 1);
    EXPECT_THAT(messages().back(), testing::EndsWith("the number format 0.00000 is in use now."));
    EXPECT_EQ(cells("F2").NumberFormat(), automation::Value("0.00000"));
}

}  // namespace
}  // namespace kestrune::lines
