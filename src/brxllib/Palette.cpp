#include "brxllib/Palette.h"

#include <algorithm>

#include "automation/AutomationError.h"
#include "automation/Conversion.h"

namespace kestrune::brxllib {
namespace {

// The square of the distance between two colours.
std::int32_t distance(std::int32_t a, std::int32_t b) {
    std::int32_t sum = 0;
    for (const int shift : {0, 8, 16}) {
        const std::int32_t difference = ((a >> shift) & 0xFF) - ((b >> shift) & 0xFF);
        sum += difference * difference;
    }
    return sum;
}

}  // namespace

Palette palette_of(const excel::Workbook& workbook) {
    const automation::Value colors = workbook.Colors();
    const automation::Array* entries = colors.array();
    Palette palette{};
    if (!entries || entries->elements().size() != palette.size()) {
        throw automation::AutomationError(automation::hresult::type_mismatch, "Workbook.Colors",
                                          "is not an array of 56 colours");
    }
    std::ranges::transform(entries->elements(), palette.begin(), automation::to_integer);
    return palette;
}

std::int32_t nearest_entry(const Palette& palette, std::int32_t color) {
    const auto nearest =
        std::ranges::min_element(palette, {}, [&](std::int32_t entry) { return distance(entry, color); });
    return static_cast<std::int32_t>(nearest - palette.begin()) + 1;
}

}  // namespace kestrune::brxllib
