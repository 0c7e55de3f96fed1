#include "brxllib/undo/snapshot/Partition.h"

#include <algorithm>
#include <tuple>

namespace kestrune::brxllib::undo {

using formula::Area;

void Partition::add(const Area& area, const Reading& reading, Budget& budget) {
    const std::uint32_t place = place_of(reading, budget);
    // Areas come neighbour by neighbour, so that most of the joining can be done at once.
    if (in_columns_ && !parts_.empty()) {
        Part& last = parts_.back();
        if (last.reading == place && last.area.first_column == area.first_column &&
            last.area.last_column == area.last_column && last.area.last_row + 1 == area.first_row) {
            last.area.last_row = area.last_row;
            return;
        }
    }
    budget.spend(sizeof(Part));
    parts_.push_back({area, place});
}

std::uint32_t Partition::place_of(const Reading& reading, Budget& budget) {
    // There are few, and neighbours are alike.
    const auto found = std::find(readings_.rbegin(), readings_.rend(), reading);
    if (found != readings_.rend()) return static_cast<std::uint32_t>(readings_.rend() - found - 1);
    budget.spend(bytes_of(reading));
    readings_.push_back(reading);
    return static_cast<std::uint32_t>(readings_.size() - 1);
}

void Partition::join(bool across) {
    std::ranges::sort(parts_, {}, [&](const Part& part) {
        const Area& a = part.area;
        return across ? std::tuple(part.reading, a.first_row, a.last_row, a.first_column)
                      : std::tuple(part.reading, a.first_column, a.last_column, a.first_row);
    });
    std::size_t kept = 0;
    for (std::size_t i = 1; i < parts_.size(); ++i) {
        Part& last = parts_[kept];
        const Part& next = parts_[i];
        const bool beside = last.area.first_row == next.area.first_row && last.area.last_row == next.area.last_row &&
                            last.area.last_column + 1 == next.area.first_column;
        const bool below = last.area.first_column == next.area.first_column &&
                           last.area.last_column == next.area.last_column &&
                           last.area.last_row + 1 == next.area.first_row;
        if (last.reading == next.reading && (across ? beside : below)) {
            last.area.last_row = next.area.last_row;
            last.area.last_column = next.area.last_column;
        } else {
            parts_[++kept] = next;
        }
    }
    if (!parts_.empty()) parts_.resize(kept + 1);
}

void Partition::finish() {
    if (in_rows_) join(true);
    if (in_columns_) join(false);
    parts_.shrink_to_fit();
}

std::vector<Area> Partition::areas_of(std::size_t reading) const {
    std::vector<Area> areas;
    const auto [first, last] = std::ranges::equal_range(parts_, reading, {}, &Part::reading);
    for (const Part& part : std::ranges::subrange(first, last)) areas.push_back(part.area);
    return areas;
}

const Reading* Partition::at(formula::Position place) const {
    const auto part = std::ranges::find_if(parts_, [&](const Part& one) { return one.area.contains(place); });
    return part == parts_.end() ? nullptr : &readings_[part->reading];
}

std::size_t Partition::bytes() const {
    std::size_t sum = sizeof(Partition) + parts_.capacity() * sizeof(Part);
    for (const Reading& reading : readings_) sum += bytes_of(reading);
    return sum;
}

}  // namespace kestrune::brxllib::undo
