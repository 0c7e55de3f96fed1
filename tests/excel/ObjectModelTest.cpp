#include <gmock/gmock.h>

#include <fstream>
#include <map>
#include <string>

#include "excel/Application.h"

namespace kestrune::excel {
namespace {

// class TAB member -> kind TAB access TAB parameters, as Excel's reference lists them; for Application's Height and
// Width, whose pages leave the writing out, as Excel's type library does.
std::map<std::string, std::string> published_members() {
    std::ifstream file(KESTRUNE_SOURCE_DIR "/tests/excel/object-model.tsv");
    std::map<std::string, std::string> rows;
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        const std::size_t second_tab = line.find('\t', line.find('\t') + 1);
        rows.emplace(line.substr(0, second_tab), line.substr(second_tab + 1));
    }
    return rows;
}

std::string described(const MemberRow& row) {
    const std::string kind = row.access == Access::method    ? "method\t\t"
                             : row.access == Access::get_put ? "property\tget put\t"
                                                             : "property\tget\t";
    return kind + std::string(row.parameters);
}

// What a facade's list says otherwise than the reference; its calls are held to its list at compile time.
template <class... Classes>
std::vector<std::string> differences(const std::map<std::string, std::string>& published) {
    std::vector<std::string> found;
    const auto compare = [&](std::string_view class_name, const MemberRow& row) {
        const std::string member = std::string(class_name) + "\t" + std::string(row.name);
        const auto row_of_reference = published.find(member);
        if (row_of_reference == published.end()) {
            found.push_back(member + " is not in the reference");
        } else if (row_of_reference->second != described(row)) {
            found.push_back(member + ": " + described(row) + " instead of " + row_of_reference->second);
        }
    };
    (
        [&] {
            for (const MemberRow& row : Classes::members) compare(Classes::class_name, row);
        }(),
        ...);
    return found;
}

TEST(ObjectModel, EveryMemberThatAFacadeCallsIsExcels) {
    const auto published = published_members();
    ASSERT_GT(published.size(), 100U);
    EXPECT_THAT((differences<Application, Areas, Border, Borders, Font, FormatCondition, FormatConditions, Interior,
                             Name, Names, Range, Window, Workbook, Workbooks, Worksheet, Worksheets>(published)),
                testing::IsEmpty());
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
