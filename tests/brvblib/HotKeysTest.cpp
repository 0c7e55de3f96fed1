// The registry of hot keys, in front of a fake Excel and with several clients; from the same source on Linux and, under
// Wine, on Windows.
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

#include "brvblib/LibraryTest.h"
#include "brvblib/Paths.h"
#include "brvblib/SystemServices.h"
#include "brvblib/TestFolder.h"
#include "forms/Form.h"
#include "forms/MsgBox.h"

namespace kestrune::brvblib {
namespace {

namespace fs = std::filesystem;

using automation::Array;
using automation::AutomationError;
using automation::call;
using automation::get;
using automation::ObjectRef;
using automation::put;
using automation::Value;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;

// Writes down what OnKey is asked for, and does as Excel does.
class FakeExcel : public automation::Served<FakeExcel> {
  public:
    static const automation::MemberTable& members() {
        static constexpr auto rows =
            automation::member_rows(automation::method<&FakeExcel::on_key>("OnKey", 1, "Key, [Procedure]"));
        static constexpr automation::MemberTable table("Application", rows);
        return table;
    }
    std::map<std::string, std::string> bound;
    std::map<std::string, int> given_back;
    int calls = 0;
    std::string refused;

  private:
    void on_key(const std::string& key, const std::optional<std::string>& procedure) {
        ++calls;
        if (key == refused) throw AutomationError(automation::hresult::excel_error, "OnKey", "refused");
        if (procedure) {
            bound[key] = *procedure;
        } else {
            EXPECT_EQ(bound.erase(key), 1U) << key << " was not bound";
            ++given_back[key];
        }
    }
};

// A product's call-back with a few commands, in the layout of the command array.
class FakeClient : public automation::Served<FakeClient> {
  public:
    FakeClient(std::string product, std::vector<std::vector<Value>> commands)
        : product_(std::move(product)), commands_(std::move(commands)) {}
    static const automation::MemberTable& members() {
        using C = FakeClient;
        static constexpr auto rows =
            automation::member_rows(automation::read_only<&C::product>("BRProductName", 1),
                                    automation::method<&C::append>("AddDefaultMacroArray", 2, "MacroArray"),
                                    automation::method<&C::run>("RunMacro", 4, "Number"));
        static constexpr automation::MemberTable table("FakeClient", rows);
        return table;
    }
    std::vector<std::int32_t> ran;
    std::function<void(Value&)> spoil = {};  // what a faulty client does to the array

  private:
    [[nodiscard]] std::string product() const { return product_; }
    void append(Value& array) const {
        std::vector<Value> entries;
        if (array.array()) entries = array.array()->elements();
        for (const auto& command : commands_) {
            Array entry(Array::Bound{0, static_cast<std::int32_t>(command.size())});
            entry.elements() = command;
            entries.emplace_back(entry);
        }
        Array longer(Array::Bound{0, static_cast<std::int32_t>(entries.size())});
        longer.elements() = std::move(entries);
        array = std::move(longer);
        if (spoil) spoil(array);
    }
    bool run(std::int32_t number) {
        ran.push_back(number);
        return true;
    }

    std::string product_;
    std::vector<std::vector<Value>> commands_;
};

std::vector<Value> command(const char* name, const char* key, const char* chosen = "", int off = 0) {
    return {name, std::string(name) + ".", key, "Group", "Topic", chosen, off};
}

struct HotKeysTest : LibraryTest {
    HotKeysTest() {
        add_system_services(services);
        services.data_folder = with_separator(to_utf8(folder.path() / "made when needed"));
        load();
    }

