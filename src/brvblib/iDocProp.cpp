#include "brvblib/iDocProp.h"

namespace kestrune::brvblib {
namespace {

automation::ObjectRef property_of(const automation::ObjectRef& workbook, const std::string& name) {
    const automation::Value properties =
        automation::get(automation::to_required_object(workbook), "BuiltinDocumentProperties");
    const automation::Value found = automation::get(automation::to_required_object(properties), "Item", {name});
    automation::to_required_object(found);
    return automation::to_object(found);
}

}  // namespace

automation::Value iDocProp::value(const automation::ObjectRef& workbook, const std::string& name) const {
    return automation::get(*property_of(workbook, name), "Value");
}

void iDocProp::set_value(const automation::ObjectRef& workbook, const std::string& name,
                         const automation::Value& value) {
    automation::put(*property_of(workbook, name), "Value", value);
}

const automation::MemberTable& iDocProp::members() {
    static constexpr auto rows = automation::member_rows(
        automation::property<&iDocProp::value, &iDocProp::set_value>("Value", 1, "Workbook, Name"));
    static constexpr automation::MemberTable table("iDocProp", rows);
    return table;
}

}  // namespace kestrune::brvblib
