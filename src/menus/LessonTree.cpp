#include "menus/LessonTree.h"

#include <algorithm>
#include <array>

namespace kestrune::menus {
namespace {

// clang-format off
constexpr auto tree = std::to_array<LessonRow>({
    {1, "&Operating Assumptions"},
      {2, "&Excel Basics"},
        {3, "&Getting Started", "GettingStarted.xls"},
        {3, "&Column Headings", "ColumnHeadings.xls"},
      {2, "&Historicals"},
        {3, "&Row Headings", "RowHeadings.xls"},
        {3, "Historical R&evenue", "HistoricalRevenue.xls"},
        {3, "Historical &COGS", "HistoricalCOGS.xls"},
        {3, "&Historicals Complete", "HistoricalsComplete.xls"},
        {3, "Historical &Quiz", "HistoricalQuiz.xls"},
      {2, "&Projected"},
        {3, "&Historicals Complete", "HistoricalsComplete.xls"},
        {3, "&Upside Leverage", "UpsideLeverage.xls"},
        {3, "&Downside Leverage", "DownsideLeverage.xls"},
        {3, "&Projected Complete", "ProjectedComplete.xls"},
        {3, "Projected &Quiz", "ProjectedQuiz.xls"},
      {2, "&Latest Balance Sheet"},
        {3, "&Start Balance Sheet", "StartBalanceSheet.xls"},
        {3, "&Latest Bal Values", "LatestBalValue.xls"},
    {1, "&Income Statement"},
      {2, "&Operating Assumptions"},
        {3, "&Begin Income Statement", "BeginIncomeStatement.xls"},
        {3, "&IS Row Headings", "ISRowHeading.xls"},
      {2, "&Below The Line"},
        {3, "&Operating Items Done", "OperatingItemsDone.xls"},
        {3, "&Absolut Quiz", "AbsolutQuiz.xls"},
        {3, "&Relative Exam", "RelativeExam.xls"},
        {3, "&Interest Expense", "InterestExpense.xls"},
    {1, "&Balance Sheet Forecast"},
      {2, "&Working Capital"},
        {3, "Working Capital &A", "WorkingCapitalA.xls"},
        {3, "Working Capital &B", "WorkingCapitalB.xls"},
        {3, "Working Capital &C", "WorkingCapitalC.xls"},
        {3, "Working Capital &Done", "WorkingCapitalDone.xls"},
      {2, "&All But Debt"},
        {3, "&BS Forecasting Quiz", "BSForecastingQuiz.xls"},
    {1, "&Cash Flow Statement"},
      {2, "&Cash Flow"},
        {3, "&CF Setup", "CFSetup.xls"},
      {2, "&Debt Schedule"},
        {3, "&Debt Schedule Setup", "DebtScheduleSetup.xls"},
        {3, "&Answer Model", "AnswerModel.xls"},
        {3, "Debt Schedule Quiz &1", "DebtScheduleQuiz1.xls"},
        {3, "Debt Schedule Quiz &2", "DebtScheduleQuiz2.xls"},
        {3, "Debt Schedule Quiz &3", "DebtScheduleQuiz3.xls"},
      {2, "&Scenario Analysis"},
        {3, "&Restore PreDeal", "RestorePredeal.xls"},
        {3, "&Start Lookup", "StartLookup.xls"},
        {3, "&Lookups Done", "LookupsDone.xls"},
        {3, "Scenario &Quiz", "ScenarioQuiz.xls"},
        {3, "Scenario Quiz &2", "ScenarioQuiz2.xls"},
    {1, "&DCF Valuation"},
      {2, "&DCF Concepts"},
        {3, "&Perpetuity", "Perpetuity.xls"},
        {3, "&DCF Warm Up", "DCFWarmUp.xls"},
        {3, "&What Is C I", "WhatIsCI.xls"},
        {3, "W&hat Is C II", "WhatIsCII.xls"},
        {3, "DCF &Exam", "DCFExam.xls"},
      {2, "&Excel DCF"},
        {3, "&Start FCF", "StartFCF.xls"},
        {3, "&DCF Done", "DCFDone.xls"},
      {2, "&Transaction Analysis"},
        {3, "&Start Sources Uses", "StartSourcesUses.xls"},
        {3, "SU &Lookup Done", "SULookUpDone.xls"},
        {3, "&CBS Done", "CBSDone.xls"},
    {1, "&Multiples Valuation"},
      {2, "&Understanding Multiples"},
        {3, "&Comp Quiz 1", "CompQuiz1.xls"},
      {2, "&Edgar SEC Data"},
        {3, "DA Quiz &1", "DAQuiz1.xls"},
        {3, "DA Quiz &2", "DAQuiz2.xls"},
        {3, "DA Quiz &3", "DAQuiz3.xls"},
        {3, "&LTM Quiz", "LTMQuiz.xls"},
        {3, "&Edgar Quiz", "EdgarQuiz.xls"},
    {1, "&Finishing Touches"},
      {2, "&Average Interest"},
        {3, "&Average Interest", "AverageInterest.xls"},
      {2, "&Cover Page"},
        {3, "&Cover Page", "CoverPage.xls"},
        {3, "&THE FINAL MODEL", "THEFINALMODEL.xls"},
      {2, "&Operating Building"},
        {3, "&Operating Buildup", "OperatingBuildup.xls"},
        {3, "&PV Buildup", "PVBuildup.xls"},
});
// clang-format on

}  // namespace

std::span<const LessonRow> lesson_tree() { return tree; }

bool is_lesson(std::string_view file) {
    return !file.empty() && std::ranges::find(tree, file, &LessonRow::file) != tree.end();
}

}  // namespace kestrune::menus
