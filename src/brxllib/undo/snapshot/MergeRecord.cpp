#include "brxllib/undo/snapshot/MergeRecord.h"

#include <algorithm>
#include <limits>

#include "automation/Conversion.h"
#include "brxllib/autocolor/ClassReader.h"
#include "brxllib/autocolor/Parting.h"
#include "formula/A1.h"
#include "formula/AreaCut.h"

namespace kestrune::brxllib::undo {

using automation::Value;
using formula::Area;

MergeRecord MergeRecord::take(const excel::Worksheet& sheet, const std::vector<Area>& areas, Budget& budget) {
    MergeRecord record;
    const auto find = [&](const Area& at, const Value& merged) {
        if (!automation::to_boolean(merged)) return;
        std::vector<Area> left{at};
        while (!left.empty()) {
            const Area part = left.back();
            left.pop_back();
            const Area whole = areas_of(sheet.Range(formula::cell_text(part.top_left())).MergeArea()).at(0);
            for (const Area& rest : formula::area_without(part, whole)) left.push_back(rest);
            if (std::ranges::find(record.merged_, whole) != record.merged_.end()) continue;
            budget.spend(sizeof(Area));
            record.merged_.push_back(whole);
        }
    };
    for (const Area& area : areas) {
        visit_uniform_parts(
            area, [&](const Area& at) { return sheet.Range(formula::area_text(at)).MergeCells(); }, find);
    }
    std::ranges::sort(record.merged_, {}, &Area::top_left);
    return record;
}

void MergeRecord::split_others(const std::vector<Area>& areas, Restoring& restoring) const {
    std::vector<Area> places = areas;
    places.insert(places.end(), merged_.begin(), merged_.end());
    Budget unlimited(std::numeric_limits<std::size_t>::max());
    for (const Area& area : take(restoring.sheet(), places, unlimited).merged_) {
        if (std::ranges::find(merged_, area) != merged_.end()) continue;
        const std::string address = formula::area_text(area);
        restoring(address, "MergeCells", [&] { restoring.sheet().Range(address).MergeCells(false); });
    }
}

void MergeRecord::merge(Restoring& restoring) const {
    for (const Area& area : merged_) {
        const std::string address = formula::area_text(area);
        restoring(address, "MergeCells", [&] {
            const excel::Range cells = restoring.sheet().Range(address);
            if (areas_of(cells.Cells(1, 1).MergeArea()).at(0) != area) cells.MergeCells(true);
        });
    }
}

}  // namespace kestrune::brxllib::undo
