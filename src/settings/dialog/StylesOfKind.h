#pragma once

#include <string_view>

#include "settings/cUserSettings.h"
#include "settings/dialog/StyleCycleControls.h"

namespace kestrune::settings {

// The styles that a choice of style_kinds means: all, or those of one category.
inline styles::StylesRef styles_of_kind(const cUserSettings& settings, std::int32_t kind) {
    return kind <= 0 ? settings.Styles : settings.Styles->CategoryStyles(kind - 1);
}

// What a category is called.
constexpr std::string_view kind_name(std::int32_t category) {
    const auto place = static_cast<std::size_t>(category) + 1;
    return category >= 0 && place < style_kinds.size() ? style_kinds[place] : style_kinds[1];
}

}  // namespace kestrune::settings
