#include "host/objects/BordersObject.h"

#include "host/objects/BorderObject.h"
#include "host/objects/Items.h"
#include "host/objects/RangeObject.h"

namespace kestrune::host {

ObjectRef BordersObject::parent() const { return std::make_shared<RangeObject>(cells()); }

ObjectRef BordersObject::item(std::int32_t index) const {
    if (index < xlDiagonalDown || index > xlInsideHorizontal) {
        refuse("Borders.Item", "a border's index is 5 to 12");
    }
    return std::make_shared<BorderObject>(cells(), index);
}

ObjectRef BordersObject::new_enum() const {
    std::vector<Value> lines;
    for (std::int32_t index = xlEdgeLeft; index <= xlInsideHorizontal; ++index) lines.emplace_back(item(index));
    return automation::enumerate(std::move(lines));
}

const MemberTable& BordersObject::members() {
    using B = BordersObject;
    static constexpr auto rows = automation::member_rows(
        enumeration<&B::new_enum>(), read_only<&B::item>("Item", 0, "Index"),
        read_only<&B::application>("Application", 1), read_only<&B::parent>("Parent", 2),
        read_only<&B::count>("Count", 3), property<&B::line_style, &B::set_line_style>("LineStyle", 4),
        read_only<&B::line_style>("Value", 5), property<&B::weight, &B::set_weight>("Weight", 6),
        property<&B::color, &B::set_color>("Color", 7), property<&B::color_index, &B::set_color_index>("ColorIndex", 8),
        property<&B::theme_color, &B::set_theme_color>("ThemeColor", 9),
        property<&B::tint_and_shade, &B::set_tint_and_shade>("TintAndShade", 10));
    static constexpr MemberTable table("Borders", rows);
    return table;
}

}  // namespace kestrune::host
