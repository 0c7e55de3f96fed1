#include "host/objects/SheetsObject.h"

#include "host/objects/SheetObject.h"

namespace kestrune::host {

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

const MemberTable& SheetsObject::members() {
    using S = SheetsObject;
    static constexpr auto rows =
        automation::member_rows(read_only<&S::item>("Item", 0, "Index"), read_only<&S::application>("Application", 1),
                                read_only<&S::parent>("Parent", 2), read_only<&S::count>("Count", 3));
    static constexpr MemberTable table("Sheets", rows);
    return table;
}

const MemberTable& WorksheetsObject::members() {
    using W = WorksheetsObject;
    static constexpr auto rows =
        automation::member_rows(read_only<&W::item>("Item", 0, "Index"), read_only<&W::application>("Application", 1),
                                read_only<&W::parent>("Parent", 2), read_only<&W::count>("Count", 3));
    static constexpr MemberTable table("Worksheets", rows);
    return table;
}

}  // namespace kestrune::host
