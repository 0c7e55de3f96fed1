#include "core/CommandTable.h"
#include "host/objects/HostSession.h"
#include "styles/AddInInHost.h"

namespace kestrune::core {
namespace {

using automation::Value;
using testing::ElementsAre;
using testing::IsEmpty;

// The add-in with a real companion workbook and its macros, and its library's undo at hand.
struct UndoTest : styles::AddInInHost {
    UndoTest() {
        stop();
        const automation::ObjectRef library = automation::CreateObject("BRXLLib.iPublic");
        automation::register_class("BRXLLib.iPublic", [library] { return library; });
        undo_redo = automation::to_object(automation::get(*library, "iUndoRedo"));
        workbook->name = "It's here.xlsx";
        entry = automation::CreateObject("KestruneXL.iPublic");
        automation::call(*entry, "NewPublic", {application.object(), application.ActiveWorkbook().object()});
        global = automation::to_object(automation::call(*entry, "NewGlobal"));
        for (const char* member : {"BRUndo", "BRRedo"}) {
            session.macros.add("It's here.xlsx", std::string("mDOM.") + member,
                               [this, member](auto) { return automation::call(*global, member); });
        }
    }

    void undo() const { automation::call(*global, "BRUndo"); }
    void redo() const { automation::call(*global, "BRRedo"); }
    [[nodiscard]] std::vector<std::string> list(std::string_view member) const {
        std::vector<std::string> texts;
        const Value answer = automation::get(*undo_redo, member);
        for (const Value& text : answer.array()->elements()) texts.push_back(automation::to_text(text));
        return texts;
    }
    [[nodiscard]] std::vector<std::string> undoable() const { return list("UndoHistory"); }
    [[nodiscard]] std::vector<std::string> redoable() const { return list("RedoHistory"); }
    [[nodiscard]] std::string format_of(std::string_view address) const {
        return automation::to_text(cells(address).NumberFormat());
    }
    // The only message since the last call.
    std::string message() {
        const auto& all = presenter.messages();
        if (all.size() != seen + 1) return std::to_string(all.size() - seen) + " messages";
        EXPECT_EQ(all[seen].caption, "Brannoch Kestrune");
        return all[seen++].text;
    }

