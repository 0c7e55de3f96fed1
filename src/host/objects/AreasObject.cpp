#include "host/objects/AreasObject.h"

#include "host/objects/Items.h"
#include "host/objects/RangeObject.h"
#include "host/objects/Refusal.h"

namespace kestrune::host {

ObjectRef AreasObject::parent() const { return std::make_shared<RangeObject>(cells_); }

std::int32_t AreasObject::count() const { return static_cast<std::int32_t>(cells_.areas().size()); }

ObjectRef AreasObject::item(std::int32_t index) const {
    if (index < 1 || index > count()) refuse_index("Areas.Item", "there is no such area");
    const Area area = cells_.areas()[static_cast<std::size_t>(index - 1)];
    return std::make_shared<RangeObject>(CellRange(session(), cells_.sheet(), {area}));
}

ObjectRef AreasObject::new_enum() const { return items_of(*this); }

const MemberTable& AreasObject::members() {
    using A = AreasObject;
    static constexpr auto rows =
        automation::member_rows(enumeration<&A::new_enum>(), read_only<&A::item>("Item", 0, "Index"),
                                read_only<&A::application>("Application", 1), read_only<&A::parent>("Parent", 2),
                                read_only<&A::count>("Count", 3));
    static constexpr MemberTable table("Areas", rows);
    return table;
}

}  // namespace kestrune::host
