#include "brxllib/iFormula.h"

#include "brxllib/FormulaAnchors.h"
#include "brxllib/FormulaShift.h"
#include "formula/Shift.h"

namespace kestrune::brxllib {

using automation::MemberTable;

std::string iFormula::shift(const std::string& formula, std::int32_t rows, std::int32_t columns,
                            std::optional<std::int32_t> row, std::optional<std::int32_t> column) const {
    if (!row && !column) return formula::shift_r1c1_formula(formula, rows, columns);
    const formula::Position target{row.value_or(1), column.value_or(1)};
    if (!row || !column || !target.on_sheet()) {
        throw automation::AutomationError(automation::hresult::bad_index, "iFormula.Shift",
                                          "Row and Column name no cell of a sheet");
    }
    return shift_for_cell(formula, rows, columns, target);
}

automation::Value iFormula::anchor_of(const std::string& formula) const {
    const auto anchor = brxllib::anchor_of(formula);
    if (!anchor) return {};
    return static_cast<std::int32_t>(*anchor);
}

std::string iFormula::anchored(const std::string& formula, std::int32_t anchor) const {
    if (anchor < 0 || anchor > static_cast<std::int32_t>(Anchor::Column)) {
        throw automation::AutomationError(automation::hresult::bad_index, "iFormula.Anchored", "Anchor is 0 to 3");
    }
    return brxllib::anchored(formula, static_cast<Anchor>(anchor));
}

const MemberTable& iFormula::members() {
    static constexpr auto rows = automation::member_rows(
        automation::method<&iFormula::shift>("Shift", 1, "Formula, Rows, Columns, [Row], [Column]"),
        automation::method<&iFormula::anchor_of>("AnchorOf", 2, "Formula"),
        automation::method<&iFormula::anchored>("Anchored", 3, "Formula, Anchor"));
    static constexpr MemberTable table("iFormula", rows);
    return table;
}

}  // namespace kestrune::brxllib
