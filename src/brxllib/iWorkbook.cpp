#include "brxllib/iWorkbook.h"

#include "automation/ResumeNext.h"
#include "brxllib/Palette.h"

namespace kestrune::brxllib {

using automation::MemberTable;
using automation::method;

bool iWorkbook::may_run_command() const {
    const excel::Application& application = library_->application;
    if (!application) return false;
    const automation::ResumeNext attempt(library_->trace);
    bool may_run = false;
    // While a cell is edited Excel refuses most calls, Ready among them in some versions: a failure is a no as well.
    attempt.assign(may_run, [&] { return application.Ready() && application.ActiveWorkbook(); });
    return may_run;
}

std::int32_t iWorkbook::nearest_color_index(std::int32_t color, const automation::ObjectRef& workbook) const {
    // The palette is read anew at each call: a user may edit it at any time and Excel raises no event. It is one
    // call to Excel, as cheap as asking whether anything changed.
    return nearest_entry(palette_of(excel::Workbook(workbook)), color);
}

const MemberTable& iWorkbook::members() {
    static constexpr auto rows =
        automation::member_rows(method<&iWorkbook::may_run_command>("MayRunCommand", 1),
                                method<&iWorkbook::nearest_color_index>("NearestColorIndex", 2, "Color, Workbook"));
    static constexpr MemberTable table("iWorkbook", rows);
    return table;
}

}  // namespace kestrune::brxllib
