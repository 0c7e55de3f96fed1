#include <cmath>
#include <ctime>

#include "host/objects/MacroCall.h"
#include "host/objects/keys/KeyPress.h"
#include "host_objects/HostFixture.h"
#include "keys/KeyText.h"

namespace kestrune::host {
namespace {

using keys::key;

class HostKeysTest : public HostTest {
  protected:
    // Writes down what runs, under the book's mDOM and without a workbook.
    HostKeysTest() {
        for (const char* book : {"Model.xlsx", "It's.xla"}) {
            session.macros.add(book, "mDOM.RunMacro", [this, book](std::span<const Value> given) {
                std::string line = book;
                for (const Value& argument : given) line += ' ' + automation::to_text(argument);
                ran.push_back(line);
                return Value();
            });
        }
    }
    std::vector<std::string> ran;
};

TEST_F(HostKeysTest, OnKeyBindsSwallowsAndGivesBack) {
    call(application, "OnKey", {"^+4", "'Model.xlsx'!'mDOM.RunMacro \"20\"'"});
    call(application, "OnKey", {"^+$", "other"});
    call(application, "OnKey", {"{F1}", ""});
    call(application, "OnKey", {"%{PGUP}", "third"});
    call(application, "OnKey", {"%{PGUP}"});
    call(application, "OnKey", {"{HOME}"});
    EXPECT_EQ(session.bound_keys, (std::map<keys::Key, std::string>{{key("Ctrl+Shift+4"), "other"}, {key("F1"), ""}}))
        << "Ctrl+Shift+4 and Ctrl+$ are one key";
    for (const char* none : {"", "^", "ab", "{FOO}", "{F16}", "Ctrl+4"}) {
        EXPECT_EQ(call_refused(application, "OnKey", {none, "macro"}), error_1004) << none;
    }
    EXPECT_EQ(session.bound_keys.size(), 2U);
}

TEST_F(HostKeysTest, MacrosAreCalledWithTheArgumentsInTheirText) {
    const struct {
        const char* text;
        const char* name;
        std::vector<Value> arguments;
    } cases[] = {
        {"mDOM.BRRedo", "mDOM.BRRedo", {}},
        {"'It''s.xla'!mDOM.BRRedo", "'It''s.xla'!mDOM.BRRedo", {}},
        {"'It''s.xla'!'mDOM.RunMacro \"20\"'", "'It''s.xla'!mDOM.RunMacro", {"20"}},
        {"Book.xla!'mDOM.Run'", "Book.xla!mDOM.Run", {}},
        {"'mDOM.RunMacro \"a \"\"b\"\", it''s\" , -3, 2.5,True, false'",
         "mDOM.RunMacro",
         {"a \"b\", it's", -3, 2.5, true, false}},
    };
    for (const auto& [text, name, arguments] : cases) {
        const auto call = MacroCall::parse(text);
        ASSERT_TRUE(call) << text;
        EXPECT_EQ(call->name, name);
        EXPECT_EQ(call->arguments, arguments) << text;
    }
    for (const char* wrong : {"'Run \"20'", "'Run 20 30'", "'Run x'", "'Run 1,,2'", "'Run \"a\"b'"}) {
        EXPECT_FALSE(MacroCall::parse(wrong)) << wrong;
        EXPECT_THROW(session.run_call(wrong), automation::AutomationError);
    }
}

struct KeyPressTest : HostKeysTest {
    using Effect = KeyPress::Effect;

