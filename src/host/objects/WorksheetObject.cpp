#include "host/objects/WorksheetObject.h"

#include <algorithm>

#include "host/objects/HyperlinksObject.h"
#include "host/objects/ListObjectsObject.h"
#include "host/objects/NamesObject.h"
#include "host/objects/Optional.h"
#include "host/objects/OutlineObject.h"
#include "host/objects/ProtectionObject.h"
#include "host/objects/RangeObject.h"
#include "host/objects/RangeReference.h"
#include "host/objects/ShapesObject.h"
#include "host/objects/SheetMeasures.h"

namespace kestrune::host {
namespace {

Visibility visibility_of(const Value& value) {
    switch (automation::to_integer(value)) {
        case xlSheetVisible:
            return Visibility::Visible;
        case xlSheetHidden:
            return Visibility::Hidden;
        case xlSheetVeryHidden:
            return Visibility::VeryHidden;
        default:
            refuse("Worksheet.Visible", "there is no such visibility");
    }
}

}  // namespace

ObjectRef WorksheetObject::range(const Value& cell1, const Value& cell2) const {
    return std::make_shared<RangeObject>(range_of_arguments("Worksheet.Range", session(), sheet(), cell1, cell2));
}

ObjectRef WorksheetObject::cells() const {
    return std::make_shared<RangeObject>(CellRange(session(), sheet(), {Area::sheet()}));
}

ObjectRef WorksheetObject::rows() const {
    return std::make_shared<RangeObject>(CellRange(session(), sheet(), {Area::sheet()}), RangeObject::Unit::Rows);
}

ObjectRef WorksheetObject::columns() const {
    return std::make_shared<RangeObject>(CellRange(session(), sheet(), {Area::sheet()}), RangeObject::Unit::Columns);
}

ObjectRef WorksheetObject::used_range() const {
    return std::make_shared<RangeObject>(CellRange(session(), sheet(), {sheet().used_area()}));
}

ObjectRef WorksheetObject::shapes() const { return std::make_shared<ShapesObject>(session(), sheet()); }
ObjectRef WorksheetObject::list_objects() const { return std::make_shared<ListObjectsObject>(session(), sheet()); }
ObjectRef WorksheetObject::names() const { return std::make_shared<NamesObject>(session(), sheet()); }
ObjectRef WorksheetObject::outline() const { return std::make_shared<OutlineObject>(session(), sheet()); }
ObjectRef WorksheetObject::hyperlinks() const { return std::make_shared<HyperlinksObject>(session(), sheet()); }
ObjectRef WorksheetObject::protection() const { return std::make_shared<ProtectionObject>(session(), sheet()); }

double WorksheetObject::standard_width() const { return host::standard_width(sheet()); }

void WorksheetObject::set_standard_width(double characters) {
    if (!(characters >= 0 && characters <= 255)) refuse("Worksheet.StandardWidth", "a width is 0 to 255 characters");
    if (sheet().protection().on) refuse("Worksheet.StandardWidth", "the sheet is protected");
    host::set_standard_width(sheet(), characters);
    session().changed(sheet().workbook());
}

void WorksheetObject::set_visible(const Value& visibility) {
    const Visibility wanted = visibility_of(visibility);
    if (wanted == sheet().visibility) return;
    const Workbook& workbook = sheet().workbook();
    if (workbook.structure_protected) refuse("Worksheet.Visible", "the workbook's structure is protected");
    if (wanted != Visibility::Visible) {
        const auto visible = std::ranges::count_if(
            workbook.sheets(), [](const auto& other) { return other->visibility == Visibility::Visible; });
        if (sheet().visibility == Visibility::Visible && visible == 1) {
            refuse("Worksheet.Visible", "a workbook keeps at least one visible sheet");
        }
    }
    sheet().visibility = wanted;
    session().leave_hidden(sheet().workbook());
    session().changed(workbook);
}

// The host writes no protection into a file, so it must not pretend to: what is saved would not have it.
void WorksheetObject::require_protection_allowed(std::string_view member) const {
    if (!session().opened(sheet().workbook()).created) {
        refuse(member, "the host does not change the protection of a sheet that comes from a file");
    }
}

void WorksheetObject::protect(const Value& password, const Value&, const Value& contents, const Value&,
                              const Value& user_interface_only, const Value& cells, const Value& columns,
                              const Value& rows, const Value& insert_columns, const Value& insert_rows, const Value&,
                              const Value& delete_columns, const Value& delete_rows, const Value&, const Value&,
                              const Value&) {
    require_protection_allowed("Worksheet.Protect");
    SheetProtection fresh;
    fresh.against_people_only = value_or(contents, true) && value_or(user_interface_only, false);
    fresh.on = value_or(contents, true) && !fresh.against_people_only;
    fresh.password = value_or(password, std::string());
    fresh.format_cells = value_or(cells, false);
    fresh.format_columns = value_or(columns, false);
    fresh.format_rows = value_or(rows, false);
    fresh.insert_columns = value_or(insert_columns, false);
    fresh.insert_rows = value_or(insert_rows, false);
    fresh.delete_columns = value_or(delete_columns, false);
    fresh.delete_rows = value_or(delete_rows, false);
    sheet().protection() = fresh;
    session().changed(sheet().workbook());
}

void WorksheetObject::unprotect(const Value& password) {
    if (!protect_contents()) return;
    require_protection_allowed("Worksheet.Unprotect");
    if (sheet().protection().password != value_or(password, std::string())) {
        refuse("Worksheet.Unprotect", "the password is not correct");
    }
    sheet().protection() = {};
    session().changed(sheet().workbook());
}

const MemberTable& WorksheetObject::members() {
    using W = WorksheetObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&W::application>("Application", 1), read_only<&W::parent>("Parent", 2),
        read_only<&W::name>("Name", 3), read_only<&W::index>("Index", 4),
        property<&W::visible, &W::set_visible>("Visible", 5), read_only<&W::range>("Range", 6, "Cell1, [Cell2]"),
        read_only<&W::cells>("Cells", 7), read_only<&W::rows>("Rows", 8), read_only<&W::columns>("Columns", 9),
        read_only<&W::used_range>("UsedRange", 10), read_only<&W::names>("Names", 11),
        read_only<&W::outline>("Outline", 12),
        property<&W::standard_width, &W::set_standard_width>("StandardWidth", 13),
        read_only<&W::standard_height>("StandardHeight", 14), method<&W::activate>("Activate", 15),
        method<&W::select>("Select", 16, "[Replace]"), read_only<&W::protect_contents>("ProtectContents", 17),
        read_only<&W::next>("Next", 18), read_only<&W::previous>("Previous", 19),
        read_only<&W::hyperlinks>("Hyperlinks", 20),
        method<&W::protect>("Protect", 21,
                            "[Password], [DrawingObjects], [Contents], [Scenarios], [UserInterfaceOnly], "
                            "[AllowFormattingCells], [AllowFormattingColumns], [AllowFormattingRows], "
                            "[AllowInsertingColumns], [AllowInsertingRows], [AllowInsertingHyperlinks], "
                            "[AllowDeletingColumns], [AllowDeletingRows], [AllowSorting], [AllowFiltering], "
                            "[AllowUsingPivotTables]"),
        method<&W::unprotect>("Unprotect", 22, "[Password]"), read_only<&W::protection>("Protection", 23),
        read_only<&W::protection_mode>("ProtectionMode", 24), read_only<&W::list_objects>("ListObjects", 25),
        read_only<&W::shapes>("Shapes", 26));
    static constexpr MemberTable table("Worksheet", rows);
    return table;
}

}  // namespace kestrune::host
