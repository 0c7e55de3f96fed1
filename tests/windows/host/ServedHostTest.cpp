// What clients of the served host rely on besides Excel's object model.
#include <gmock/gmock.h>

#include "automation/AutomationError.h"
#include "automation/Conversion.h"
#include "automation/Events.h"
#include "automation/MemberTable.h"
#include "contract_application/Excel.h"

namespace kestrune::contract {
namespace {

using automation::Arguments;
using automation::call;
using automation::get;
using automation::ObjectRef;
using automation::put;
using automation::to_object;
using automation::to_text;
using automation::Value;
using testing::ElementsAre;

ObjectRef object(const ObjectRef& from, std::string_view member, Arguments arguments = {}) {
    return to_object(get(*from, member, std::move(arguments)));
}

ObjectRef add_workbook(const ObjectRef& excel) { return to_object(call(*object(excel, "Workbooks"), "Add")); }

TEST(ServedHost, EachClientHasAnExcelOfItsOwn) {
    const ObjectRef one = new_excel();
    const ObjectRef other = new_excel();
    add_workbook(one);
    EXPECT_EQ(get(*object(one, "Workbooks"), "Count"), Value(1));
    EXPECT_EQ(get(*object(other, "Workbooks"), "Count"), Value(0));
}

TEST(ServedHost, ObjectsOutliveTheApplication) {
    ObjectRef excel = new_excel();
    const ObjectRef workbook = add_workbook(excel);
    excel.reset();
    const ObjectRef cell = object(object(workbook, "ActiveSheet"), "Range", {"C3"});
    put(*cell, "Value", 5);
    EXPECT_EQ(get(*cell, "Value"), Value(5.0));
    EXPECT_EQ(cell->type_name(), "Range");
    EXPECT_EQ(object(workbook, "Application")->type_name(), "Application");
}

TEST(ServedHost, RaisesItsEventsOverConnectionPoints) {
    const ObjectRef excel = new_excel();
    const ObjectRef workbook = add_workbook(excel);
    std::vector<std::string> heard;
    auto subscription = automation::subscribe(excel, [&](std::string_view event, Arguments& arguments) {
        std::string line(event);
        for (const Value& argument : arguments.positional) {
            const auto* about = argument.if_is<ObjectRef>();
            line += " " + (about ? std::string((*about)->type_name()) : to_text(argument));
        }
        heard.push_back(line);
        if (event == "WorkbookBeforeClose") arguments.positional.at(1) = true;
    });
    put(*object(object(workbook, "ActiveSheet"), "Range", {"B2:B3"}), "Value", "x");
    call(*workbook, "Close", {false});
    EXPECT_THAT(heard, ElementsAre("SheetChange Worksheet Range", "WorkbookBeforeClose Workbook False"));
    EXPECT_EQ(get(*object(excel, "Workbooks"), "Count"), Value(1));
    subscription.reset();
    call(*workbook, "Close", {false});
    EXPECT_EQ(heard.size(), 2U);
    EXPECT_EQ(get(*object(excel, "Workbooks"), "Count"), Value(0));
}

// A client's function, as VBScript's GetRef gives one: called by its default member.
class Function final : public automation::Served<Function> {
  public:
    static const automation::MemberTable& members() {
        static constexpr auto rows =
            automation::member_rows(automation::method<&Function::run>("Run", 0, "[First], [Second]"));
        static constexpr automation::MemberTable table("Function", rows);
        return table;
    }
    Value run(const Value& first, const Value& second) {
        calls.push_back(to_text(first) + "," + (second.is(Value::Kind::Missing) ? "-" : to_text(second)));
        return static_cast<double>(calls.size());
    }
    std::vector<std::string> calls;
};

TEST(ServedHost, RunsTheMacrosOfItsClient) {
    const ObjectRef excel = new_excel();
    const auto function = std::make_shared<Function>();
    call(*excel, "Run", {"TestHost.AddMacro", "", "mPublic.Note", ObjectRef(function)});
    EXPECT_EQ(call(*excel, "Run", {"mPublic.Note", "a"}), Value(1.0));
    EXPECT_EQ(call(*excel, "Run", {"Note", "b", 2}), Value(2.0));
    EXPECT_THAT(function->calls, ElementsAre("a,-", "b,2"));
    try {
        call(*excel, "Run", {"mPublic.Unknown"});
        FAIL() << "nothing failed";
    } catch (const automation::AutomationError& error) {
        EXPECT_EQ(error.code(), automation::hresult::excel_error);
    }
}

}  // namespace
}  // namespace kestrune::contract
