#include "host/objects/StyleObject.h"

#include "host/objects/SheetObject.h"

namespace kestrune::host {

const NamedStyle& StyleObject::get() const {
    const auto& styles = workbook_.styles.named_styles;
    if (position_ >= styles.size()) refuse("Style", "there is no such style");
    return styles[position_];
}

ObjectRef StyleObject::parent() const { return workbook_object(session(), workbook_); }
std::string StyleObject::name() const { return get().name; }
std::string StyleObject::number_format() const { return workbook_.styles.number_format(get().format.number_format); }

const MemberTable& StyleObject::members() {
    using S = StyleObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&S::name>("_Default", 0), read_only<&S::application>("Application", 1),
        read_only<&S::parent>("Parent", 2), read_only<&S::name>("Name", 3), read_only<&S::name>("NameLocal", 4),
        read_only<&S::name>("Value", 5), read_only<&S::number_format>("NumberFormat", 6));
    static constexpr MemberTable table("Style", rows);
    return table;
}

}  // namespace kestrune::host
