#include "smart/AnchorCommand.h"

#include <optional>
#include <string>

#include "automation/ResumeNext.h"
#include "core/bridges/FormulaRewriting.h"
#include "core/bridges/Selection.h"

namespace kestrune::smart {
namespace {

constexpr std::int32_t anchors = 4;  // relative, absolute, row, column

}  // namespace

void anchor_references(core::SharedState& shared, std::int32_t) {
    const excel::Range selection = core::selected_range(shared);
    if (!selection) return;
    const automation::ResumeNext attempt(shared.trace);
    attempt([&] {
        const core::diBRXLLib& library = shared.spreadsheet();
        std::optional<std::int32_t> now;
        static_cast<void>(core::find_formula(shared, selection, [&](const std::string& formula) {
            now = library.anchor_of(formula);
            return now.has_value();
        }));
        if (!now) return;
        const std::int32_t next = (*now + 1) % anchors;
        const core::RedrawingPause pause(shared, selection);
        core::rewrite_formulas(shared, selection, [&](const std::string& formula) -> std::optional<std::string> {
            std::string text = library.anchored(formula, next);
            if (text == formula) return std::nullopt;
            return text;
        });
    });
}

}  // namespace kestrune::smart
