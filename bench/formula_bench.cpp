#include <benchmark/benchmark.h>

#include <array>
#include <string_view>

#include "formula/Convert.h"
#include "formula/FormulaCheck.h"
#include "formula/Lexer.h"
#include "formula/Listing.h"

namespace kestrune {
namespace {

// As models have them: 39 characters on average.
constexpr std::array<std::string_view, 8> formulas{
    "=E12*(1+$C$4)",
    "=SUM(E12:E40)",
    "=IF(E$5>=Start,E11*Growth/12,0)",
    "='P&L'!F24-'P&L'!F31+Cash!E17",
    "=SUMPRODUCT(--(YEAR(Data!$A$2:$A$999)=C$4),Data!$C$2:$C$999)",
    "=IFERROR(INDEX(Rates!$C$5:$Q$40,MATCH($B7,Rates!$B$5:$B$40,0),E$3),0)",
    "=ROUND(tbl_Sales[@Amount]*1.19,2)&\" EUR\"",
    "=[2]Group!$D$14+'C:\\models\\[base.xlsx]Base case'!$D$14*0.5",
};

// One formula a round: what colouring a cell, or looking it through for references, costs.
template <class Work>
void over_formulas(benchmark::State& state, Work&& work) {
    std::size_t at = 0;
    for (auto _ : state) work(formulas[at++ % formulas.size()]);
    state.SetItemsProcessed(state.iterations());
}

void cut_a_formula(benchmark::State& state) {
    over_formulas(state, [](std::string_view text) {
        formula::Lexer lexer(text);
        while (lexer.next().kind != formula::TokenKind::end) benchmark::ClobberMemory();
    });
}
BENCHMARK(cut_a_formula);

void ingredients_of_a_formula(benchmark::State& state) {
    over_formulas(state, [](std::string_view text) { benchmark::DoNotOptimize(formula::ingredients(text, "Cash")); });
}
BENCHMARK(ingredients_of_a_formula);

void references_of_a_formula(benchmark::State& state) {
    over_formulas(state, [](std::string_view text) { benchmark::DoNotOptimize(formula::references(text)); });
}
BENCHMARK(references_of_a_formula);

void check_a_formula(benchmark::State& state) {
    over_formulas(state, [](std::string_view text) { benchmark::DoNotOptimize(formula::check_formula(text)); });
}
BENCHMARK(check_a_formula);

void convert_a_formula(benchmark::State& state) {
    over_formulas(state, [](std::string_view text) { benchmark::DoNotOptimize(formula::to_r1c1(text, {12, 5})); });
}
BENCHMARK(convert_a_formula);

}  // namespace
}  // namespace kestrune
