#include "brxllib/DependentIndex.h"

#include <algorithm>
#include <tuple>

#include "brxllib/FormulaScan.h"
#include "brxllib/Mentions.h"
#include "excel/Worksheet.h"
#include "formula/A1.h"

namespace kestrune::brxllib {

using formula::Position;

DependentIndex::DependentIndex(const excel::Application& application) : books_(application) {
    for (OpenBook& book : books_.all()) {
        for (std::size_t sheet = 0; sheet < book.sheets().size(); ++sheet) read(book, sheet);
    }
}

void DependentIndex::read(OpenBook& book, std::size_t sheet) {
    scan_formulas(book.workbook().Worksheets().Item(book.sheets()[sheet]), [&](const ScannedFormula& scanned) {
        if (scanned.is_formula()) add({&book, sheet, scanned.at, scanned.text});
    });
}

void DependentIndex::add(Entry entry) {
    const Site site{entry.book, entry.book->sheets()[entry.sheet], entry.at};
    for (Mention& mention : mentions(books_, entry.formula, site)) {
        const Target& target = mention.target;
        if (!target.book || !target.area) continue;
        const auto sheet = target.book->sheet(target.sheet);
        if (!sheet) continue;
        SheetUses& uses = uses_[{target.book, *sheet}];
        Use use{entries_.size(), mention.offset, mention.length, target.through};
        const Position first = target.area->top_left();
        if (target.address.ends_with('#')) uses.spilled_ranges[first].push_back(use);
        if (target.area->single_cell()) {
            uses.cells[first].push_back(std::move(use));
            continue;
        }
        const auto [place, is_new] = uses.area_places.try_emplace(formula::area_text(*target.area), uses.areas.size());
        if (is_new) uses.areas.push_back({*target.area, {}});
        uses.areas[place->second].uses.push_back(std::move(use));
    }
    entries_.push_back(std::move(entry));
}

std::vector<Link> DependentIndex::dependents(const std::string& workbook, const std::string& sheet, Position at) {
    OpenBook* own = books_.find(workbook);
    const auto own_sheet = own ? own->sheet(sheet) : std::nullopt;
    const auto known = own_sheet ? uses_.find({own, *own_sheet}) : uses_.end();
    if (known == uses_.end()) return {};
    const SheetUses& uses = known->second;
    std::vector<const Use*> found;
    const auto take = [&](const std::vector<Use>& more) {
        for (const Use& use : more) found.push_back(&use);
    };
    if (const auto cell = uses.cells.find(at); cell != uses.cells.end()) take(cell->second);
    for (const AreaUses& area : uses.areas) {
        if (area.area.contains(at)) take(area.uses);
    }
    if (!uses.spilled_ranges.empty()) {
        const auto anchor = spill_anchor(own->workbook().Worksheets().Item(sheet).Range(formula::cell_text(at)));
        const auto range = anchor ? uses.spilled_ranges.find(*anchor) : uses.spilled_ranges.end();
        if (range != uses.spilled_ranges.end()) take(range->second);
    }
    // The own sheet, the own workbook, the others; of each formula the first words.
    const auto order = [&](const Use* use) {
        const Entry& entry = entries_[use->entry];
        const int distance = entry.book != own ? 2 : entry.sheet != *own_sheet ? 1 : 0;
        return std::tuple(distance, use->entry, use->offset);
    };
    std::ranges::sort(found, {}, order);
    const auto [last, end] = std::ranges::unique(found, {}, [](const Use* use) { return use->entry; });
    found.erase(last, end);
    std::vector<Link> links;
    links.reserve(found.size());
    for (const Use* use : found) {
        const Entry& entry = entries_[use->entry];
        links.push_back(link_to_formula(*entry.book, entry.book->sheets()[entry.sheet], entry.at, entry.formula,
                                        use->offset, use->length, use->through));
    }
    return links;
}

}  // namespace kestrune::brxllib
