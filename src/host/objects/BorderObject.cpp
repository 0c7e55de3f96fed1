#include "host/objects/BorderObject.h"

#include "host/objects/RangeObject.h"

namespace kestrune::host {

ObjectRef BorderObject::parent() const { return std::make_shared<RangeObject>(cells()); }

const MemberTable& BorderObject::members() {
    using B = BorderObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&B::application>("Application", 1), read_only<&B::parent>("Parent", 2),
        property<&B::line_style, &B::set_line_style>("LineStyle", 3), property<&B::weight, &B::set_weight>("Weight", 4),
        property<&B::color, &B::set_color>("Color", 5), property<&B::color_index, &B::set_color_index>("ColorIndex", 6),
        property<&B::theme_color, &B::set_theme_color>("ThemeColor", 7),
        property<&B::tint_and_shade, &B::set_tint_and_shade>("TintAndShade", 8));
    static constexpr MemberTable table("Border", rows);
    return table;
}

}  // namespace kestrune::host