    KeyPress press(const char* text) { return press_key(session, keys::read_key(text).key); }
    void press_all(const std::vector<const char*>& texts) {
        for (const char* text : texts) EXPECT_EQ(press(text).effect, Effect::Excel) << text;
    }
    // "$B$2:$C$3 at $B$2"
    std::string selected() {
        return address(object(application, "Selection")) + " at " + address(object(application, "ActiveCell"));
    }
};

TEST_F(KeyPressTest, RunsWhatIsBoundBeforeWhatExcelDoes) {
    call(application, "OnKey", {"^b", "'It''s.xla'!'mDOM.RunMacro \"20\"'"});
    call(application, "OnKey", {"^i", ""});
    call(application, "OnKey", {"^u", "'Model.xlsx'!mDOM.Nothing"});
    auto other = std::make_unique<Workbook>();
    other->name = "It's.xla";
    other->add_sheet("Sheet1");
    session.open(std::move(other));
    EXPECT_EQ(press("Ctrl+B").effect, Effect::Bound);
    EXPECT_EQ(ran, std::vector<std::string>{"It's.xla 20"});
    EXPECT_EQ(press("Ctrl+I").effect, Effect::Swallowed);
    EXPECT_THROW(press("Ctrl+U"), automation::AutomationError) << "there is no such macro";
    EXPECT_EQ(press("F2").effect, Effect::Unknown);
    EXPECT_EQ(press("F2").what, "edits the active cell");
    EXPECT_EQ(press("Ctrl+Alt+Q").effect, Effect::Unknown);
    EXPECT_EQ(get(font(object(application, "ActiveCell")), "Italic"), Value(false));
    call(application, "OnKey", {"^i"});
    press_all({"Ctrl+I"});
    EXPECT_EQ(get(font(object(application, "ActiveCell")), "Italic"), Value(true));
}

TEST_F(KeyPressTest, MovesAndSelectsAsInExcel) {
    put(range("B2:D4"), "Value", 1);
    put(range("B6"), "Value", 1);
    put(object(range("C:C"), "EntireColumn"), "Hidden", true);
    call(range("F2:G3"), "Merge");
    const struct {
        const char* from;
        std::vector<const char*> keys;
        const char* to;
    } cases[] = {
        {"A1", {"Right", "Down"}, "$B$2 at $B$2"},
        {"A1", {"Up", "Left"}, "$A$1 at $A$1"},
        {"B2", {"Right"}, "$D$2 at $D$2"},
        {"E2", {"Right", "Right"}, "$H$2 at $H$2"},
        {"B2", {"Ctrl+Down", "Ctrl+Down"}, "$B$6 at $B$6"},
        {"B2", {"Ctrl+Shift+Down", "Shift+Right"}, "$B$2:$D$4 at $B$2"},
        {"D4", {"Shift+Up", "Shift+Left", "Shift+Left"}, "$A$3:$D$4 at $D$4"},
        {"B2", {"Shift+Down", "Shift+Down", "Shift+Up"}, "$B$2:$B$3 at $B$2"},
        {"B4", {"Shift+Up", "Shift+Down", "Shift+Down"}, "$B$4:$B$5 at $B$4"},
        {"D3", {"Ctrl+A"}, "$B$2:$D$4 at $D$3"},
        {"D3", {"Ctrl+A", "Ctrl+A"}, "$1:$1048576 at $D$3"},
        {"J9", {"Ctrl+A"}, "$1:$1048576 at $J$9"},
        {"D3", {"Ctrl+Shift+8", "Shift+Backspace"}, "$D$3 at $D$3"},
        {"B2:D2", {"Ctrl+Space"}, "$B:$D at $B$2"},
        {"B2:B4", {"Shift+Space"}, "$2:$4 at $B$2"},
        {"D3", {"Home"}, "$A$3 at $A$3"},
        {"D3", {"Ctrl+Home"}, "$A$1 at $A$1"},
        {"D3", {"Ctrl+Shift+Home"}, "$A$1:$D$3 at $D$3"},
        {"A1", {"Ctrl+End"}, "$D$6 at $D$6"},
        {"B2:D3", {"Enter"}, "$B$2:$D$3 at $B$3"},
        {"B2:D3", {"Shift+Tab"}, "$B$2:$D$3 at $D$3"},
        {"D4", {"Enter", "Tab", "Shift+Enter"}, "$E$4 at $E$4"},
    };
    for (const auto& [from, keys, to] : cases) {
        call(range(from), "Select");
        press_all(keys);
        EXPECT_EQ(selected(), to) << from;
    }
    call(range("B4"), "Select");
    press_all({"Ctrl+PageDown", "Ctrl+PageDown"});
    EXPECT_EQ(get(object(application, "ActiveSheet"), "Name"), Value("It's Output"));
    press_all({"Ctrl+PageUp"});
    EXPECT_EQ(selected(), "$B$4 at $B$4");
}

TEST_F(KeyPressTest, FormatsFillsAndClearsAsInExcel) {
    put(range("B2"), "Value", 5);
    put(range("C2"), "Formula", "=B2*$A$1");
    put(font(range("C2")), "Bold", true);
    put(range("D3"), "Value", "old");
    call(range("B2:D4"), "Select");
    press_all({"Ctrl+D"});
    EXPECT_EQ(get(range("B4"), "Value"), Value(5.0));
    EXPECT_EQ(get(range("C4"), "Formula"), Value("=B4*$A$1"));
    EXPECT_EQ(get(font(range("C4")), "Bold"), Value(true));
    EXPECT_EQ(get(range("D3"), "Value"), Value()) << "nothing stands above";
    call(range("D2:D4"), "Select");
    press_all({"Ctrl+R"});
    EXPECT_EQ(get(range("D3"), "Formula"), Value("=C3*$A$1")) << "one column fills from its left";
    call(range("A1"), "Select");
    EXPECT_THROW(press("Ctrl+D"), automation::AutomationError);

    call(range("B2:D2"), "Select");
    press_all({"Ctrl+2"});
    EXPECT_EQ(get(font(range("B2:D2")), "Bold"), Value(true)) << "the active cell was not bold";
    press_all({"Ctrl+B", "Ctrl+3", "Ctrl+U", "Ctrl+5", "Ctrl+Shift+%", "Ctrl+&"});
    EXPECT_EQ(get(font(range("B2:D2")), "Bold"), Value(false));
    EXPECT_EQ(get(font(range("B2:D2")), "Italic"), Value(true));
    EXPECT_EQ(number(font(range("B2:D2")), "Underline"), xlUnderlineStyleSingle);
    EXPECT_EQ(get(font(range("B2:D2")), "Strikethrough"), Value(true));
    EXPECT_EQ(get(range("B2:D2"), "NumberFormat"), Value("0%"));
    EXPECT_EQ(number(border(range("B2:D2"), xlEdgeTop), "LineStyle"), xlContinuous);
    EXPECT_EQ(number(border(range("B2:D2"), xlInsideVertical), "LineStyle"), xlNone);
    press_all({"Ctrl+_", "Ctrl+9"});
    EXPECT_EQ(number(border(range("B2:D2"), xlEdgeTop), "LineStyle"), xlNone);
    EXPECT_EQ(get(object(range("2:2"), "EntireRow"), "Hidden"), Value(true));
    call(range("C3:C4"), "Select");
    press_all({"Delete", "Ctrl+;"});
    EXPECT_EQ(get(range("C4"), "Formula"), Value(""));
    const double today = std::floor(static_cast<double>(std::time(nullptr)) / 86'400) + 25'569;
    EXPECT_NEAR(number(range("C3"), "Value2"), today, 1) << "a time zone may be a day ahead or behind";
    session.macros.add({}, "Back", [this](auto) { return ran.emplace_back("back"), Value(); });
    call(application, "OnUndo", {"Undo", "Back"});
    press_all({"Ctrl+Z"});
    EXPECT_EQ(ran, std::vector<std::string>{"back"});
    inputs_sheet->protection().on = true;
    for (const char* text : {"Ctrl+B", "Delete", "Ctrl+D"}) {
        EXPECT_THROW(press(text), automation::AutomationError) << text << " on a protected sheet";
    }
}

}  // namespace
}  // namespace kestrune::host
