#include "host/objects/ChartSheetObject.h"

#include "host/objects/WorkbookObject.h"
#include "host/objects/WorksheetObject.h"

namespace kestrune::host {

ObjectRef sheet_object(HostSession& session, Sheet& sheet) {
    if (sheet.kind() == SheetKind::Worksheet) return std::make_shared<WorksheetObject>(session, sheet);
    return std::make_shared<ChartSheetObject>(session, sheet);
}

const MemberTable& ChartSheetObject::members() {
    using C = ChartSheetObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&C::application>("Application", 1), read_only<&C::parent>("Parent", 2),
        read_only<&C::name>("Name", 3), read_only<&C::index>("Index", 4), read_only<&C::visible>("Visible", 5),
        method<&C::activate>("Activate", 6), method<&C::select>("Select", 7, "[Replace]"),
        read_only<&C::protect_contents>("ProtectContents", 8), read_only<&C::next>("Next", 9),
        read_only<&C::previous>("Previous", 10));
    static constexpr MemberTable table("Chart", rows);
    return table;
}

}  // namespace kestrune::host
