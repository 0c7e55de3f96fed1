#include "brxllib/NumberFormatParts.h"

#include <algorithm>
#include <span>
#include <utility>

#include "automation/Conversion.h"
#include "brxllib/autocolor/ClassReader.h"
#include "brxllib/autocolor/Parting.h"
#include "brxllib/autocolor/Rectangles.h"
#include "excel/Worksheet.h"
#include "formula/A1.h"

namespace kestrune::brxllib {

using automation::Value;
using formula::Area;

std::vector<NumberFormatPart> number_format_parts(const excel::Range& range) {
    const excel::Worksheet sheet = range.Worksheet();
    std::vector<std::pair<std::string, std::vector<Area>>> areas_of_formats;
    for (const Area& area : areas_of(range)) {
        visit_uniform_parts(
            area, [&](const Area& part) { return sheet.Range(formula::area_text(part)).NumberFormat(); },
            [&](const Area& part, const Value& answer) {
                std::string format = automation::to_text(answer);
                auto known = std::ranges::find(areas_of_formats, format, [](const auto& entry) { return entry.first; });
                if (known == areas_of_formats.end()) {
                    known = areas_of_formats.insert(known, {std::move(format), {}});
                }
                known->second.push_back(part);
            });
    }
    std::vector<NumberFormatPart> parts;
    for (const auto& [format, areas] : areas_of_formats) {
        for (std::span<const Area> left = areas; !left.empty();) {
            AddressText address = address_of(left);
            left = left.subspan(address.areas);
            parts.push_back({std::move(address.text), format});
        }
    }
    return parts;
}

}  // namespace kestrune::brxllib
