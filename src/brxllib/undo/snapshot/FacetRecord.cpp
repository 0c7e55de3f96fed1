#include "brxllib/undo/snapshot/FacetRecord.h"

#include <algorithm>
#include <map>
#include <utility>

#include "brxllib/autocolor/Parting.h"
#include "brxllib/autocolor/Rectangles.h"
#include "formula/A1.h"

namespace kestrune::brxllib::undo {
namespace {

using formula::Area;

// The whole sheet is rows as well as columns, and has to be told which it is.
excel::Range range_of(const excel::Worksheet& sheet, Place place, const Area& cells) {
    excel::Range range = sheet.Range(formula::area_text(cells));
    if (cells != Area::sheet()) return range;
    if (place == Place::Rows) return range.Rows();
    return place == Place::Columns ? range.Columns() : range;
}

// The ranges that were asked for first, which every facet asks about again.
class Ranges {
  public:
    explicit Ranges(const excel::Worksheet& sheet) : sheet_(sheet) {}

    excel::Range of(Place place, const Area& cells) {
        for (const auto& [area, range] : known_) {
            if (area == cells) return range;
        }
        excel::Range range = range_of(sheet_, place, cells);
        if (place != Place::Rows && place != Place::Columns && known_.size() < most) known_.emplace_back(cells, range);
        return range;
    }

  private:
    static constexpr std::size_t most = 16;
    const excel::Worksheet& sheet_;
    std::vector<std::pair<Area, excel::Range>> known_;
};

bool unknown_member(const automation::AutomationError& error) {
    return error.code() == automation::hresult::unknown_name || error.code() == automation::hresult::member_not_found;
}

}  // namespace

FacetRecord FacetRecord::take(std::span<const Facet> facets, const excel::Worksheet& sheet,
                              const std::vector<Piece>& pieces, Budget& budget, const automation::Trace& trace) {
    FacetRecord record;
    Ranges ranges(sheet);
    for (const Facet& facet : facets) {
        // Pieces of one kind follow one another.
        std::vector<Part> parts;
        try {
            for (const Piece& piece : pieces) {
                if (parts.empty() || parts.back().of_columns != piece.of_columns ||
                    parts.back().of_rows != piece.of_rows) {
                    parts.push_back({&facet, piece.of_columns, piece.of_rows});
                    const Place place = facet.place;
                    parts.back().partition = Partition(place != Place::LeftEdge && place != Place::RightEdge,
                                                       place != Place::TopEdge && place != Place::BottomEdge);
                }
                const auto area = place_in(facet.place, piece.cells);
                if (!area) continue;
                visit_uniform_parts(
                    *area,
                    [&](const Area& at) { return facet.read(ranges.of(facet.place, cells_of(facet.place, at))); },
                    [&](const Area& at, const std::optional<Reading>& reading) {
                        parts.back().partition.add(at, *reading, budget);
                    });
            }
        } catch (const automation::AutomationError& error) {
            if (!unknown_member(error)) throw;
            trace.skipped(error.what());
            continue;
        }
        for (Part& part : parts) {
            part.partition.finish();
            record.parts_.push_back(std::move(part));
        }
    }
    return record;
}

void FacetRecord::restore(Restoring& restoring) const {
    for (const Part& part : parts_) {
        const auto& readings = part.partition.readings();
        // Beyond the used cells, what reaches the end of the sheet is what whole lines have; the rest differs from
        // that.
        const bool whole_lines = part.of_columns || part.of_rows;
        for (const bool to_the_end : {true, false}) {
            for (std::size_t i = 0; i < readings.size(); ++i) {
                std::vector<Area> areas = part.partition.areas_of(i);
                if (whole_lines) {
                    std::erase_if(areas, [&](const Area& area) { return reaches_end(part, area) != to_the_end; });
                } else if (!to_the_end) {
                    continue;
                }
                std::span<const Area> left(areas);
                // Sides of an area are its own; cells can be asked together.
                const bool together = part.facet->place == Place::Cells && !whole_lines;
                while (!left.empty()) {
                    const std::size_t group = together ? address_of(left).areas : 1;
                    restore_group(part, left.first(group), readings[i], restoring);
                    left = left.subspan(group);
                }
            }
        }
    }
}

bool FacetRecord::reaches_end(const Part& part, const Area& area) {
    return part.of_columns ? area.last_row == formula::max_rows : area.last_column == formula::max_columns;
}

void FacetRecord::restore_group(const Part& part, std::span<const Area> areas, const Reading& reading,
                                Restoring& restoring) {
    const Facet& facet = *part.facet;
    const auto of = [&](const Area& area) {
        return range_of(restoring.sheet(), facet.place, cells_of(facet.place, area));
    };
    const bool several = areas.size() > 1;
    const std::string text =
        several ? address_of(areas).text : formula::area_text(cells_of(facet.place, areas.front()));
    restoring(text, facet.name, [&] {
        const excel::Range cells = several ? restoring.sheet().Range(text) : of(areas.front());
        if (facet.read(cells) == reading) return;
        const bool whole_lines = part.of_columns || part.of_rows;
        if (!whole_lines || !reaches_end(part, areas.front())) return facet.write(cells, reading);
        Area whole = areas.front();
        const bool across = facet.place == Place::TopEdge || facet.place == Place::BottomEdge;
        const bool along = facet.place == Place::LeftEdge || facet.place == Place::RightEdge;
        if (part.of_columns && !across) whole.first_row = facet.place == Place::InsideHorizontal ? 2 : 1;
        if (part.of_rows && !along) whole.first_column = facet.place == Place::InsideVertical ? 2 : 1;
        facet.write(of(whole), reading);
    });
}

void FacetRecord::tell_gradients(std::vector<std::string>& lines) const {
    for (const Part& part : parts_) {
        if (part.facet->name != fill_facet) continue;
        for (std::size_t i = 0; i < part.partition.readings().size(); ++i) {
            if (!is_gradient(part.partition.readings()[i])) continue;
            for (const Area& area : part.partition.areas_of(i)) {
                lines.push_back("the gradient of " + formula::area_text(area));
            }
        }
    }
}

std::size_t FacetRecord::bytes() const {
    std::size_t sum = sizeof(FacetRecord);
    for (const Part& part : parts_) sum += sizeof(Part) + part.partition.bytes();
    return sum;
}

}  // namespace kestrune::brxllib::undo
