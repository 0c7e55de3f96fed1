#include "smart/CleanUpCommands.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "core/bridges/Product.h"
#include "excel/Application.h"
#include "forms/MsgBox.h"

namespace kestrune::smart {
namespace {

using automation::ResumeNext;
using automation::Value;

excel::Workbook active_workbook(const core::SharedState& shared) {
    const ResumeNext attempt(shared.trace);
    excel::Workbook workbook;
    attempt.assign(workbook, [&] { return excel::Application(shared.application).ActiveWorkbook(); });
    return workbook;
}

template <class CleanUp>
void ask_clean_tell(const core::SharedState& shared, std::string_view question, std::string_view report,
                    CleanUp&& clean_up) {
    const excel::Workbook workbook = active_workbook(shared);
    if (!workbook) return;
    if (forms::MsgBox(shared.presenter, question, forms::vbOKCancel, core::product_title) != forms::vbOK) return;
    const ResumeNext attempt(shared.trace);
    attempt([&] { clean_up(workbook); });
    forms::MsgBox(shared.presenter, report, forms::vbOKOnly, core::product_title);
}

}  // namespace

void RemoveInvalidRangeNames(core::SharedState& shared, std::int32_t) {
    ask_clean_tell(shared,
                   "This optimization tool will remove all custom defined range names with references that are no "
                   "longer valid from the active workbook.  Would you like to proceed?",
                   "All invalid custom defined range names have been successfully deleted from the active workbook.",
                   [&](const excel::Workbook& workbook) {
                       static_cast<void>(shared.spreadsheet().remove_invalid_names(workbook.object()));
                   });
}

void RemoveUnusedNumberFormats(core::SharedState& shared, std::int32_t) {
    ask_clean_tell(shared,
                   "This optimization tool will remove all unused custom number formats from the active workbook.  "
                   "Would you like to proceed?",
                   "All unused custom number formats have been successfully deleted from the active workbook.",
                   [&](const excel::Workbook& workbook) { CollectAndRemoveUnusedFormats(shared, workbook); });
}

void CollectAndRemoveUnusedFormats(const core::SharedState& shared, excel::Workbook workbook) {
    if (!workbook) workbook = active_workbook(shared);
    if (!workbook) return;
    const ResumeNext attempt(shared.trace);
    std::set<std::string> in_use;
    const bool collected = attempt([&] {
        const excel::Worksheets sheets = workbook.Worksheets();
        const std::int32_t count = sheets.Count();
        for (std::int32_t i = 1; i <= count; ++i) {
            const excel::Range used = sheets.Item(i).UsedRange();
            const Value common = used.NumberFormat();
            if (common.is(Value::Kind::String)) {
                in_use.insert(automation::to_text(common));
            } else {
                for (auto& part : shared.spreadsheet().number_formats(used.object())) in_use.insert(part.format);
            }
        }
    });
    // Of a workbook that cannot be read through, nobody knows what is in use.
    if (!collected) return;
    std::vector<std::string> unused;
    attempt.assign(unused, [&] {
        return shared.spreadsheet().unused_number_formats(workbook.object(), {in_use.begin(), in_use.end()});
    });
    for (const std::string& format : unused) attempt([&] { workbook.DeleteNumberFormat(format); });
}

}  // namespace kestrune::smart
