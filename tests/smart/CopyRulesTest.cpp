#include "core/bridges/diBRVBLib.h"
#include "smart/copy/Condition.h"
#include "smart/copy/OffsetAdjustment.h"
#include "smart/copy/Scan.h"
#include "styles/AddInInHost.h"

namespace kestrune::smart {
namespace {

using automation::Date;
using automation::Value;

TEST(CopyScan, TakesTheLinesOfEachChoice) {
    using enum ScanChoice;
    const struct {
        const char* labels;  // from the copied line on: x a label, . none
        ScanChoice choice;
        std::int32_t interval;
        const char* copied;  // x: the line gets a copy
    } cases[] = {
        {"xxx.xx", Contiguous, 5, ".xx..."},
        {"x.xx", Contiguous, 5, "...."},
        {"xx.x..x", Intervals, 1, ".x.x..."},
        {"xx.x..x", Intervals, 2, ".x.x..x"},
        {"x..x", Intervals, 1, "...."},
        {"xx.x", Intervals, 0, ".x.."},
        {"x...x..xx", All, 0, "....x..xx"},
        {"x.x.x.x", AllIntervals, 1, "..x.x.x"},
        {"xxxxxxx", AllIntervals, 2, "...x..x"},
        {"x..x", AllIntervals, 0, ".xxx"},
        {"xxx", AllIntervals, 2147483647, "..."},
        {"xxx", AllIntervals, 1000000000, "..."},
        {"x", All, 0, "."},
        {"", All, 0, ""},
        {"xxx", AllIntervals, -1, "..."},
    };
    for (const auto& one : cases) {
        const std::string_view labels = one.labels;
        std::string copied(labels.size(), '.');
        std::vector<bool> labelled;
        for (const char c : labels) labelled.push_back(c == 'x');
        try {
            for (const std::int32_t line : target_lines(labelled, 7, one.choice, one.interval)) {
                copied[static_cast<std::size_t>(line - 7)] = 'x';
            }
        } catch (const automation::AutomationError&) {
            EXPECT_EQ(one.interval, 2147483647) << "only what leads out of 32 bits fails";
        }
        EXPECT_EQ(copied, one.copied) << labels << " " << static_cast<int>(one.choice) << " " << one.interval;
    }
}

TEST(CopyScan, ChoicesAndOptionsGoTogether) {
    settings::SmartCopyOptions options;
    EXPECT_EQ(scan_choice(options), ScanChoice::Intervals) << "of a fresh installation";
    for (int choice = 0; choice < 4; ++choice) {
        choose_scan(options, static_cast<ScanChoice>(choice));
        EXPECT_EQ(static_cast<int>(scan_choice(options)), choice);
    }
    EXPECT_EQ(options.Intervals + options.Rule + (options.Skip ? " all" : ""), "INTERVALALWAYS");
}

TEST(CopyOffsets, ReachOverSkippedLines) {
    const struct {
        std::int32_t source, target;
        const char* formula;
        const char* adjusted;
    } cases[] = {
        {5, 8, "=R[-1]C+R[1]C+R5C", "=R[-3]C+R[1]C+R5C"},
        {5, 6, "=R[-1]C", "=R[-1]C"},
        {5, 8, "R[-1]C", "R[-1]C"},
        {5, 7, "=SUM(R[-12]C[-1]:R[-1]C[2])*RC[-1]", "=SUM(R[-13]C[-1]:R[-2]C[2])*RC[-1]"},
        {5, 7, "=\"R[-1]C\"&'R[-1]'!R[-1]C&\"\"", "=\"R[-1]C\"&'R[-1]'!R[-2]C&\"\""},
        {5, 7, "=SUM(YEAR[-1])+[Book.xlsx]Sheet1!R[-2]C", "=SUM(YEAR[-1])+[Book.xlsx]Sheet1!R[-3]C"},
        {5, 7, "=R[-1", "=R[-1"},
        {5, 7, "=R[x]C+\"R[-1]", "=R[x]C+\"R[-1]"},
        {5, 7, "", ""},
    };
    for (const auto& one : cases) EXPECT_EQ(AdjustRowOffsets(one.source, one.target, one.formula), one.adjusted);
    EXPECT_EQ(AdjustColumnOffsets(3, 6, "=RC[-1]+R[-1]C[-2]+R[-1]C[1]+C[-1]"), "=RC[-3]+R[-1]C[-4]+R[-1]C[1]+C[-3]");
}

struct CopyCondition : styles::AddInInHost {
    CopyCondition() { library.Create(); }
    [[nodiscard]] bool holds(std::string_view comparison, std::string_view value, const CellContent& cell,
                             bool text_only = false) const {
        return EvaluateCondition(read_condition(library, comparison, value, text_only), cell);
    }
    core::diBRVBLib library{trace};
};

TEST_F(CopyCondition, DecidesByWhatTheValueMeans) {
    const CellContent empty{1, {}};
    const CellContent yes{3, true};
    const CellContent no{3, false};
    const CellContent error{4, automation::Error{-2146826281}};
    const CellContent day{5, Date{45292}};  // 1/1/2024
    const CellContent noon{6, 0.5};         // Excel gives the value of a time as a plain number
    const CellContent twelve{8, 12.0};
    const CellContent text{2, "abc"};
    const CellContent text_12{2, "12"};
    // For each value, the cells for which each operator holds, in the order of the dialog's list.
    const struct {
        const char* value;
        const CellContent& cell;
        const char* holds;  // = <> > < >= <=
    } cases[] = {
        {"", empty, "x...xx"},        {"  ", empty, "x...xx"},       {"", twelve, ".xxx.."},
        {"TRUE", yes, "x...xx"},      {" false ", yes, "x...xx"},    {"true", text, ".xxx.."},
        {"err", error, "x...xx"},     {"ERROR", no, ".xxx.."},       {"12", twelve, "x...xx"},
        {"11.5", twelve, ".xx.x."},   {"(3)", twelve, ".xx.x."},     {"$1,250", twelve, ".x.x.x"},
        {"12", text_12, "......"},    {"12", empty, "......"},       {"12", day, "......"},
        {"1/1/2024", day, "x...xx"},  {"12/31/2023", day, ".xx.x."}, {"1-Jan-2024", twelve, "......"},
        {"1/1/2024", text, "......"}, {"6:00 PM", noon, ".x.x.x"},   {"ABC", text, "x...xx"},
        {"abd", text, ".x.x.x"},      {"ab", text, ".xx.x."},        {"abc", twelve, "......"},
        {"abc", empty, "......"},
    };
    for (const auto& one : cases) {
        std::string result;
        for (const auto comparison : condition_operators) result += holds(comparison, one.value, one.cell) ? 'x' : '.';
        EXPECT_EQ(result, one.holds) << "'" << one.value << "' against kind " << one.cell.kind;
    }
    EXPECT_FALSE(holds("0", "abc", text)) << "no operator";
    EXPECT_FALSE(holds("equal", "abc", text));
    // A text against nothing: every text but the empty one.
    EXPECT_TRUE(holds("NOT EQUAL", "", text, true));
    EXPECT_FALSE(holds("NOT EQUAL", "", {2, ""}, true));
    EXPECT_FALSE(holds("NOT EQUAL", "", twelve, true));
    // The case of letters does not count, in any script that models are written in.
    for (const auto& [a, b] : {std::pair{"ÉTÉ", "été"}, {"ПРИБЫЛЬ", "прибыль"}, {"ΑΞΊΑ", "αξία"}, {"ŠKODA", "škoda"}}) {
        EXPECT_TRUE(holds("EQUAL", a, {2, b})) << a;
    }
    EXPECT_TRUE(holds("LESS THAN", "Ö", {2, "z"})) << "by the order of characters";
}

}  // namespace
}  // namespace kestrune::smart
