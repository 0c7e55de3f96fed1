#include "brxllib/FormulaBlocks.h"

#include <algorithm>

#include "automation/ResumeNext.h"
#include "brxllib/autocolor/ClassReader.h"
#include "brxllib/autocolor/Parting.h"
#include "excel/Constants.h"
#include "excel/Worksheet.h"
#include "formula/A1.h"

namespace kestrune::brxllib {
namespace {

using automation::Value;
using formula::Area;

class Finder {
  public:
    Finder(const excel::Application& application, const excel::Range& range)
        : application_(application), sheet_(range.Worksheet()), areas_(areas_of(range)) {}

    std::vector<FormulaBlock> blocks() {
        for (const Area& area : areas_) {
            for (const Area& filled : with_formulas(area)) add(filled);
        }
        return std::move(blocks_);
    }

  private:
    [[nodiscard]] excel::Range range(const Area& area) const { return sheet_.Range(formula::area_text(area)); }

    [[nodiscard]] std::vector<Area> with_formulas(const Area& area) const {
        const excel::Range all = range(area);
        const Value has_formula = all.HasFormula();
        if (has_formula == Value(true)) return {area};
        if (has_formula == Value(false)) return {};
        const excel::Range used = application_.Intersect(all, sheet_.UsedRange());
        if (!used) return {};
        // Asked of a single cell, SpecialCells looks through the whole sheet.
        const auto in_use = areas_of(used);
        if (in_use.size() == 1 && in_use.front().single_cell()) {
            return used.HasFormula() == Value(true) ? in_use : std::vector<Area>{};
        }
        return areas_of(used.SpecialCells(excel::xlCellTypeFormulas));
    }

    void add(const Area& area) {
        visit_uniform_parts(
            area, [&](const Area& part) { return range(part).HasArray(); },
            [&](const Area& part, const Value& has_array) {
                if (has_array == Value(true)) {
                    add_arrays(part);
                } else {
                    add_entered(part);
                }
            });
    }

    // Each array once, when all of it is in the range.
    void add_arrays(const Area& area) {
        for (std::int32_t row = area.first_row; row <= area.last_row; ++row) {
            for (std::int32_t column = area.first_column; column <= area.last_column; ++column) {
                const formula::Position at{row, column};
                if (std::ranges::any_of(arrays_, [&](const Area& array) { return array.contains(at); })) continue;
                const Area array = areas_of(range(Area::cell(at)).CurrentArray()).front();
                arrays_.push_back(array);
                const bool whole = std::ranges::any_of(areas_, [&](const Area& own) { return own.contains(array); });
                if (whole && range(array).NumberFormat() != Value("@")) keep(array, FormulaBlockKind::Array);
            }
        }
    }

    void add_entered(const Area& area) {
        visit_uniform_parts(
            area, [&](const Area& part) { return range(part).NumberFormat(); },
            [&](const Area& part, const Value& format) {
                if (format != Value("@")) add_by_spilling(part);
            });
    }

    void add_by_spilling(const Area& area) {
        visit_uniform_parts(
            area, [&](const Area& part) { return saved_as_array(range(part)); },
            [&](const Area& part, const Value& dynamic) {
                if (dynamic == Value(true)) {
                    add_dynamic(part);
                } else {
                    keep(part, FormulaBlockKind::Plain);
                }
            });
    }

    void add_dynamic(const Area& area) {
        for (std::int32_t row = area.first_row; row <= area.last_row; ++row) {
            for (std::int32_t column = area.first_column; column <= area.last_column; ++column) {
                const Area cell = Area::cell({row, column});
                Area parent = cell;
                const automation::Trace nobody;
                automation::ResumeNext(nobody).assign(parent,
                                                      [&] { return areas_of(range(cell).SpillParent()).front(); });
                if (parent == cell) keep(cell, FormulaBlockKind::Dynamic);
            }
        }
    }

    // Excel without dynamic arrays lacks the member, and has no such formulas.
    [[nodiscard]] Value saved_as_array(const excel::Range& cells) {
        Value answer(false);
        const automation::Trace nobody;
        if (knows_dynamic_arrays_) {
            knows_dynamic_arrays_ = automation::ResumeNext(nobody).assign(answer, [&] { return cells.SavedAsArray(); });
        }
        return answer;
    }

    void keep(const Area& area, FormulaBlockKind kind) { blocks_.push_back({formula::area_text(area), kind}); }

    const excel::Application& application_;
    excel::Worksheet sheet_;
    std::vector<Area> areas_;
    std::vector<Area> arrays_;
    std::vector<FormulaBlock> blocks_;
    bool knows_dynamic_arrays_ = true;
};

}  // namespace

std::vector<FormulaBlock> formula_blocks(const excel::Application& application, const excel::Range& range) {
    return Finder(application, range).blocks();
}

}  // namespace kestrune::brxllib
