#include "settings/ColorChoices.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "styles/ColorText.h"
#include "styles/StyleFields.h"

namespace kestrune::settings {
namespace {

void offer(forms::Control& combo, bool fills) {
    std::vector<std::string> names;
    std::vector<std::shared_ptr<const forms::Picture>> patches;
    if (fills) {
        names.emplace_back("No fill");
        patches.push_back(styles::color_patch(std::nullopt));
    }
    for (const styles::NamedColor& color : styles::named_colors()) {
        if (fills && color.color == styles::no_fill) continue;
        names.emplace_back(color.name);
        patches.push_back(styles::color_patch(color.color));
    }
    combo.List(std::move(names));
    combo.ItemPictures(std::move(patches));
}

}  // namespace

void offer_colors(forms::Control& combo) { offer(combo, false); }
void offer_fills(forms::Control& combo) { offer(combo, true); }

}  // namespace kestrune::settings