    ObjectRef registry() { return automation::to_object(get(*part("iHotKeys"), "Registry")); }
    std::string answer_of(const char* member, automation::Arguments arguments = {}) {
        try {
            return automation::to_text(registry()->invoke(member, automation::Call::MethodOrGet, arguments));
        } catch (const AutomationError& error) {
            return "<" + error.description() + ">";
        }
    }
    void add(const char* client, const std::shared_ptr<FakeClient>& callback) {
        call(*registry(), "RegisterCallback", {client, callback});
        call(*registry(), "SetMacros", {client, "It's.xla", "mDOM"});
    }
    void bind() {
        call(*library, "SetApplication", {excel});
        call(*registry(), "Bind");
    }
    // "20 Ctrl+Shift+4 default" for every row of the table.
    std::vector<std::string> table() {
        const Value value = get(*registry(), "Table");
        const Array& array = *value.array();
        std::vector<std::string> lines;
        for (std::int32_t row = 1; row <= array.bound(0).count; ++row) {
            const auto text = [&](std::int32_t column) { return automation::to_text(array.at(row, column)); };
            lines.push_back(text(1) + "." + text(3) + " " + text(7) + " " + text(9));
        }
        return lines;
    }
    [[nodiscard]] fs::path file() const { return to_path(services.data_folder) / "HotKeys.xml"; }
    [[nodiscard]] std::string file_text() const {
        std::ifstream in(file(), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    void write_file(const std::string& text) const {
        fs::create_directories(file().parent_path());
        std::ofstream(file(), std::ios::binary) << text;
    }
    [[nodiscard]] std::vector<std::string> files() const {
        std::vector<std::string> names;
        if (!fs::exists(file().parent_path())) return names;
        for (const auto& entry : fs::directory_iterator(file().parent_path())) {
            names.push_back(to_utf8(entry.path().filename()));
        }
        std::ranges::sort(names);
        return names;
    }

    TestFolder folder;
    std::shared_ptr<FakeExcel> excel = std::make_shared<FakeExcel>();
    std::shared_ptr<FakeClient> first = std::make_shared<FakeClient>(
        "First", std::vector{command("Copy", "Ctrl+Shift+R"), command("Bare", ""), command("Cycle", "ctrl-$"),
                             command("Own", "Ctrl+Shift+M", "Alt+F7"), command("Off", "Ctrl+Shift+O", "", -1)});
    std::shared_ptr<FakeClient> second = std::make_shared<FakeClient>(
        "Second", std::vector{command("Other", "Ctrl+Shift+4"), command("Late", "Ctrl+Shift+E")});
};

TEST_F(HotKeysTest, TheFirstClientKeepsAKeyAndTheOtherIsTold) {
    add("One", first);
    add("Two", second);
    EXPECT_THAT(table(), ElementsAre("One.0 Ctrl+Shift+R default", "One.1  ", "One.2 Ctrl+Shift+4 default",
                                     "One.3 Alt+F7 default", "One.4  ", "Two.0  conflict with Cycle",
                                     "Two.1 Ctrl+Shift+E default"));
    EXPECT_EQ(answer_of("Owner", {"ctrl+shift+4"}), "3");
    EXPECT_EQ(answer_of("Owner", {"Ctrl+Alt+Q"}), "0");
    EXPECT_EQ(answer_of("Key", {"2"}), "Ctrl+Shift+4") << "only one client has a 2";
    EXPECT_EQ(answer_of("RunKey", {"Ctrl+Shift+E"}), "True");
    EXPECT_THAT(second->ran, ElementsAre(1));
    EXPECT_THAT(first->ran, IsEmpty());
    EXPECT_EQ(answer_of("ExcelMeaning", {"Ctrl+$"}), "gives the currency format with two decimals");
}

// In the dialog, on a copy: what a key does is told before it is given away, and nothing is so until OK or Apply.
TEST_F(HotKeysTest, TheManagerGivesKeysToCommands) {
    add("One", first);
    add("Two", second);
    bind();
    const auto at_first = table();
    const auto choose = [](forms::Form& form, const char* sought) {
        form.type(form["txtSearch"], sought);
        EXPECT_EQ(form["lstCommands"].List().size(), 1U) << sought;
    };
    const auto press = [](forms::Form& form, const char* key) {
        form.type(form["txtKey"], key);
        return form["lblMeaning"].Caption();
    };
    presenter.answer_next(forms::vbNo);
    presenter.answer_next(forms::vbYes);
    presenter.work_next([&](forms::Form& form) {
        EXPECT_EQ(form["lstCommands"].List().size(), 7U);
        choose(form, "ctrl+shift+e");
        EXPECT_EQ(press(form, "x"), "X: types a character; hold Ctrl or Alt with it.");
        EXPECT_FALSE(form["btnAssign"].Enabled());
        EXPECT_THAT(press(form, "ctrl-shift-4"),
                    HasSubstr("Ctrl+Shift+4 is the key of Cycle (2).  In Excel it gives the currency format"));
        form.click(form["btnAssign"]);  // asked, and declined
        EXPECT_THAT(form["lstCommands"].List().front(), HasSubstr("Ctrl+Shift+E"));
        form.click(form["btnAssign"]);
        form.type(form["txtSearch"], "cycle first");
        EXPECT_THAT(form["lstCommands"].List().front(), HasSubstr("cleared"));
        choose(form, "alt+f7");
        form.click(form["btnRemove"]);
        EXPECT_EQ(table(), at_first) << "all of it is a copy's";
        form.click(form["btnApply"]);
        form.click(form["btnReset"]);
        form.click(form["btnCancel"]);
    });
    call(*registry(), "ShowManager");
    EXPECT_THAT(table(), ElementsAre("One.0 Ctrl+Shift+R default", "One.1  ", "One.2  cleared", "One.3  cleared",
                                     "One.4  ", "Two.0  conflict with Late", "Two.1 Ctrl+Shift+4 chosen"));
    EXPECT_FALSE(excel->bound.contains("%{F7}"));

    // A new library object reads what was kept.
    presenter.answer_next(forms::vbYes);
    presenter.work_next([&](forms::Form& form) {
        form.click(form["btnCopy"]);
        EXPECT_THAT(presenter.clipboard(), HasSubstr("Ctrl+Shift+R\tGroup\t"));
        form.click(form["btnResetAll"]);
        form.click(form["ckbEnabled"]);
        form.click(form["btnOK"]);
        EXPECT_FALSE(form.Visible());
    });
    call(*registry(), "ShowManager");
    EXPECT_EQ(table(), at_first);
    EXPECT_THAT(excel->bound, IsEmpty()) << "switched off";
}

TEST_F(HotKeysTest, EveryBoundKeyIsGivenBackOnce) {
    add("One", first);
    bind();
    EXPECT_THAT(excel->bound, ElementsAre(Pair("%{F7}", "'It''s.xla'!'mDOM.RunMacro \"3\"'"),
                                          Pair("^+4", "'It''s.xla'!'mDOM.RunMacro \"2\"'"),
                                          Pair("^+r", "'It''s.xla'!'mDOM.RunMacro \"0\"'")));
    const int calls = excel->calls;
    bind();
    EXPECT_EQ(excel->calls, calls) << "what is bound already costs no call";
    add("Two", second);
    call(*registry(), "AddMacro", {"Two", "BRRedo", "Redo", "Does it again.", "Ctrl+Shift+Z", "Undo"});
    EXPECT_EQ(excel->bound.size(), 5U);
    EXPECT_EQ(excel->bound.at("^+z"), "'It''s.xla'!mDOM.BRRedo");

    call(*registry(), "SetKey", {"0", "Ctrl+Shift+Y", "One"});
    EXPECT_EQ(excel->given_back, (std::map<std::string, int>{{"^+r", 1}}));
    EXPECT_EQ(excel->bound.at("^+y"), "'It''s.xla'!'mDOM.RunMacro \"0\"'");
    call(*registry(), "Swallow", {"F1"});
    EXPECT_EQ(excel->bound.at("{F1}"), "");
    put(*registry(), "Enabled", false);
    EXPECT_THAT(excel->bound, IsEmpty());
    EXPECT_EQ(answer_of("RunKey", {"Ctrl+Shift+Y"}), "False");
    put(*registry(), "Enabled", true);
    EXPECT_EQ(excel->bound.size(), 6U);

    excel->given_back.clear();
    call(*library, "UnregisterClient", {"One"});
    EXPECT_THAT(excel->bound, ElementsAre(Pair("^+4", "'It''s.xla'!'mDOM.RunMacro \"0\"'"),
                                          Pair("^+e", "'It''s.xla'!'mDOM.RunMacro \"1\"'"),
                                          Pair("^+z", "'It''s.xla'!mDOM.BRRedo"), Pair("{F1}", "")))
        << "the key that both wanted is the other's now";
    EXPECT_EQ(excel->given_back, (std::map<std::string, int>{{"%{F7}", 1}, {"^+y", 1}}));
    call(*registry(), "UnregisterCallback", {"Two"});
    EXPECT_THAT(excel->bound, IsEmpty());
    for (const auto& [key, times] : excel->given_back) EXPECT_EQ(times, 1) << key;
    EXPECT_EQ(excel->given_back.size(), 6U);
}

TEST_F(HotKeysTest, ALibraryThatIsLetGoOfLeavesNoKeyBound) {
    // A product that never unregisters, with a library object of its own.
    library = automation::CreateObject("BRVBLib.iPublic");
    add("One", first);
    bind();
    ASSERT_EQ(excel->bound.size(), 3U);
    const std::weak_ptr<FakeClient> client = first;
    const std::weak_ptr<FakeExcel> application = excel;
    first = nullptr;
    library = nullptr;
    EXPECT_THAT(excel->bound, IsEmpty());
    for (const auto& [key, times] : excel->given_back) EXPECT_EQ(times, 1) << key;
    EXPECT_TRUE(client.expired());
    excel = nullptr;
    EXPECT_TRUE(application.expired());
}

TEST_F(HotKeysTest, WhatExcelRefusesLosesThatKeyOnly) {
    excel->refused = "^+4";
    add("One", first);
    bind();
    EXPECT_EQ(excel->bound.size(), 2U);
    EXPECT_EQ(skipped, std::vector<std::string>{"OnKey: refused"});
    excel->refused = "^+r";
    put(*registry(), "Enabled", false);
    EXPECT_THAT(excel->bound, ElementsAre(Pair("^+r", testing::_))) << "Excel would not take it back";
    excel->refused.clear();
    put(*registry(), "Enabled", true);
    EXPECT_EQ(excel->bound.size(), 3U);
    put(*registry(), "Enabled", false);
    EXPECT_THAT(excel->bound, IsEmpty());
}

TEST_F(HotKeysTest, LibrariesOfAProcessShareTheKeys) {
    add("One", first);
    const ObjectRef other = automation::CreateObject("BRVBLib.iPublic");
    const ObjectRef its = automation::to_object(get(*automation::to_object(get(*other, "iHotKeys")), "Registry"));
    EXPECT_EQ(call(*its, "Callback", {"one"}), Value(first));
    EXPECT_EQ(call(*its, "UnregisterCallback", {"One"}), Value(true));
    EXPECT_EQ(call(*registry(), "Callback", {"One"}), Value(nullptr));
    EXPECT_EQ(call(*registry(), "UnregisterCallback", {"One"}), Value(false));
}

TEST_F(HotKeysTest, FaultyClientsLoseTheirOwnCommandsOnly) {
    const struct {
        const char* what;
        std::function<void(Value&)> spoil;
        std::size_t rows;
    } cases[] = {
        {"no array", [](Value& array) { array = "text"; }, 2},
        {"shorter than before",
         [](Value& array) {
             array = Array(Array::Bound{0, 1});
         },
         2},
        {"two dimensions",
         [](Value& array) {
             array = Array({0, 9}, {0, 9});
         },
         2},
        {"a failure", [](Value&) { throw AutomationError(automation::hresult::exception, "Client", "fails"); }, 2},
        {"an entry that is none",
         [](Value& array) {
             Array spoilt = *array.array();
             spoilt.elements().back() = 7;
             array = spoilt;
         },
         2 + 4},
    };
    for (const auto& [what, spoil, rows] : cases) {
        load();
        skipped.clear();
        add("Two", second);
        first->spoil = spoil;
        add("One", first);
        EXPECT_EQ(table().size(), rows) << what;
        EXPECT_EQ(skipped.size(), 1U) << what;
    }
    load();
    skipped.clear();
    add("Odd", std::make_shared<FakeClient>(
                   "Odd", std::vector{command("A", "Ctrl+Foo"), command("B", "q"), command("C", "Alt+F4"),
                                      std::vector<Value>{}, std::vector<Value>{"Short"}}));
    EXPECT_THAT(table(), ElementsAre("Odd.0  ", "Odd.1  ", "Odd.2  ", "Odd.3  ", "Odd.4  "));
    EXPECT_THAT(skipped, ElementsAre("Ctrl+Foo: there is no key 'Foo'",
                                     "q: types a character; hold Ctrl or Alt with it", "Alt+F4: belongs to Windows"));
}

TEST_F(HotKeysTest, TheUsersKeysAreKept) {
    add("One", first);
    call(*registry(), "SetKey", {"1", "ctrl-alt-pgup"});
    call(*registry(), "ClearKey", {"0"});
    call(*registry(), "ClearKey", {"4"});
    call(*registry(), "Swallow", {"F1"});
    put(*registry(), "Enabled", false);
    EXPECT_EQ(table()[1], "One.1 Ctrl+Alt+PageUp chosen");
    EXPECT_THAT(files(), ElementsAre("HotKeys.xml"));
    const std::string kept = file_text();
    EXPECT_THAT(kept,
                HasSubstr("\r\n  <Enabled dt:dt=\"boolean\">0</Enabled>\r\n  <Command>\r\n    <Client>One</Client>\r\n"
                          "    <Number>1</Number>\r\n    <Key>Ctrl+Alt+PageUp</Key>\r\n  </Command>\r\n  <Command>\r\n"
                          "    <Client>One</Client>\r\n    <Number>0</Number>\r\n    <Key></Key>\r\n  </Command>\r\n"
                          "  <Swallowed>F1</Swallowed>\r\n"));

    load();
    add("Two", second);
    EXPECT_EQ(get(*registry(), "Enabled"), Value(false));
    call(*registry(), "SetKey", {"1", "Ctrl+Shift+R"});
    EXPECT_EQ(table()[1], "Two.1 Ctrl+Shift+R chosen");
    add("One", first);
    EXPECT_EQ(table()[2], "One.0  cleared") << "kept while its client was not there";
    EXPECT_EQ(answer_of("ResetKey", {"0", "One"}), "<Ctrl+Shift+R: is the key of Late (1); clear that first>");
    call(*registry(), "ResetKey", {"1", "Two"});
    call(*registry(), "ResetKey", {"0", "One"});
    EXPECT_EQ(table()[2], "One.0 Ctrl+Shift+R default");
    call(*registry(), "Unswallow", {"f1"});
    call(*registry(), "ResetAllKeys");
    put(*registry(), "Enabled", true);
    EXPECT_EQ(table()[3], "One.1  ");
    EXPECT_THAT(file_text(), testing::Not(HasSubstr("<Command>")));

    // Another Excel of the same user changes the file in between; neither loses what the other chose.
    call(*registry(), "SetKey", {"1", "Ctrl+Alt+F5", "One"});
    const auto other = automation::CreateObject("BRVBLib.iPublic");
    std::string from_elsewhere = file_text();
    const std::string mark = "Ctrl+Alt+F5";
    from_elsewhere.replace(from_elsewhere.find(mark), mark.size(), "Ctrl+Alt+F6");
    write_file(from_elsewhere);
    call(*registry(), "ClearKey", {"2", "One"});
    EXPECT_EQ(table()[3], "One.1 Ctrl+Alt+F6 chosen");
    EXPECT_THAT(file_text(), HasSubstr("Ctrl+Alt+F6"));
}

TEST_F(HotKeysTest, WhatCannotBeIsRefusedInOneLine) {
    add("One", first);
    add("Two", second);
    call(*registry(), "Swallow", {"F1"});
    bind();
    const std::string kept = file_text();
    const auto before = table();
    const int calls = excel->calls;
    const struct {
        const char* member;
        std::vector<Value> arguments;
        const char* line;
    } cases[] = {
        {"SetKey", {"0", "Ctrl+Foo", "One"}, "Ctrl+Foo: there is no key 'Foo'"},
        {"SetKey", {"0", "", "One"}, "a key: names no key to press"},
        {"SetKey", {"0", "q", "One"}, "Q: types a character; hold Ctrl or Alt with it"},
        {"SetKey",
         {"0", "Shift+Delete", "One"},
         "Shift+Delete: is needed to enter and to move; hold Ctrl or Alt with it"},
        {"SetKey", {"0", "Ctrl+Alt+Del", "One"}, "Ctrl+Alt+Delete: belongs to Windows"},
        {"SetKey", {"0", "Ctrl+Shift+4", "One"}, "Ctrl+Shift+4: is the key of Cycle (2); clear that first"},
        {"SetKey", {"0", "F1", "One"}, "F1: is a key that is to do nothing; release it first"},
        {"SetKey", {"103", "Ctrl+Q"}, "103: there is no such command"},
        {"SetKey", {"3", "Ctrl+Q", "Two"}, "3: Two has no such command"},
        {"SetKey", {"0", "Ctrl+Q"}, "0: is a command of One and of Two; name one of them"},
        {"ClearKey", {"No"}, "No: there is no such command"},
        {"ResetKey", {"No"}, "No: there is no such command"},
        {"Swallow", {"Ctrl+Shift+R"}, "Ctrl+Shift+R: is the key of Copy (0); clear that first"},
        {"Swallow", {"F1"}, "F1: is a key that is to do nothing; release it first"},
        {"Unswallow", {"F2"}, "F2: is no key that is to do nothing"},
        {"NormalKey", {"Alt+F4"}, "Alt+F4: belongs to Windows"},
        {"SetMacros", {"Three", "x", "y"}, "Three: is not registered"},
    };
    for (const auto& c : cases) {
        automation::Arguments arguments;
        arguments.positional = c.arguments;
        EXPECT_EQ(answer_of(c.member, arguments), std::string("<") + c.line + ">");
    }
    EXPECT_EQ(file_text(), kept);
    EXPECT_EQ(table(), before);
    EXPECT_EQ(excel->calls, calls);
}

TEST_F(HotKeysTest, FilesThatCannotBeUsedAreKeptAside) {
    add("One", first);
    call(*registry(), "ClearKey", {"0"});
    const std::string good = file_text();
    const auto with = [&](const std::string& from, const std::string& to) {
        std::string text = good;
        EXPECT_NE(text.find(from), std::string::npos) << from;
        return text.replace(text.find(from), from.size(), to);
    };
    const struct {
        std::string text;
        const char* line;
    } cases[] = {
        {"", ""},
        {good.substr(0, good.size() / 2), ""},
        {with("HotKeys", "!DOCTYPE x><HotKeys"), ""},
        {with("id=\"{", "id=\"{0"), "is no hot-key document"},
        {with("version=\"1.0\" id", "version=\"2.0\" id"), "later than 1.0"},
        {with("<Enabled dt:dt=\"boolean\">1</Enabled>", ""), "a HotKeys has no Enabled"},
        {with(">1<", ">perhaps<"), "perhaps"},
        {with("<Key></Key>", "<Key>Ctrl+Foo</Key>"), "Ctrl+Foo: there is no key 'Foo'"},
        {with("<Key></Key>", "<Key>A</Key>"), "A: types a character"},
        {with("<Client>One</Client>", ""), "a Command has no Client"},
        {with("</Command>", "</Command><Command><Client>one</Client><Number>0</Number><Key/></Command>"),
         "stands there twice"},
    };
    for (const auto& [text, line] : cases) {
        fs::remove_all(file().parent_path());
        write_file(text);
        load();
        add("One", first);
        EXPECT_EQ(table()[0], "One.0 Ctrl+Shift+R default") << text;
        EXPECT_THAT(answer_of("Problem"),
                    testing::AllOf(HasSubstr("HotKeys.xml: "), HasSubstr(line),
                                   HasSubstr("it is kept as HotKeys (unreadable).xml"), testing::Not(HasSubstr("\n"))));
        EXPECT_THAT(files(), ElementsAre("HotKeys (unreadable).xml"));
        call(*registry(), "ClearKey", {"2"});
        EXPECT_THAT(files(), ElementsAre("HotKeys (unreadable).xml", "HotKeys.xml"));
        EXPECT_EQ(answer_of("Problem"), "");
    }
    // A folder in the file's place is left alone, and told when it is in the way.
    fs::remove_all(file().parent_path());
    fs::create_directories(file());
    load();
    add("One", first);
    EXPECT_EQ(answer_of("Problem"), "");
    EXPECT_THAT(answer_of("ClearKey", {"0"}), HasSubstr("HotKeys.xml: "));
    EXPECT_EQ(table()[0], "One.0 Ctrl+Shift+R default") << "what could not be kept has no effect";
    // Comments, other indentation and UTF-16 are as good.
    fs::remove_all(file().parent_path());
    std::string text = with("<Key></Key>", "<!-- mine -->\n\t<Key> ctrl-shift-9 </Key>");
    text.replace(text.find("UTF-8"), 5, "UTF-16");
    std::string wide = "\xFF\xFE";
    for (const char c : text) {
        if (c != '\r') wide.append({c, '\0'});
    }
    write_file(wide);
    load();
    add("One", first);
    EXPECT_EQ(answer_of("Problem"), "");
    EXPECT_EQ(table()[0], "One.0 Ctrl+Shift+9 chosen");
}

}  // namespace
}  // namespace kestrune::brvblib
