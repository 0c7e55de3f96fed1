#include <benchmark/benchmark.h>

#include "formula/A1.h"
#include "formula/Shift.h"
#include "host/model/Workbook.h"
#include "number_format/NumberFormat.h"

namespace kestrune {
namespace {

using formula::Area;

// A sheet with one column of numbers, as long as asked for.
std::unique_ptr<host::Workbook> column_of_numbers(std::int32_t rows) {
    auto workbook = std::make_unique<host::Workbook>();
    host::Sheet& sheet = workbook->add_sheet("Data");
    for (std::int32_t row = 1; row <= rows; ++row) sheet.set_content({row, 1}, host::CellContent::of(row * 1.5));
    return workbook;
}

// A column's format changed, back and forth: what each property of a style costs on a column selection.
void restyle_a_column(benchmark::State& state) {
    const auto workbook = column_of_numbers(static_cast<std::int32_t>(state.range(0)));
    host::Sheet& sheet = *workbook->sheets().front();
    bool bold = false;
    for (auto _ : state) {
        bold = !bold;
        sheet.restyle(Area{1, 1, formula::max_rows, 1}, [&](host::StyleId style) {
            return workbook->styles.with_font(style, [&](host::Font& font) { font.bold = bold; });
        });
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(restyle_a_column)->Arg(10'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

// The distinct formats of a column, which every reading of a property needs.
void formats_of_a_column(benchmark::State& state) {
    const auto workbook = column_of_numbers(static_cast<std::int32_t>(state.range(0)));
    host::Sheet& sheet = *workbook->sheets().front();
    for (auto _ : state) benchmark::DoNotOptimize(sheet.styles_in(Area{1, 1, formula::max_rows, 1}));
}
BENCHMARK(formats_of_a_column)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

// A format on blank cells makes cells; on whole columns it must not.
void restyle_blank_block(benchmark::State& state) {
    for (auto _ : state) {
        host::Workbook workbook;
        host::Sheet& sheet = workbook.add_sheet("Data");
        sheet.restyle(Area{1, 1, 10'000, 10}, [&](host::StyleId style) {
            return workbook.styles.with_font(style, [](host::Font& font) { font.italic = true; });
        });
        benchmark::DoNotOptimize(sheet.stored_cells());
    }
}
BENCHMARK(restyle_blank_block)->Unit(benchmark::kMillisecond);

// Every cell of a file names its place.
void read_a_cell_reference(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(formula::parse_cell_reference("AB104857"));
}
BENCHMARK(read_a_cell_reference);

void shift_a_formula(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            formula::shift_formula("SUM($D5:I5)*VLOOKUP(B5,Rates!$A$1:$F$90,4,FALSE)", 3, 2, formula::OffSheet::lose));
    }
}
BENCHMARK(shift_a_formula);

void show_a_number(benchmark::State& state) {
    const number_format::NumberFormat format("[$$-409]#,##0.00_);([$$-409]#,##0.00)");
    for (auto _ : state) benchmark::DoNotOptimize(format.render(-1234567.891));
}
BENCHMARK(show_a_number);

}  // namespace
}  // namespace kestrune
