#include "brxllib/autocolor/ClassReader.h"

#include <algorithm>
#include <string>
#include <variant>

#include "automation/Conversion.h"
#include "brxllib/BlockAnswer.h"
#include "brxllib/autocolor/Rectangles.h"
#include "formula/Selection.h"

namespace kestrune::brxllib {
namespace {

using automation::Value;
using formula::Area;

std::vector<Area> parsed(const std::string& address) {
    auto read = formula::parse_selection(address);
    auto* selection = std::get_if<formula::Selection>(&read);
    return selection ? std::move(selection->areas) : std::vector<Area>{};
}

}  // namespace

ClassBlock ClassReader::read(const excel::Range& range, const Area& area) {
    const BlockAnswer formulas(range.Formula(), area);
    const BlockAnswer values(range.Value(), area);
    FormulaTest has_formula(range, area);
    ClassBlock block{area, {}};
    block.cells.reserve(static_cast<std::size_t>(area.cells()));
    const std::string* last = nullptr;  // the cells of an array formula all show the same
    CellClass last_class = CellClass::Empty;
    for (std::size_t i = 0; i < static_cast<std::size_t>(area.cells()); ++i) {
        const auto* text = formulas[i].if_is<std::string>();
        const bool like_formula = text && text->size() > 1 && text->front() == '=';
        if (text && text->empty()) {
            block.cells.push_back(CellClass::Empty);
        } else if (!like_formula || (values[i] == formulas[i] && !has_formula.holds(i))) {
            block.cells.push_back(class_of_constant(values[i]));
        } else {
            if (!last || *last != *text) last_class = class_of_formula(*text, names_, hyperlinks_);
            last = text;
            block.cells.push_back(last_class);
        }
    }
    if (hyperlinks_) attempt_([&] { mark_links(range, block); });
    return block;
}

void ClassReader::mark_links(const excel::Range& range, ClassBlock& block) const {
    const excel::Hyperlinks links = range.Hyperlinks();
    const std::int32_t count = links.Count();
    for (std::int32_t link = 1; link <= count; ++link) {
        std::vector<Area> linked;
        attempt_.assign(linked, [&] { return parsed(links.Item(link).Range().Address()); });
        for (const Area& area : linked) {
            const auto common = area.intersection(block.area);
            if (!common) continue;
            for (std::int32_t row = common->first_row; row <= common->last_row; ++row) {
                const auto first = block.cells.begin() + block.place_of({row, common->first_column});
                // A link on a cell without content shows nothing that could be coloured.
                std::replace_if(
                    first, first + common->columns(), [](CellClass cell) { return cell != CellClass::Empty; },
                    CellClass::Hyperlink);
            }
        }
    }
}

excel::Range range_of(const excel::Application& application, const excel::Worksheet& sheet,
                      std::span<const Area> areas) {
    excel::Range range;
    while (!areas.empty()) {
        const AddressText address = address_of(areas);
        const excel::Range more = sheet.Range(address.text);
        range = range ? application.Union(range, more) : more;
        areas = areas.subspan(address.areas);
    }
    return range;
}

std::vector<Area> areas_of(const excel::Range& range) {
    const std::string address = range.Address();
    constexpr std::size_t longest_area = 26;  // "$XFD$1048576:$XFD$1048576", and a comma
    if (address.size() + longest_area < longest_address) return parsed(address);
    std::vector<Area> areas;
    const excel::Areas parts = range.Areas();
    const std::int32_t count = parts.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        const std::vector<Area> area = parsed(parts.Item(i).Address());
        areas.insert(areas.end(), area.begin(), area.end());
    }
    return areas;
}

}  // namespace kestrune::brxllib
