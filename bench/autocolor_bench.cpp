#include <benchmark/benchmark.h>

#include "automation/CreateObject.h"
#include "brxllib/register_library.h"
#include "host/objects/HostSession.h"

namespace kestrune {
namespace {

constexpr std::int32_t columns = 20;

// A ledger or model back-end: labels and dates at the left, then columns of numbers and of formulas.
host::CellContent ledger_content(std::int32_t row, std::int32_t column) {
    if (column == 1) return host::CellContent::of("Account of the general ledger");
    return host::CellContent::of(row * 1.5 + column);
}

// Cells of every sort side by side, which no two share a run with: the worst case.
bool scattered_formula(std::int32_t row, std::int32_t column) { return (row * 7 + column * 13) % 5 < 2; }

std::unique_ptr<host::Workbook> workbook_of(std::int32_t rows, bool scattered) {
    auto workbook = std::make_unique<host::Workbook>();
    host::Sheet& sheet = workbook->add_sheet("Data");
    for (std::int32_t column = 1; column <= columns; ++column) {
        for (std::int32_t row = 1; row <= rows; ++row) {
            if (scattered ? scattered_formula(row, column) : column > 16) {
                sheet.set_formula({row, column}, "SUM($D" + std::to_string(row) + ":I" + std::to_string(row) + ")*2.5");
            } else {
                sheet.set_content({row, column}, ledger_content(row, column));
            }
        }
    }
    return workbook;
}

// AutoColor of a whole sheet through the library, as the command runs it: classes, colours, fonts.
void color_a_sheet(benchmark::State& state, bool scattered) {
    const automation::Trace trace;
    brxllib::register_library(trace, {});
    const automation::ObjectRef library = automation::CreateObject("BRXLLib.iPublic");
    const automation::ObjectRef service = automation::to_object(automation::get(*library, "iAutoColor"));
    const auto rows = static_cast<std::int32_t>(state.range(0)) / columns;
    std::int64_t calls = 0;
    for (auto _ : state) {
        state.PauseTiming();
        host::HostSession session;
        session.open(workbook_of(rows, scattered));
        automation::call(*library, "SetApplication", {host::make_application(session)});
        state.ResumeTiming();
        automation::call(*service, "RunWorksheet");
        state.PauseTiming();
        calls = session.calls();
        automation::call(*library, "SetApplication", {nullptr});
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["calls"] = static_cast<double>(calls);
}
BENCHMARK_CAPTURE(color_a_sheet, columns, false)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(color_a_sheet, scattered, true)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kestrune
