#include "host/objects/WorkbooksObject.h"

#include "host/objects/SheetObject.h"

namespace kestrune::host {

ObjectRef WorkbooksObject::item(const Value& index) const {
    if (const auto* name = index.if_is<std::string>()) {
        for (const auto& opened : session().workbooks()) {
            if (automation::same_text(opened->model->name, *name)) return workbook_object(session(), *opened->model);
        }
        refuse_index("Workbooks.Item", "no workbook '" + *name + "' is open");
    }
    const std::int32_t position = automation::to_integer(index);
    if (position < 1 || position > count()) refuse_index("Workbooks.Item", "there is no such workbook");
    return workbook_object(session(), *session().workbooks()[static_cast<std::size_t>(position - 1)]->model);
}

const MemberTable& WorkbooksObject::members() {
    using W = WorkbooksObject;
    static constexpr auto rows =
        automation::member_rows(read_only<&W::item>("Item", 0, "Index"), read_only<&W::application>("Application", 1),
                                read_only<&W::application>("Parent", 2), read_only<&W::count>("Count", 3));
    static constexpr MemberTable table("Workbooks", rows);
    return table;
}

}  // namespace kestrune::host
