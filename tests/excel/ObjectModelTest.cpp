#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <string>

#include "excel/Application.h"
#include "excel/PublishedModel.h"

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

TEST(ObjectModel, EveryMemberThatAFacadeCallsIsExcels) {
    const auto published = published::members();
    ASSERT_GT(published.size(), 100U);
    EXPECT_THAT((differences<Application, Areas, Border, Borders, Font, FormatCondition, FormatConditions, Hyperlink,
                             Hyperlinks, Interior, ListObject, ListObjects, Name, Names, Protection, Range, Window,
                             Workbook, Workbooks, Worksheet, Worksheets>(published)),
                testing::IsEmpty());
}

// Every constant of Excel's and Office's that a source of ours gives a value.
TEST(ObjectModel, EveryConstantHasExcelsValue) {
    const auto published = published::constants();
    const std::regex definition(R"(\b((?:xl|mso)[A-Z]\w*)\s*=\s*(-?\d+)\s*[;,])");
    std::vector<std::string> wrong;
    int found = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(KESTRUNE_SOURCE_DIR "/src")) {
        if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            for (std::sregex_iterator match(line.begin(), line.end(), definition), end; match != end; ++match) {
                ++found;
                const auto known = published.find((*match)[1]);
                if (known == published.end() || !known->second.contains(std::stol((*match)[2]))) {
                    wrong.push_back(entry.path().filename().string() + ": " + match->str());
                }
            }
        }
    }
    EXPECT_GT(found, 100);
    EXPECT_THAT(wrong, testing::IsEmpty());
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
