#include <gmock/gmock.h>

#include "host_objects/FakeStore.h"
#include "host_objects/HostFixture.h"

namespace kestrune::host {
namespace {

class OpenWorkbooksTest : public HostTest {
  protected:
    OpenWorkbooksTest() {
        session.store = &store;
        for (const char* path : {"/files/a.xlsx", "/other/a.xlsx", "/files/b.xls", "/files/broken.xlsx"}) {
            store.saves[path] = 0;
        }
    }
    ObjectRef open(const char* path) { return automation::to_object(call(workbooks(), "Open", {path})); }
    ObjectRef add(Arguments arguments = {}) {
        return automation::to_object(call(workbooks(), "Add", std::move(arguments)));
    }
    ObjectRef workbooks() { return object(application, "Workbooks"); }
    Value active_name() { return get(object(application, "ActiveWorkbook"), "Name"); }

    FakeStore store;
};

TEST_F(OpenWorkbooksTest, OpensAFileOnce) {
    const ObjectRef book = open("/files/a.xlsx");
    EXPECT_EQ(get(book, "FullName"), Value("/files/a.xlsx"));
    EXPECT_EQ(active_name(), Value("a.xlsx"));
    EXPECT_EQ(get(workbooks(), "Count"), Value(2));
    put(object(object(book, "ActiveSheet"), "Range", {"A1"}), "Value", 7);
    call(object(workbooks(), "Item", {"model.xlsx"}), "Activate");
    const ObjectRef again = open("/files/a.xlsx");
    EXPECT_EQ(get(object(object(again, "ActiveSheet"), "Range", {"A1"}), "Value"), Value(7.0)) << "as it is";
    EXPECT_EQ(active_name(), Value("a.xlsx"));
    EXPECT_EQ(get(workbooks(), "Count"), Value(2));
}

TEST_F(OpenWorkbooksTest, SaysWhyAFileDoesNotOpen) {
    open("/files/a.xlsx");
    const std::pair<Arguments, const char*> cases[] = {
        {{"/files/none.xlsx"}, "Sorry, we couldn't find /files/none.xlsx."},
        {{"/other/a.xlsx"}, "two workbooks with the same name"},
        {{"/files/broken.xlsx"}, "/files/broken.xlsx: broken"},
        {{}, "no file is named"},
    };
    for (const auto& [arguments, why] : cases) {
        try {
            call(workbooks(), "Open", arguments);
            ADD_FAILURE() << why;
        } catch (const automation::AutomationError& error) {
            EXPECT_EQ(error.code(), error_1004) << why;
            EXPECT_THAT(error.description(), testing::HasSubstr(why));
        }
    }
    EXPECT_EQ(get(workbooks(), "Count"), Value(2));
    EXPECT_EQ(active_name(), Value("a.xlsx"));
}

TEST_F(OpenWorkbooksTest, AddsWorkbooksUnderFreeNames) {
    const ObjectRef first = add();
    EXPECT_EQ(get(first, "Name"), Value("Book1"));
    EXPECT_EQ(get(first, "FullName"), Value("Book1"));
    EXPECT_EQ(get(object(first, "Worksheets"), "Count"), Value(1));
    EXPECT_EQ(get(add({xlWBATWorksheet}), "Name"), Value("Book2"));
    EXPECT_EQ(active_name(), Value("Book2"));
    EXPECT_EQ(call_refused(workbooks(), "Add", {"template.xltx"}), error_1004);
    EXPECT_EQ(call_refused(first, "Save"), error_1004) << "it came from no file";
}

TEST_F(OpenWorkbooksTest, ClosesWithoutLosingChanges) {
    const auto changed = [&] {
        const ObjectRef book = open("/files/b.xls");
        put(object(object(book, "ActiveSheet"), "Range", {"A1"}), "Value", 7);
        return book;
    };
    const auto saves = [&] { return store.saves["/files/b.xls"]; };
    ObjectRef book = changed();
    EXPECT_EQ(call_refused(book, "Close"), error_1004) << "Excel would ask";
    EXPECT_EQ(call_refused(book, "Close", {true, "elsewhere.xls"}), error_1004);
    EXPECT_EQ(get(workbooks(), "Count"), Value(2));
    call(book, "Close", {true});
    EXPECT_EQ(saves(), 1);
    EXPECT_EQ(active_name(), Value("Model.xlsx"));

    call(changed(), "Close", {false});
    EXPECT_EQ(saves(), 1);
    book = changed();
    call(book, "Save");
    call(book, "Close");
    EXPECT_EQ(saves(), 2);
    put(application, "DisplayAlerts", false);
    call(changed(), "Close");
    EXPECT_EQ(saves(), 2);
    EXPECT_EQ(get(workbooks(), "Count"), Value(1));
}

TEST_F(OpenWorkbooksTest, ObjectsOfAClosedWorkbookAnswerThatItIsGone) {
    const ObjectRef book = object(application, "ActiveWorkbook");
    const ObjectRef inputs = sheet("Inputs");
    const ObjectRef cell = range("A1");
    call(book, "Close");
    EXPECT_EQ(object(application, "ActiveWorkbook"), nullptr);
    for (const auto& [target, member] : {std::pair{book, "Name"}, {inputs, "Name"}, {cell, "Value"}}) {
        EXPECT_EQ(call_refused(target, member), automation::hresult::workbook_gone) << member;
    }
}

class MacrosTest : public OpenWorkbooksTest {
  protected:
    // A macro that answers its own name.
    void add(const std::string& book, const std::string& macro) {
        session.macros.add(book, macro, [answer = book + ":" + macro](auto) { return Value(answer); });
    }
    Value run(Arguments arguments) { return call(application, "Run", std::move(arguments)); }
};

TEST_F(MacrosTest, AreFoundByTheirNames) {
    add("Model.xlsx", "mPublic.Init");
    add("It's here.xls", "mPublic.Init");
    add("It's here.xls", "mPublic.Two");
    add("It's here.xls", "mOther.Two");
    add("", "mDOM.RunMacro");
    EXPECT_EQ(call_refused(application, "Run", {"'It''s here.xls'!mPublic.Init"}), error_1004) << "not open yet";
    store.saves["/files/It's here.xls"] = 0;
    open("/files/It's here.xls");
    call(object(workbooks(), "Item", {"Model.xlsx"}), "Activate");
    const std::pair<const char*, const char*> found[] = {
        {"mPublic.Init", "Model.xlsx:mPublic.Init"},
        {"INIT", "Model.xlsx:mPublic.Init"},
        {"'It''s here.xls'!mPublic.Init", "It's here.xls:mPublic.Init"},
        {"'/files/It''s here.xls'!init", "It's here.xls:mPublic.Init"},
        {"Model.xlsx!mPublic.Init", "Model.xlsx:mPublic.Init"},
        {"mOther.Two", "It's here.xls:mOther.Two"},
        {"mDOM.RunMacro", ":mDOM.RunMacro"},
    };
    for (const auto& [name, macro] : found) EXPECT_EQ(run({name}), Value(macro)) << name;
    for (const char* name : {"Two", "mPublic", "'It''s here.xls!mPublic.Init", "Model.xlsx!mDOM.RunMacro", "", "'"}) {
        EXPECT_EQ(call_refused(application, "Run", {name}), error_1004) << name;
    }
    try {
        run({"Book9.xls!Gone"});
        ADD_FAILURE();
    } catch (const automation::AutomationError& error) {
        EXPECT_EQ(
            error.description(),
            "Cannot run the macro 'Book9.xls!Gone'. The macro may not be available in this workbook or all macros "
            "may be disabled.");
    }
}

TEST_F(MacrosTest, TakeArgumentsByValueAndMayCallExcel) {
    std::vector<Value> given;
    session.macros.add("", "Take", [&](std::span<const Value> arguments) {
        given.assign(arguments.begin(), arguments.end());
        put(range("A1"), "Value", 5);
        return Value(static_cast<std::int32_t>(arguments.size()));
    });
    EXPECT_EQ(run({"Take"}), Value(0));
    Arguments with_gap{"Take", 1, Missing{}, "three"};
    const auto before = session.calls();
    EXPECT_EQ(application->invoke("Run", automation::Call::Method, with_gap), Value(3));
    EXPECT_THAT(given, testing::ElementsAre(Value(1), Value(Missing{}), Value("three")));
    EXPECT_GT(session.calls(), before + 1) << "what the macro calls counts as its own calls";
    Arguments thirty(std::initializer_list<Value>{"Take"});
    thirty.positional.resize(31, Value(1));
    EXPECT_EQ(run(thirty), Value(30));
    thirty.positional.emplace_back(1);
    EXPECT_EQ(call_refused(application, "Run", thirty), automation::hresult::bad_argument_count);
    EXPECT_EQ(call_refused(application, "Run"), error_1004);
    session.macros.add("", "Take", [](auto) -> Value {
        throw automation::AutomationError(automation::hresult::overflow, "Take", "too much");
    });
    EXPECT_EQ(call_refused(application, "Run", {"Take"}), automation::hresult::overflow) << "its own failure";
    EXPECT_EQ(get(application, "Name"), Value("Microsoft Excel"));
}

}  // namespace
}  // namespace kestrune::host
