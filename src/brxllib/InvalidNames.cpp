#include "brxllib/InvalidNames.h"

#include <algorithm>
#include <array>

#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "formula/Lexer.h"
#include "formula/SheetName.h"

namespace kestrune::brxllib {
namespace {

using automation::same_text;

constexpr auto system_names = std::to_array<std::string_view>(
    {"Print_Area", "Print_Titles", "_FilterDatabase", "Criteria", "Extract", "Database", "Consolidate_Area",
     "Sheet_Title", "Auto_Open", "Auto_Close", "Auto_Activate", "Auto_Deactivate",
     // What Excel's dialogs remember of earlier versions' sorts, fills and regressions.
     "_Fill", "_Sort", "_Order1", "_Order2", "_Key1", "_Key2", "_Parse_In", "_Parse_Out", "_Dist_Bin", "_Dist_Values",
     "_Table1_In1", "_Table1_Out", "_Table2_In1", "_Table2_In2", "_Table2_Out", "_MatInverse_In", "_MatInverse_Out",
     "_MatMult_A", "_MatMult_B", "_MatMult_AxB", "_Regression_Int", "_Regression_Out", "_Regression_X", "_Regression_Y",
     "__IntlFixup", "__IntlFixupTable"});

constexpr auto system_prefixes = std::to_array<std::string_view>({
    "_xlnm.",  // print settings and filters as files spell them
    "_xlfn",         "_xlpm",
    "_xlws",         "_xludf",
    "_xleta",        "_xlop",  // newer functions; parameters of LET and LAMBDA
    "_bbr.",         "bbr.",   // our own bookmarks
    "solver_",                 // Solver
    "wrn.",          "wvu.",   // the report manager and its views
    "ExternalData_",           // queries
    "Slicer_",       "NativeTimeline_",
    "Timeline_",
    "HTML_",  // the web page assistant
    "_AMO_",         "TM1REBUILD",
    "SAPBEX",        "SAPCrosstab",
    "EPMWorkbook",   "FDS_",
    "IQ_",           "CIQWB",  // state of data add-ins
});

bool starts_with(std::string_view text, std::string_view start) {
    return text.size() >= start.size() && same_text(text.substr(0, start.size()), start);
}

std::vector<std::string> sheet_names(const excel::Workbook& workbook) {
    std::vector<std::string> names;
    const excel::Worksheets sheets = workbook.Sheets();
    const std::int32_t count = sheets.Count();
    for (std::int32_t i = 1; i <= count; ++i) names.push_back(sheets.Item(i).Name());
    return names;
}

// Calls visit(name, text) for every name whose reference is invalid, the last one first.
template <class Visit>
void visit_invalid(const excel::Workbook& workbook, const automation::Trace& trace, Visit&& visit) {
    const auto sheets = sheet_names(workbook);
    const excel::Names names = workbook.Names();
    const automation::ResumeNext attempt(trace);
    for (std::int32_t i = names.Count(); i >= 1; --i) {
        attempt([&] {
            const excel::Name name = names.Item(i);
            if (!is_invalid_reference(name.RefersTo(), sheets)) return;
            const std::string text = name.text();
            if (!is_system_name(std::string_view(text).substr(text.rfind('!') + 1))) visit(name, text);
        });
    }
}

}  // namespace

bool is_system_name(std::string_view name) {
    return std::ranges::any_of(system_names, [&](auto known) { return same_text(name, known); }) ||
           std::ranges::any_of(system_prefixes, [&](auto prefix) { return starts_with(name, prefix); });
}

bool is_invalid_reference(std::string_view refers_to, std::span<const std::string> sheets) {
    bool anything = false;
    formula::Lexer lexer(refers_to);
    for (auto token = lexer.next(); token.kind != formula::TokenKind::end; token = lexer.next()) {
        if (token.kind == formula::TokenKind::start || token.kind == formula::TokenKind::whitespace) continue;
        anything = true;
        const std::string_view text = refers_to.substr(token.body(), token.end() - token.body());
        if (token.kind == formula::TokenKind::error && starts_with(text, "#REF!")) return true;
        if (token.kind != formula::TokenKind::reference || token.prefix == 0) continue;
        const auto prefix = formula::parse_sheet_prefix(token.sheet(refers_to));
        if (!prefix.book.empty() && prefix.book != "0") continue;
        for (const std::string& sheet : {prefix.first_sheet, prefix.last_sheet}) {
            if (std::ranges::none_of(sheets, [&](const auto& known) { return same_text(known, sheet); })) return true;
        }
    }
    return !anything;
}

std::vector<std::string> invalid_names(const excel::Workbook& workbook) {
    std::vector<std::string> found;
    const automation::Trace nobody;
    visit_invalid(workbook, nobody, [&](const excel::Name&, const std::string& text) { found.push_back(text); });
    std::ranges::reverse(found);
    return found;
}

std::int32_t remove_invalid_names(const excel::Workbook& workbook, const automation::Trace& trace) {
    std::int32_t removed = 0;
    visit_invalid(workbook, trace, [&](const excel::Name& name, const std::string&) {
        name.Delete();
        ++removed;
    });
    return removed;
}

}  // namespace kestrune::brxllib
