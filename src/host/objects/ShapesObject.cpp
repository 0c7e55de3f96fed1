#include "host/objects/ShapesObject.h"

#include <algorithm>

#include "host/objects/Items.h"
#include "host/objects/RangeObject.h"
#include "host/objects/SheetObject.h"

namespace kestrune::host {

LyingThings lying_on(Sheet& sheet) {
    const Workbook& workbook = sheet.workbook();
    if (!workbook.read_lying) return {};
    const auto& sheets = workbook.sheets();
    const auto place = std::ranges::find(sheets, &sheet, [](const auto& each) { return each.get(); });
    return workbook.read_lying(static_cast<std::size_t>(place - sheets.begin()));
}

ObjectRef ShapesObject::parent() const { return sheet_object(session(), sheet_); }
ObjectRef ShapesObject::new_enum() const { return items_of(*this); }

ObjectRef ShapesObject::item(const Value& index) const {
    constexpr std::string_view member = "Shapes.Item";
    std::vector<Drawing> drawings = lying_on(sheet_).drawings;
    auto found = drawings.end();
    if (const auto* name = index.if_is<std::string>()) {
        found = std::ranges::find_if(drawings,
                                     [&](const Drawing& each) { return automation::same_text(each.name, *name); });
    } else if (const std::int32_t position = automation::to_integer(index);
               position >= 1 && position <= std::ssize(drawings)) {
        found = drawings.begin() + (position - 1);
    }
    if (found == drawings.end()) refuse_index(member, "there is no such shape on the sheet");
    return std::make_shared<ShapeObject>(session(), sheet_, std::move(*found));
}

ObjectRef ShapeObject::parent() const { return sheet_object(session(), sheet_); }

ObjectRef ShapeObject::top_left_cell() const {
    return std::make_shared<RangeObject>(CellRange(session(), sheet_, {Area::cell(drawing_.cells.top_left())}));
}

ObjectRef ShapeObject::bottom_right_cell() const {
    const Area last = Area::cell({drawing_.cells.last_row, drawing_.cells.last_column});
    return std::make_shared<RangeObject>(CellRange(session(), sheet_, {last}));
}

const MemberTable& ShapesObject::members() {
    using S = ShapesObject;
    static constexpr auto rows = automation::member_rows(
        enumeration<&S::new_enum>(), method<&S::item>("Item", 0, "Index"), read_only<&S::application>("Application", 1),
        read_only<&S::parent>("Parent", 2), read_only<&S::count>("Count", 3));
    static constexpr MemberTable table("Shapes", rows);
    return table;
}

const MemberTable& ShapeObject::members() {
    using S = ShapeObject;
    static constexpr auto rows =
        automation::member_rows(read_only<&S::application>("Application", 1), read_only<&S::parent>("Parent", 2),
                                read_only<&S::name>("Name", 3), read_only<&S::top_left_cell>("TopLeftCell", 4),
                                read_only<&S::bottom_right_cell>("BottomRightCell", 5));
    static constexpr MemberTable table("Shape", rows);
    return table;
}

}  // namespace kestrune::host
