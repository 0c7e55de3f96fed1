#include "host/objects/HyperlinksObject.h"

#include <algorithm>

#include "host/objects/HyperlinkObject.h"
#include "host/objects/Items.h"
#include "host/objects/RangeObject.h"
#include "host/objects/Refusal.h"
#include "host/objects/SheetObject.h"

namespace kestrune::host {

const std::vector<const Hyperlink*>& HyperlinksObject::list() const {
    const auto& links = sheet_.hyperlinks();
    const Seen now{links.data(), links.size(), sheet_.workbook().edits().size()};
    if (seen_ == now) return list_;
    seen_ = now;
    list_.clear();
    for (const Hyperlink& link : links) {
        const auto touches = [&](const Area& area) { return area.intersection(link.area).has_value(); };
        if (!cells_ || std::ranges::any_of(cells_->areas(), touches)) list_.push_back(&link);
    }
    return list_;
}

ObjectRef HyperlinksObject::parent() const {
    if (cells_) return std::make_shared<RangeObject>(*cells_);
    return sheet_object(session(), sheet_);
}

ObjectRef HyperlinksObject::item(std::int32_t index) const {
    const auto& links = list();
    if (index < 1 || index > static_cast<std::int32_t>(links.size())) {
        refuse_index("Hyperlinks.Item", "there is no such hyperlink");
    }
    return std::make_shared<HyperlinkObject>(session(), sheet_, *links[static_cast<std::size_t>(index - 1)]);
}

ObjectRef HyperlinksObject::new_enum() const { return items_of(*this); }

const MemberTable& HyperlinksObject::members() {
    using H = HyperlinksObject;
    static constexpr auto rows =
        automation::member_rows(enumeration<&H::new_enum>(), read_only<&H::item>("Item", 0, "Index"),
                                read_only<&H::application>("Application", 1), read_only<&H::parent>("Parent", 2),
                                read_only<&H::count>("Count", 3));
    static constexpr MemberTable table("Hyperlinks", rows);
    return table;
}

}  // namespace kestrune::host
