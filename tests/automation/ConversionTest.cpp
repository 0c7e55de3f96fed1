#include "automation/Conversion.h"

#include <gtest/gtest.h>

#include "automation/CreateObject.h"
#include "automation/ResumeNext.h"

namespace kestrune::automation {
namespace {

template <class Function>
HResult failure_of(Function function) {
    try {
        function();
    } catch (const AutomationError& error) {
        return error.code();
    }
    return hresult::ok;
}

TEST(ConversionTest, WholeNumbersTakeHalvesToTheEvenNeighbour) {
    const std::pair<Value, std::int32_t> cases[] = {
        {2.5, 2},      {3.5, 4},           {-2.5, -2}, {"5.1", 5},   {" 12 ", 12},
        {"&H1F", 31},  {"&HFFFFFFFF", -1}, {true, -1}, {Empty{}, 0}, {Date{45000.4}, 45000},
        {"1e3", 1000}, {"+4", 4},
    };
    for (const auto& [value, expected] : cases) EXPECT_EQ(to_integer(value), expected);
    for (const char* text : {"", "abc", "5x", "--5", "0x1F", "nan", "inf", "&H"}) {
        EXPECT_EQ(failure_of([&] { to_integer(text); }), hresult::type_mismatch) << text;
    }
    for (const Value& value : {Value(2147483647.6), Value("-3000000000"), Value("1e400")}) {
        EXPECT_EQ(failure_of([&] { to_integer(value); }), hresult::overflow);
    }
    for (const Value& value : {Value(Null{}), Value(Missing{}), Value(Error{2007}), Value(ObjectRef{})}) {
        EXPECT_EQ(failure_of([&] { to_double(value); }), hresult::type_mismatch);
    }
}

TEST(ConversionTest, BooleansAndTexts) {
    EXPECT_TRUE(to_boolean("true"));
    EXPECT_FALSE(to_boolean("FALSE"));
    EXPECT_TRUE(to_boolean("-1"));
    EXPECT_FALSE(to_boolean(0.0));
    EXPECT_EQ(failure_of([] { to_boolean("yes"); }), hresult::type_mismatch);
    EXPECT_EQ(to_text(0.1), "0.1");
    EXPECT_EQ(to_text(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(to_text(12.0), "12");
    EXPECT_EQ(to_text(true), "True");
}

TEST(ArrayTest, IndexesCountFromTheLowerBounds) {
    Array grid({1, 2}, {0, 3});
    grid.at(2, 0) = "x";
    EXPECT_EQ(grid.elements()[3], Value("x"));
    EXPECT_EQ(failure_of([&] { (void)grid.at(0, 0); }), hresult::bad_index);
    EXPECT_EQ(failure_of([&] { (void)grid.at(1); }), hresult::bad_index);
    EXPECT_EQ(Value(grid), Value(Array(grid))) << "arrays compare by content";
}

TEST(ResumeNextTest, SkipsAutomationFailuresOnlyAndTellsTheTrace) {
    Trace trace;
    std::vector<std::string> told;
    trace.listen([&](std::string_view line) { told.emplace_back(line); });
    const ResumeNext attempt(trace);
    int width = 7;
    EXPECT_FALSE(
        attempt.assign(width, []() -> int { throw AutomationError(hresult::excel_error, "Range.Width", "refused"); }));
    EXPECT_TRUE(attempt.assign(width, [&] { return width + 1; }));
    EXPECT_EQ(width, 8);
    EXPECT_EQ(told, std::vector<std::string>{"Range.Width: refused"});
    EXPECT_THROW(attempt([] { throw std::bad_alloc(); }), std::bad_alloc);
}

TEST(CreateObjectTest, FindsRegisteredClassesWhateverTheirCase) {
    EXPECT_EQ(failure_of([] { CreateObject("No.Such"); }), hresult::class_not_registered);
    register_class("Kestrune.Probe", [] { return ObjectRef{}; });
    EXPECT_EQ(CreateObject("kestrune.PROBE"), nullptr);
    unregister_class("Kestrune.Probe");
    EXPECT_EQ(failure_of([] { CreateObject("Kestrune.Probe"); }), hresult::class_not_registered);
}

}  // namespace
}  // namespace kestrune::automation
