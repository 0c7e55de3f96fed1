#include "styles/cStyleToggle.h"

namespace kestrune::styles {

std::shared_ptr<cStyleToggle> cStyleToggle::Copy(const cStyleToggle* source) {
    if (!source) return nullptr;
    auto copy = std::make_shared<cStyleToggle>(source->Name);
    copy->AccessLevel = source->AccessLevel;
    if (source->Styles) {
        for (std::int32_t i = 1; i <= source->Styles->Count(); ++i) copy->Styles->Add(source->Styles->Item(i));
    }
    return copy;
}

void cStyleToggle::Apply(const core::SharedState& shared, const excel::Range& range, std::int32_t position) const {
    if (!range || !Styles) return;
    const StyleRef style = Styles->Item(position == 0 ? next_position(shared, range) : position);
    if (style) style->Apply(shared, range);
}

std::int32_t cStyleToggle::next_position(const core::SharedState& shared, const excel::Range& range) const {
    // The last entry is not asked: a range that shows it starts over just as one that shows none.
    for (std::int32_t i = 1; i < Styles->Count(); ++i) {
        if (Styles->Item(i)->IsApplied(shared, range)) return i + 1;
    }
    return 1;
}

}  // namespace kestrune::styles
