#include "host/model/ConditionalFormat.h"

#include <utility>

#include "host/model/AreaCut.h"
#include "host/model/Sheet.h"

namespace kestrune::host {

std::vector<ConditionalFormat>& Sheet::conditional_formats() {
    ensure_loaded();
    return conditional_formats_;
}

void Sheet::delete_conditional_formats(const Area& area) {
    for (ConditionalFormat& format : conditional_formats()) {
        std::vector<Area> left;
        bool cut = false;
        for (const Area& held : format.areas) {
            if (!held.intersection(area)) {
                left.push_back(held);
                continue;
            }
            cut = true;
            for (const Area& piece : area_without(held, area)) left.push_back(piece);
        }
        if (!cut) continue;
        format.areas = std::move(left);
        conditional_formats_changed = true;
    }
    if (conditional_formats_changed)
        std::erase_if(conditional_formats_, [](const ConditionalFormat& format) { return format.areas.empty(); });
}

}  // namespace kestrune::host
