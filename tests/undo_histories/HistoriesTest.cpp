#include <fmt/format.h>
#include <gmock/gmock.h>

#include <cstdlib>

#include "undo_histories/History.h"

namespace kestrune::histories {
namespace {

std::uint64_t number_of(const char* variable, std::uint64_t otherwise) {
    const char* text = std::getenv(variable);
    return text && *text ? std::strtoull(text, nullptr, 10) : otherwise;
}

// Everything undone is the start, everything redone is the end. scripts/undo-histories lives thousands of histories.
TEST(UndoHistories, EndWhereTheyBegan) {
    const std::uint64_t first = number_of("UNDO_HISTORIES_SEED", 1);
    const std::uint64_t count = number_of("UNDO_HISTORIES", 12);
    std::uint64_t failed = 0;
    for (std::uint64_t seed = first; seed < first + count; ++seed) {
        const auto faults = faults_of_history(seed);
        if (faults.empty()) continue;
        ++failed;
        std::string shown;
        for (std::size_t i = 0; i < faults.size() && i < 6; ++i) shown += "\n  " + faults[i];
        ADD_FAILURE() << "history " << seed << ": " << faults.size() << " faults" << shown;
        if (failed == 10) break;
    }
    fmt::print("{} of {} histories ended where they began\n", count - failed, count);
}

// Histories find what undo would leave out: with a write that goes unheard while undo and redo are at work, some
// history does not end where it began.
TEST(UndoHistories, FindWhatIsNotGivenBack) {
    const Fault faults[] = {
        {"Range", "NumberFormat"}, {"Range", "HorizontalAlignment"},
        {"Range", "FormulaR1C1"},  {"Font", "Bold"},
        {"Font", "Size"},          {"Font", "Color"},
        {"Border", "LineStyle"},   {"Range", "RowHeight"},
        {"Range", "Hidden"},       {"FormatConditions", "Add"},
        {"Range", "FormulaArray"}, {"Interior", "Pattern"},
        {"Range", "MergeCells"},   {"Range", "ColumnWidth"},
        {"Range", "OutlineLevel"}, {"Range", "Insert"},
        {"Range", "Delete"},       {"Names", "Add"},
    };
    const std::uint64_t most = number_of("UNDO_HISTORIES_OF_A_FAULT", 0);
    if (most == 0) GTEST_SKIP() << "takes minutes: scripts/undo-histories --faults";
    for (const Fault& planted : faults) {
        Fault fault = planted;
        std::uint64_t seed = 1;
        while (seed <= most && faults_of_history(seed, &fault).empty()) ++seed;
        EXPECT_LE(seed, most) << planted.type << "." << planted.member << " went unheard " << fault.swallowed
                              << " times";
    }
}

}  // namespace
}  // namespace kestrune::histories