    automation::ObjectRef undo_redo;
    std::size_t seen = 0;
};

TEST_F(UndoTest, TakesPressesBackAndDoesThemAgain) {
    press("B4:F20", "20");
    const std::string first = format_of("B4");
    press("C5,E6:F7", "20.3");
    press("B2", "21.2");
    EXPECT_THAT(undoable(), ElementsAre("Percent SmartCycle on Sheet1!B2", "Currency SmartCycle on Sheet1!C5,E6:F7",
                                        "Currency SmartCycle on Sheet1!B4:F20"));
    const std::string third = format_of("C5");
    undo();
    undo();
    EXPECT_EQ(format_of("C5"), first);
    undo();
    EXPECT_EQ(format_of("B4:F20"), "General");
    redo();
    redo();
    EXPECT_EQ(format_of("C5"), third);
    EXPECT_EQ(format_of("D5"), first);
    EXPECT_THAT(redoable(), ElementsAre("Percent SmartCycle on Sheet1!B2"));
    press("B4", "20.3");
    EXPECT_THAT(redoable(), IsEmpty());
    EXPECT_THAT(presenter.messages(), IsEmpty());
}

TEST_F(UndoTest, KeepsNoStepOfWhatChangedNothing) {
    press("B2", "20.3");
    press("B2", "20.3");  // the format that it has
    press("B2", "98");    // a window
    press("B2", "103");   // no command
    EXPECT_THAT(undoable(), ElementsAre("Currency SmartCycle on Sheet1!B2"));
    undo();
    press("B2", "87");
    EXPECT_THAT(redoable(), ElementsAre("Currency SmartCycle on Sheet1!B2"));
}

TEST_F(UndoTest, TakesBackWhatIsNoCommand) {
    automation::call(*global, "ApplySmartCycleStyle", {1, 2, cells("D4:E5").object()});
    automation::call(*global, "ApplySmartCycleStyle", {1, 2, Value(automation::ObjectRef())});
    cells("A1").Value(12);
    cells("A1:A2").Select();
    automation::call(*global, "RunAutoColor");
    cells("B1:C2").Select();
    automation::call(*global, "SetBRUndo");
    cells("B1").Value("by a macro");
    EXPECT_EQ(undoable().front(), "Changes on Sheet1!B1:C2");
    undo();
    EXPECT_EQ(cells("B1").Value(), Value());
    redo();
    EXPECT_EQ(cells("B1").Value(), Value("by a macro"));
}

TEST_F(UndoTest, ArmsExcelsOwnUndoLastOfAll) {
    cells("A1").Value(1);
    EXPECT_FALSE(session.on_undo);
    press("A1", "20");
    ASSERT_TRUE(session.on_undo);
    EXPECT_EQ(session.on_undo->text, "Undo Currency SmartCycle on Sheet1!A1");
    EXPECT_EQ(session.on_undo->procedure, "'It''s here.xlsx'!mDOM.BRUndo");
    EXPECT_FALSE(session.on_repeat);
    press("A1", "20");
    press("A1", "87");
    ASSERT_TRUE(session.on_undo) << "a zoom changes no cells";
    const auto excel = [&](const char* member) { automation::call(*application.object(), member); };
    excel("Undo");
    excel("Undo");
    EXPECT_EQ(format_of("A1"), "General");
    EXPECT_FALSE(session.on_undo) << "nothing is left";
    ASSERT_TRUE(session.on_repeat);
    EXPECT_EQ(session.on_repeat->text, "Redo Currency SmartCycle on Sheet1!A1");
    EXPECT_THROW(excel("Undo"), automation::AutomationError);
    excel("Repeat");
    ASSERT_TRUE(session.on_undo);
    cells("F9").Value("typed");
    EXPECT_THROW(excel("Undo"), automation::AutomationError) << "Excel's own turn";
}

TEST_F(UndoTest, LeavesAloneWhatSomebodyChangedSince) {
    press("D4", "20");
    press("A1:B2", "20");
    cells("B2").NumberFormat("0.000");
    undo();
    EXPECT_EQ(message(),
              "Currency SmartCycle on Sheet1!A1:B2 can no longer be undone: its cells have been changed since.");
    EXPECT_EQ(format_of("B2"), "0.000");
    EXPECT_NE(format_of("A1"), "General");
    undo();
    EXPECT_EQ(format_of("D4"), "General") << "the rest of the stack is right";
    cells("D4").NumberFormat("0.0");
    redo();
    EXPECT_EQ(message(),
              "Currency SmartCycle on Sheet1!D4 can no longer be redone: its cells have been changed since.");
    EXPECT_THAT(undoable(), IsEmpty());
}

TEST_F(UndoTest, WaitsForAProtectedSheet) {
    press("A1:B2", "20");
    workbook->sheets()[0]->protection().on = true;
    undo();
    EXPECT_THAT(
        message(),
        testing::StartsWith("Currency SmartCycle on Sheet1!A1:B2 cannot be undone: the worksheet Sheet1 is protected"));
    EXPECT_NE(format_of("A1:B2"), "General");
    workbook->sheets()[0]->protection().on = false;
    undo();
    EXPECT_EQ(format_of("A1:B2"), "General");
}

TEST_F(UndoTest, KnowsRenamedWorkbooksAndMissesClosedOnes) {
    press("A1", "20");
    workbook->name = "Renamed.xlsx";
    session.add_workbook();
    press("A1", "20");
    session.close(*session.active()->model);
    undo();
    EXPECT_EQ(
        message(),
        "Currency SmartCycle on Sheet1!A1 can no longer be undone: its worksheet or workbook is no longer there.");
    undo();
    EXPECT_EQ(format_of("A1"), "General");
    EXPECT_THAT(redoable(), ElementsAre("Currency SmartCycle on Sheet1!A1"));
}

TEST_F(UndoTest, AsksBeforeWhatItCannotHold) {
    automation::put(*undo_redo, "MemoryLimit", 600);
    for (int row = 1; row <= 60; ++row) cells("A" + std::to_string(row) + ":J" + std::to_string(row)).Value(row);
    presenter.answer_next(forms::vbCancel);
    press("A1:J60", "20");
    EXPECT_EQ(
        message(),
        "Currency SmartCycle on Sheet1!A1:J60 cannot be undone: it changes more than undo can hold.  Do you wish to "
        "proceed?");
    EXPECT_EQ(presenter.messages().back().buttons, forms::vbOKCancel | forms::vbExclamation);
    EXPECT_EQ(format_of("B2"), "General");
    press("A1:J60", "20.1");
    EXPECT_NE(message(), "");
    EXPECT_NE(format_of("B2"), "General");
    EXPECT_THAT(undoable(), IsEmpty());
    automation::put(*undo_redo, "StepLimit", 0);
    press("D80", "20");
    EXPECT_THAT(undoable(), IsEmpty());
    EXPECT_EQ(presenter.messages().size(), seen) << "who switched undo off is not asked";
}

// The few that are not undone are meant: nobody leaves a row's cells out by mistake.
TEST(UndoTable, SaysOfEveryCommandWhatItTouches) {
    std::vector<std::int32_t> nothing, lasting;
    for (const Command& command : commands()) {
        if (!command.touches.changes_workbook()) nothing.push_back(command.number);
        if (command.touches.reach == Reach::Lasting) lasting.push_back(command.number);
        const bool recorded = command.touches.reach == Reach::Recorded || !command.touches.undoable();
        EXPECT_EQ(command.touches.aspects == Aspects::None, recorded) << command.number;
    }
    EXPECT_THAT(nothing, ElementsAre(7, 8, 10, 11, 13, 14, 17, 87, 88, 89, 90, 91, 92, 98, 99));
    EXPECT_THAT(lasting, ElementsAre(16));
}

}  // namespace
}  // namespace kestrune::core
