#include "brxllib/undo/snapshot/NameRecord.h"

#include <algorithm>
#include <limits>

namespace kestrune::brxllib::undo {

NameRecord NameRecord::take(const excel::Workbook& workbook, Budget& budget, const automation::Trace& trace) {
    const automation::ResumeNext attempt(trace);
    NameRecord record;
    const excel::Names names = workbook.Names();
    const std::int32_t count = names.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        const excel::Name name = names.Item(i);
        Entry entry{name.text(), name.RefersToR1C1(), {}, name.Visible()};
        attempt.assign(entry.comment, [&] { return name.Comment(); });
        budget.spend(sizeof(Entry) + entry.name.size() + entry.refers_to.size() + entry.comment.size());
        record.names_.push_back(std::move(entry));
    }
    std::ranges::sort(record.names_, {}, &Entry::name);
    return record;
}

void NameRecord::restore(const excel::Workbook& workbook, Restoring& restoring) const {
    Budget unlimited(std::numeric_limits<std::size_t>::max());
    const NameRecord now = take(workbook, unlimited, restoring.trace());
    const auto of = [](const std::vector<Entry>& names, const std::string& name) {
        const auto place = std::ranges::lower_bound(names, name, {}, &Entry::name);
        return place != names.end() && place->name == name ? &*place : nullptr;
    };
    const excel::Names names = workbook.Names();
    for (const Entry& entry : now.names_) {
        if (of(names_, entry.name)) continue;
        restoring(entry.name, "Name", [&] { names.Item(entry.name).Delete(); });
    }
    for (const Entry& entry : names_) {
        const Entry* present = of(now.names_, entry.name);
        if (present && *present == entry) continue;
        restoring(entry.name, "Name", [&] {
            const excel::Name name = present ? names.Item(entry.name) : names.Add(entry.name, "=0");
            name.RefersToR1C1(entry.refers_to);
            name.Visible(entry.visible);
            if (entry.comment != (present ? present->comment : std::string())) name.Comment(entry.comment);
        });
    }
}

std::size_t NameRecord::bytes() const {
    std::size_t sum = sizeof(NameRecord) + names_.capacity() * sizeof(Entry);
    for (const Entry& entry : names_) {
        sum += entry.name.capacity() + entry.refers_to.capacity() + entry.comment.capacity();
    }
    return sum;
}

}  // namespace kestrune::brxllib::undo
