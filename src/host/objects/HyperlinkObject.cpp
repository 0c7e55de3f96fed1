#include "host/objects/HyperlinkObject.h"

#include "host/objects/CellReader.h"
#include "host/objects/RangeObject.h"

namespace kestrune::host {

ObjectRef HyperlinkObject::range() const { return std::make_shared<RangeObject>(cells_); }

std::string HyperlinkObject::text_to_display() const {
    const Cell* cell = cells_.sheet().find(cells_.first().top_left());
    return cell ? CellReader(cells_).text(*cell) : std::string();
}

std::string HyperlinkObject::name() const { return link_.address.empty() ? link_.sub_address : link_.address; }

const MemberTable& HyperlinkObject::members() {
    using H = HyperlinkObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&H::name>("Name", 0), read_only<&H::application>("Application", 1), read_only<&H::range>("Parent", 2),
        read_only<&H::range>("Range", 3), read_only<&H::address>("Address", 4),
        read_only<&H::sub_address>("SubAddress", 5), read_only<&H::screen_tip>("ScreenTip", 6),
        read_only<&H::text_to_display>("TextToDisplay", 7), read_only<&H::type>("Type", 8));
    static constexpr MemberTable table("Hyperlink", rows);
    return table;
}

}  // namespace kestrune::host
