#include <gmock/gmock.h>

#include <map>
#include <set>
#include <string>

#include "excel/Application.h"
#include "excel/CommandBarButton.h"
#include "excel/CommandBarPopup.h"
#include "excel/PublishedModel.h"
#include "excel/Style.h"

namespace kestrune::excel {
namespace {

published::Member described(const MemberRow& row) {
    const bool method = row.access == Access::method;
    return {method ? "method" : "property",
            method                          ? ""
            : row.access == Access::get_put ? "get put"
                                            : "get",
            std::string(row.parameters)};
}

// What a facade's list says otherwise than the reference; its calls are held to its list at compile time.
template <class... Classes>
std::vector<std::string> differences(const std::map<std::string, published::Member>& published) {
    std::vector<std::string> found;
    const auto compare = [&](std::string_view class_name, const MemberRow& row) {
        const std::string member = std::string(class_name) + "." + std::string(row.name);
        const auto known = published.find(member);
        if (known == published.end()) {
            found.push_back(member + " is not in the reference");
        } else if (const auto own = described(row); !(own == known->second)) {
            const auto& [kind, access, parameters] = known->second;
            found.push_back(member + ": " + own.kind + " " + own.access + " (" + own.parameters + ") instead of " +
                            kind + " " + access + " (" + parameters + ")");
        }
    };
    (
        [&] {
            for (const MemberRow& row : Classes::members) compare(Classes::class_name, row);
        }(),
        ...);
    return found;
}

template <class... Classes>
struct Facades {
    static std::vector<std::string> compare() { return differences<Classes...>(published::members()); }
    static std::set<std::string> names() { return {std::string(Classes::class_name)...}; }
};
using AllFacades = Facades<Application, Areas, Border, Borders, CommandBar, CommandBarButton, CommandBarControl,
                           CommandBarControls, CommandBarPopup, CommandBars, Font, FormatCondition, FormatConditions,
                           Hyperlink, Hyperlinks, Interior, ListObject, ListObjects, Name, Names, Outline, Protection,
                           Range, Shape, Shapes, Style, Window, Workbook, Workbooks, Worksheet, Worksheets>;

TEST(ObjectModel, EveryMemberThatAFacadeCallsIsExcels) {
    EXPECT_THAT(AllFacades::compare(), testing::IsEmpty());
    std::set<std::string> classes;
    for (const auto& found : published::in_sources("excel", R"-(class_name = "(\w+)")-"))
        classes.insert(found.groups[1]);
    EXPECT_EQ(AllFacades::names(), classes) << "a facade that is not in the list is not compared";
}

TEST(ObjectModel, EveryConstantHasExcelsValue) {
    const auto published = published::constants();
    const auto definitions = published::in_sources("", R"(\b((?:xl|mso)[A-Z]\w*)\s*=\s*(-?\d+)\s*[;,])");
    EXPECT_GT(definitions.size(), 100U);
    for (const auto& [file, groups] : definitions) {
        const auto known = published.find(groups[1]);
        ASSERT_NE(known, published.end()) << file << ": Excel has no constant " << groups[1];
        EXPECT_TRUE(known->second.contains(std::stol(groups[2]))) << file << ": " << groups[0];
    }
}

TEST(ObjectModel, EveryEventIsExcels) {
    const auto published = published::events();
    std::map<std::string, long> ids;  // of Excel's AppEvents interface, by its type library
    for (const auto& row : published::rows("events.tsv", 3)) ids[row[1]] = std::stol(row[2], nullptr, 16);
    const auto heard = published::in_sources("windows/com", R"-(\{"(\w+)", 0x([0-9A-F]+)\})-");
    EXPECT_EQ(heard.size(), ids.size());
    for (const auto& [file, groups] : heard) EXPECT_EQ(ids[groups[1]], std::stol(groups[2], nullptr, 16)) << groups[0];
    const auto raised = published::in_sources("host/objects", R"-(\braise(?:_of)?\(\s*"(\w+)")-");
    EXPECT_GT(raised.size(), 4U);
    for (const auto& [file, groups] : raised) {
        EXPECT_TRUE(published.contains("Application." + groups[1])) << file << ": there is no event " << groups[1];
        EXPECT_TRUE(ids.contains(groups[1])) << file << ": nobody can hear " << groups[1];
    }
}

// Answers 12 to everything and keeps the last call.
class Recorder : public automation::Object {
  public:
    Value invoke(std::string_view member, automation::Call kind, automation::Arguments& arguments) override {
        last_member = member;
        last_kind = kind;
        last_arguments = arguments.positional;
        return 12;
    }
    [[nodiscard]] std::string_view type_name() const override { return "Range"; }

    std::string last_member;
    automation::Call last_kind{};
    std::vector<Value> last_arguments;
};

TEST(Facade, CallsReadsAndWritesWithArgumentsInOrder) {
    const auto recorder = std::make_shared<Recorder>();
    const auto last = [&](std::string_view member, automation::Call kind, std::vector<Value> arguments) {
        EXPECT_EQ(recorder->last_member, member);
        EXPECT_EQ(recorder->last_kind, kind);
        EXPECT_EQ(recorder->last_arguments, arguments);
    };
    EXPECT_EQ(Workbook(recorder).Colors(3), 12);
    last("Colors", automation::Call::Get, {3});
    Workbook(recorder).Colors(3, 255);
    last("Colors", automation::Call::Put, {3, 255});
    EXPECT_EQ(Range(recorder).NumberFormat(), Value(12));
    last("NumberFormat", automation::Call::Get, {});
    Range(recorder).Value(1.5);
    last("Value", automation::Call::Put, {1.5});
    Application(recorder).Run("mPublic.Init", 7, "x");
    last("Run", automation::Call::Method, {"mPublic.Init", 7, "x"});
    EXPECT_EQ(Window(recorder).Zoom(), 12);
    EXPECT_EQ(Worksheet(recorder).Name(), "12");
}

TEST(Facade, FailsOnNothingAndOnAnswersOfAnotherKind) {
    const auto code_of = [](auto statement) {
        try {
            statement();
        } catch (const automation::AutomationError& error) {
            return error.code();
        }
        return automation::hresult::ok;
    };
    EXPECT_EQ(code_of([] { Range().Select(); }), automation::hresult::object_required);
    const auto recorder = std::make_shared<Recorder>();
    EXPECT_EQ(code_of([&] { (void)Range(recorder).Font(); }), automation::hresult::object_required);
    EXPECT_FALSE(Range::is(nullptr));
    EXPECT_TRUE(Range::is(recorder));
    EXPECT_FALSE(Worksheet::is(recorder));
}

}  // namespace
}  // namespace kestrune::excel
