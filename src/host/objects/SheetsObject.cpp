#include "host/objects/SheetsObject.h"

#include <fmt/format.h>

#include "host/objects/Items.h"
#include "host/objects/Optional.h"
#include "host/objects/SheetObject.h"
#include "host/objects/WorksheetObject.h"

namespace kestrune::host {
namespace {

constexpr std::string_view add_member = "Worksheets.Add";

// The position of a sheet that an argument names by being it.
std::int32_t position_of_argument(const Workbook& workbook, const Value& argument) {
    const ObjectRef object = automation::to_object(argument);
    const auto worksheet = std::dynamic_pointer_cast<WorksheetObject>(object);
    if (worksheet && &worksheet->sheet().workbook() == &workbook) return position_of(worksheet->sheet());
    refuse(add_member, "Before and After are worksheets of the same workbook");
}

// "Sheet2", or the next number that no sheet has.
std::string fresh_sheet_name(const Workbook& workbook) {
    for (std::size_t number = workbook.sheets().size() + 1;; ++number) {
        std::string name = fmt::format("Sheet{}", number);
        if (!workbook.sheet(name)) return name;
    }
}

}  // namespace

template <class Derived>
std::vector<Sheet*> SheetList<Derived>::list() const {
    std::vector<Sheet*> sheets;
    for (const auto& sheet : workbook_.sheets()) {
        if (Derived::lists(sheet->kind())) sheets.push_back(sheet.get());
    }
    return sheets;
}

template <class Derived>
ObjectRef SheetList<Derived>::parent() const {
    return workbook_object(this->session(), workbook_);
}

template <class Derived>
std::int32_t SheetList<Derived>::count() const {
    return static_cast<std::int32_t>(list().size());
}

template <class Derived>
ObjectRef SheetList<Derived>::item(const Value& index) const {
    const std::string member = std::string(this->type_name()) + ".Item";
    if (const auto* name = index.if_is<std::string>()) {
        Sheet* sheet = workbook_.sheet(*name);
        if (!sheet || !Derived::lists(sheet->kind())) refuse_index(member, "there is no sheet '" + *name + "'");
        return sheet_object(this->session(), *sheet);
    }
    const std::vector<Sheet*> sheets = list();
    const std::int32_t position = automation::to_integer(index);
    if (position < 1 || position > static_cast<std::int32_t>(sheets.size())) {
        refuse_index(member, "there is no sheet number " + std::to_string(position));
    }
    return sheet_object(this->session(), *sheets[static_cast<std::size_t>(position - 1)]);
}

template <class Derived>
ObjectRef SheetList<Derived>::new_enum() const {
    return items_of(*this);
}

ObjectRef WorksheetsObject::add(const Value& before, const Value& after, const Value& count, const Value& type) {
    if (!session().opened(workbook()).created) {
        refuse(add_member, "the host adds no sheet to a workbook that comes from a file");
    }
    if (workbook().structure_protected) refuse(add_member, "the workbook's structure is protected");
    const bool in_front = !before.is(Value::Kind::Missing);
    const bool behind = !after.is(Value::Kind::Missing);
    if (in_front && behind) refuse(add_member, "Before and After exclude each other");
    if (value_or(type, xlWorksheet) != xlWorksheet) refuse(add_member, "the host adds worksheets only");
    constexpr std::int32_t most = 255;
    const std::int32_t wanted = value_or(count, 1);
    if (wanted < 1 || wanted > most) refuse(add_member, "Count is 1 to 255");
    const std::int32_t place = in_front ? position_of_argument(workbook(), before)
                               : behind ? position_of_argument(workbook(), after) + 1
                                        : workbook().active_sheet;
    Sheet* fresh = nullptr;
    for (std::int32_t i = 0; i < wanted; ++i) fresh = &workbook().insert_sheet(place, fresh_sheet_name(workbook()));
    session().activate(*fresh);
    session().changed(workbook());
    return sheet_object(session(), *fresh);
}

const MemberTable& SheetsObject::members() {
    using S = SheetsObject;
    static constexpr auto rows =
        automation::member_rows(enumeration<&S::new_enum>(), read_only<&S::item>("Item", 0, "Index"),
                                read_only<&S::application>("Application", 1), read_only<&S::parent>("Parent", 2),
                                read_only<&S::count>("Count", 3));
    static constexpr MemberTable table("Sheets", rows);
    return table;
}

const MemberTable& WorksheetsObject::members() {
    using W = WorksheetsObject;
    static constexpr auto rows = automation::member_rows(
        enumeration<&W::new_enum>(), read_only<&W::item>("Item", 0, "Index"),
        read_only<&W::application>("Application", 1), read_only<&W::parent>("Parent", 2),
        read_only<&W::count>("Count", 3), method<&W::add>("Add", 4, "[Before], [After], [Count], [Type]"));
    static constexpr MemberTable table("Worksheets", rows);
    return table;
}

}  // namespace kestrune::host
