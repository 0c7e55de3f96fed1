#include "host/objects/ConditionBordersObject.h"

#include "host/objects/FormatConditionObject.h"
#include "host/objects/Items.h"

namespace kestrune::host {
namespace {

Edge edge_of(std::int32_t index) {
    switch (index) {
        case xlLeft:
        case xlEdgeLeft:
            return Edge::Left;
        case xlTop:
        case xlEdgeTop:
            return Edge::Top;
        case xlRight:
        case xlEdgeRight:
            return Edge::Right;
        case xlBottom:
        case xlEdgeBottom:
            return Edge::Bottom;
        default:
            refuse("Borders.Item", "a conditional format has a left, a top, a right and a bottom border");
    }
}

}  // namespace

ObjectRef ConditionBorderObject::parent() const { return std::make_shared<FormatConditionObject>(rule()); }
ObjectRef ConditionBordersObject::parent() const { return std::make_shared<FormatConditionObject>(rule()); }

ObjectRef ConditionBordersObject::item(std::int32_t index) const {
    return std::make_shared<ConditionBorderObject>(rule(), edge_of(index));
}

const MemberTable& ConditionBorderObject::members() {
    using B = ConditionBorderObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&B::application>("Application", 1), read_only<&B::parent>("Parent", 2),
        property<&B::line_style, &B::set_line_style>("LineStyle", 3), property<&B::weight, &B::set_weight>("Weight", 4),
        property<&B::color, &B::set_color>("Color", 5), property<&B::color_index, &B::set_color_index>("ColorIndex", 6),
        property<&B::theme_color, &B::set_theme_color>("ThemeColor", 7),
        property<&B::tint_and_shade, &B::set_tint_and_shade>("TintAndShade", 8));
    static constexpr MemberTable table("Border", rows);
    return table;
}

ObjectRef ConditionBordersObject::new_enum() const {
    std::vector<Value> lines;
    for (const std::int32_t index : {xlEdgeLeft, xlEdgeTop, xlEdgeBottom, xlEdgeRight}) lines.emplace_back(item(index));
    return automation::enumerate(std::move(lines));
}

const MemberTable& ConditionBordersObject::members() {
    using B = ConditionBordersObject;
    static constexpr auto rows = automation::member_rows(
        enumeration<&B::new_enum>(), read_only<&B::item>("Item", 0, "Index"),
        read_only<&B::application>("Application", 1), read_only<&B::parent>("Parent", 2),
        read_only<&B::count>("Count", 3), property<&B::line_style, &B::set_line_style>("LineStyle", 4),
        property<&B::weight, &B::set_weight>("Weight", 5), property<&B::color, &B::set_color>("Color", 6),
        property<&B::color_index, &B::set_color_index>("ColorIndex", 7),
        property<&B::theme_color, &B::set_theme_color>("ThemeColor", 8),
        property<&B::tint_and_shade, &B::set_tint_and_shade>("TintAndShade", 9));
    static constexpr MemberTable table("Borders", rows);
    return table;
}

}  // namespace kestrune::host
