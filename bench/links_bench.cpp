#include <benchmark/benchmark.h>

#include "automation/CreateObject.h"
#include "brxllib/register_library.h"
#include "host/objects/HostSession.h"

namespace kestrune {
namespace {

constexpr std::int32_t columns = 20;

// Formulas that look at their neighbours, one in fifty at the inputs at the top, on a sheet of their own or that of
// the inputs.
std::unique_ptr<host::Workbook> workbook_of(std::int32_t rows, bool own_sheet) {
    auto workbook = std::make_unique<host::Workbook>();
    host::Sheet* sheet = &workbook->add_sheet("Inputs");
    sheet->set_content({1, 1}, host::CellContent::of(0.05));
    if (!own_sheet) sheet = &workbook->add_sheet("Model");
    for (std::int32_t column = 2; column <= columns + 1; ++column) {
        for (std::int32_t row = 2; row <= rows + 1; ++row) {
            const std::string above = "C" + std::to_string(row - 1) + "*(1+D" + std::to_string(row) + ")";
            sheet->set_formula({row, column}, row % 50 == 0 ? above + "+Inputs!$A$1" : above);
        }
    }
    return workbook;
}

// The dependents of one cell, found among so many formulas.
void find_dependents(benchmark::State& state, bool own_sheet) {
    host::HostSession session;
    session.open(workbook_of(static_cast<std::int32_t>(state.range(0)) / columns, own_sheet));
    const automation::ObjectRef application = host::make_application(session);
    const automation::Trace trace;
    brxllib::register_library(trace, {});
    const automation::ObjectRef library = automation::CreateObject("BRXLLib.iPublic");
    automation::call(*library, "SetApplication", {application});
    const automation::ObjectRef ranges = automation::to_object(automation::get(*library, "iRange"));
    const automation::ObjectRef cell = automation::to_object(automation::get(*application, "Range", {"Inputs!A1"}));
    std::int64_t calls = 0;
    std::int32_t found = 0;
    for (auto _ : state) {
        const std::int64_t before = session.calls();
        const automation::Value links = automation::call(*ranges, "Dependents", {cell});
        calls = session.calls() - before;
        found = links.array()->bound(0).count;
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["calls"] = static_cast<double>(calls);
    state.counters["found"] = static_cast<double>(found);
}
BENCHMARK_CAPTURE(find_dependents, same_sheet, true)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(find_dependents, other_sheet, false)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kestrune
