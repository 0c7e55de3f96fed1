#include "brxllib/autocolor/Locks.h"

#include <algorithm>
#include <utility>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "brxllib/autocolor/Parting.h"
#include "formula/A1.h"

namespace kestrune::brxllib {
namespace {

using automation::Value;
using formula::Area;

void empty(ClassBlock& block, const Area& area) {
    for (std::int32_t row = area.first_row; row <= area.last_row; ++row) {
        const auto first = block.cells.begin() + block.place_of({row, area.first_column});
        std::fill(first, first + area.columns(), CellClass::Empty);
    }
}

bool holds_anything(const ClassBlock& block, const Area& area) {
    for (std::int32_t row = area.first_row; row <= area.last_row; ++row) {
        const auto first = block.cells.begin() + block.place_of({row, area.first_column});
        if (std::any_of(first, first + area.columns(), [](CellClass cell) { return cell != CellClass::Empty; })) {
            return true;
        }
    }
    return false;
}

}  // namespace

Locks::Locks(excel::Worksheet sheet, const automation::Trace& trace) : sheet_(std::move(sheet)) {
    const automation::ResumeNext attempt(trace);
    attempt.assign(protected_, [&] {
        return sheet_.ProtectContents() && !sheet_.ProtectionMode() && !sheet_.Protection().AllowFormattingCells();
    });
}

void Locks::take_out(ClassBlock& block) const {
    if (!protected_) return;
    // A part that holds nothing need not be asked about.
    visit_uniform_parts(
        block.area,
        [&](const Area& area) {
            return holds_anything(block, area) ? sheet_.Range(formula::area_text(area)).Locked() : Value(false);
        },
        [&](const Area& area, const Value& locked) {
            if (automation::to_boolean(locked)) empty(block, area);
        });
}

}  // namespace kestrune::brxllib
