#include "brxllib/iWorkbook.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "automation/ResumeNext.h"
#include "brxllib/InvalidNames.h"
#include "brxllib/Palette.h"

namespace kestrune::brxllib {

using automation::MemberTable;
using automation::method;
using automation::Value;

namespace {

Value list_of(const std::vector<std::string>& texts) {
    automation::Array list(automation::Array::Bound{1, static_cast<std::int32_t>(texts.size())});
    std::ranges::copy(texts, list.elements().begin());
    return list;
}

}  // namespace

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

Value iWorkbook::invalid_names(const automation::ObjectRef& workbook) const {
    return list_of(brxllib::invalid_names(excel::Workbook(workbook)));
}

std::int32_t iWorkbook::remove_invalid_names(const automation::ObjectRef& workbook) {
    return brxllib::remove_invalid_names(excel::Workbook(workbook), library_->trace);
}

Value iWorkbook::unused_number_formats(const automation::ObjectRef& workbook, const Value& formats_in_use) const {
    CustomFormats* formats = library_->around.formats;
    if (!formats) return list_of({});
    std::set<std::string> in_use;
    if (const automation::Array* array = formats_in_use.array()) {
        for (const Value& code : array->elements()) {
            if (code.is(Value::Kind::String)) in_use.insert(automation::to_text(code));
        }
    } else if (formats_in_use.is(Value::Kind::String)) {
        in_use.insert(automation::to_text(formats_in_use));
    }
    std::vector<std::string> unused;
    for (CustomFormat& format : formats->of(excel::Workbook(workbook))) {
        if (!format.in_use && !in_use.contains(format.code)) unused.push_back(std::move(format.code));
    }
    return list_of(unused);
}

automation::ObjectRef iWorkbook::open(const std::string& path) {
    const automation::ResumeNext attempt(library_->trace);
    excel::Workbook workbook;
    attempt.assign(workbook, [&] { return library_->application.Workbooks().Open(path); });
    return workbook.object();
}

const MemberTable& iWorkbook::members() {
    static constexpr auto rows = automation::member_rows(
        method<&iWorkbook::may_run_command>("MayRunCommand", 1),
        method<&iWorkbook::nearest_color_index>("NearestColorIndex", 2, "Color, Workbook"),
        method<&iWorkbook::invalid_names>("InvalidNames", 3, "Workbook"),
        method<&iWorkbook::remove_invalid_names>("RemoveInvalidNames", 4, "Workbook"),
        method<&iWorkbook::unused_number_formats>("UnusedNumberFormats", 5, "Workbook, FormatsInUse"),
        method<&iWorkbook::open>("Open", 6, "Path"));
    static constexpr MemberTable table("iWorkbook", rows);
    return table;
}

}  // namespace kestrune::brxllib
