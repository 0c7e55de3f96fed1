#include "brxllib/autocolor/BlackFonts.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <string_view>
#include <vector>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "brxllib/autocolor/ClassReader.h"
#include "brxllib/autocolor/Parting.h"
#include "brxllib/autocolor/Rectangles.h"
#include "brxllib/autocolor/RespectedColors.h"
#include "excel/Constants.h"
#include "formula/A1.h"
#include "formula/AreaCut.h"

namespace kestrune::brxllib {
namespace {

using automation::ResumeNext;
using automation::Value;
using formula::Area;

constexpr std::int32_t black = 0;

// Always true. Who looks through a sheet's conditional formats reads what this one is for.
constexpr std::string_view marker = "=\"Kestrune: all fonts black\"<>\"\"";

// The conditional formats of the product's own on a sheet, the last first, so that each may be deleted.
std::vector<excel::FormatCondition> marked(const excel::Worksheet& sheet) {
    const excel::FormatConditions conditions = sheet.Cells().FormatConditions();
    std::vector<excel::FormatCondition> found;
    for (std::int32_t i = conditions.Count(); i >= 1; --i) {
        const excel::FormatCondition condition = conditions.Item(i);
        if (condition.Type() == excel::xlExpression && condition.Formula1() == marker) found.push_back(condition);
    }
    return found;
}

// The cells of a sheet, used or not, that are to be black.
std::vector<Area> cells_to_blacken(const excel::Worksheet& sheet, RespectedColors& respected) {
    const excel::Range all = sheet.Cells();
    std::vector<Area> cells{{1, 1, all.Rows().Count(), all.Columns().Count()}};
    for (const Area& used : areas_of(sheet.UsedRange())) {
        visit_uniform_parts(
            used, [&](const Area& part) { return sheet.Range(formula::area_text(part)).Font().Color(); },
            [&](const Area& part, const Value& color) {
                if (respected.holds(automation::to_integer(color)))
                    cells = formula::areas_without(std::move(cells), {part});
            });
    }
    return cells;
}

void blacken(const excel::Worksheet& sheet, RespectedColors& respected) {
    const std::vector<Area> cells = cells_to_blacken(sheet, respected);
    for (std::span<const Area> left = cells; !left.empty();) {
        const AddressText address = address_of(left);
        const excel::FormatCondition condition =
            sheet.Range(address.text).FormatConditions().Add(excel::xlExpression, automation::Missing{}, marker);
        condition.Font().Color(black);
        condition.StopIfTrue(false);
        condition.SetFirstPriority();
        left = left.subspan(address.areas);
    }
}

// Calls act with each worksheet of a workbook.
template <class Act>
void for_each_worksheet(const excel::Workbook& workbook, const ResumeNext& attempt, Act&& act) {
    const excel::Worksheets sheets = workbook.Worksheets();
    const std::int32_t count = sheets.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        attempt([&] { act(sheets.Item(i)); });
    }
}

}  // namespace

bool BlackFonts::in(const excel::Workbook& workbook) const {
    bool any = false;
    for_each_worksheet(workbook, ResumeNext(library_.trace),
                       [&](const excel::Worksheet& sheet) { any = any || !marked(sheet).empty(); });
    return any;
}

void BlackFonts::toggle(const excel::Workbook& workbook) const {
    const ResumeNext attempt(library_.trace);
    const bool were_black = in(workbook);
    RespectedColors respected(library_);
    for_each_worksheet(workbook, attempt, [&](const excel::Worksheet& sheet) {
        if (!were_black) return blacken(sheet, respected);
        for (const excel::FormatCondition& condition : marked(sheet)) condition.Delete();
    });
}

}  // namespace kestrune::brxllib
