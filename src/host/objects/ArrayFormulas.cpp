#include "host/objects/ArrayFormulas.h"

namespace kestrune::host {

std::vector<Formula> arrays_in(Sheet& sheet, const Area& area) {
    sheet.ensure_loaded();
    std::vector<Formula> found;
    for (const Formula& formula : sheet.formulas()) {
        if (formula.kind != Formula::Kind::Array && formula.kind != Formula::Kind::DataTable) continue;
        // A record stays behind when its cells are written anew.
        if (area.intersection(formula.reach) && sheet.formula_record(formula.anchor) == &formula) {
            found.push_back(formula);
        }
    }
    return found;
}

}  // namespace kestrune::host
