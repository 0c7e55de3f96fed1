#include "smart/copy/Scan.h"

#include <cstddef>
#include <limits>

#include "automation/AutomationError.h"

namespace kestrune::smart {
namespace {

struct Row {
    ScanChoice choice;
    const char* intervals;
    const char* rule;
    bool skip;
};

// In the order of ScanChoice.
constexpr Row rows[] = {
    {ScanChoice::Contiguous, "ALL", "FILL", false},
    {ScanChoice::Intervals, "INTERVAL", "FILL", false},
    {ScanChoice::All, "ALL", "FILL", true},
    {ScanChoice::AllIntervals, "INTERVAL", "ALWAYS", false},
};

}  // namespace

ScanChoice scan_choice(const settings::SmartCopyOptions& options) {
    if (options.Rule == "ALWAYS") return ScanChoice::AllIntervals;
    if (options.Intervals == "INTERVAL") return ScanChoice::Intervals;
    return options.Skip ? ScanChoice::All : ScanChoice::Contiguous;
}

void choose_scan(settings::SmartCopyOptions& options, ScanChoice choice) {
    const Row& row = rows[static_cast<std::size_t>(choice)];
    options.Intervals = row.intervals;
    options.Rule = row.rule;
    options.Skip = row.skip;
}

void AdvanceToNextTarget(Scan& scan) {
    if (scan.index == scan.last) return;
    const std::int64_t next = std::int64_t{scan.index} + (scan.always ? std::int64_t{scan.interval} + 1 : 1);
    if (next > std::numeric_limits<std::int32_t>::max()) {
        throw automation::AutomationError(automation::hresult::overflow, "AdvanceToNextTarget", "beyond the last line");
    }
    scan.index = static_cast<std::int32_t>(next);
}

std::vector<std::int32_t> target_lines(const std::vector<bool>& labelled, std::int32_t first, ScanChoice choice,
                                       std::int32_t interval) {
    std::vector<std::int32_t> lines;
    if (labelled.empty() || interval < 0) return lines;
    Scan scan{first, first + static_cast<std::int32_t>(labelled.size()) - 1, interval,
              choice == ScanChoice::AllIntervals};
    std::int32_t gap = 0;  // lines without a label in a row
    while (scan.index < scan.last) {
        AdvanceToNextTarget(scan);
        if (scan.index > scan.last) break;
        if (scan.always || labelled[static_cast<std::size_t>(scan.index - first)]) {
            lines.push_back(scan.index);
            gap = 0;
            continue;
        }
        ++gap;
        if (choice == ScanChoice::Contiguous || (choice == ScanChoice::Intervals && gap > interval)) break;
    }
    return lines;
}

}  // namespace kestrune::smart
