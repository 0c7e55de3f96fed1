#include "host/objects/WorkbooksObject.h"

#include "host/objects/Items.h"
#include "host/objects/ManyArguments.h"
#include "host/objects/SheetObject.h"

namespace kestrune::host {
namespace {

constexpr std::string_view open_parameters =
    "[FileName], [UpdateLinks], [ReadOnly], [Format], [Password], [WriteResPassword], [IgnoreReadOnlyRecommended], "
    "[Origin], [Delimiter], [Editable], [Notify], [Converter], [AddToMru], [Local], [CorruptLoad]";

}  // namespace

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

ObjectRef WorkbooksObject::add(const Value& template_file) {
    const bool plain =
        template_file.is(Value::Kind::Missing) ||
        (!template_file.if_is<std::string>() && automation::to_integer(template_file) == xlWBATWorksheet);
    if (!plain) refuse("Workbooks.Add", "workbooks are made without a template only");
    return workbook_object(session(), session().add_workbook());
}

ObjectRef WorkbooksObject::open(std::span<const Value> arguments) {
    const Value& file = arguments.front();
    if (file.is(Value::Kind::Missing)) refuse("Workbooks.Open", "no file is named");
    return workbook_object(session(), session().open_file(automation::to_text(file)));
}

ObjectRef WorkbooksObject::new_enum() const { return items_of(*this); }

const MemberTable& WorkbooksObject::members() {
    using W = WorkbooksObject;
    static constexpr auto rows =
        automation::member_rows(enumeration<&W::new_enum>(), read_only<&W::item>("Item", 0, "Index"),
                                read_only<&W::application>("Application", 1), read_only<&W::application>("Parent", 2),
                                read_only<&W::count>("Count", 3), method<&W::add>("Add", 4, "[Template]"),
                                of_many<&W::open>("Open", 5, open_parameters));
    static constexpr MemberTable table("Workbooks", rows);
    return table;
}

}  // namespace kestrune::host
