#include "smart/ToolOptions.h"

#include "smart/copy/fSmartCopy.h"
#include "smart/fill/fSmartFillDates.h"
#include "smart/fill/fSmartFillNumbers.h"
#include "smart/spacing/fSmartFmlaSpacing.h"

namespace kestrune::smart {
namespace {

using core::SharedState;
using settings::cUserSettings;

template <auto group>
bool& shows(cUserSettings& settings) {
    return (settings.*group).Show;
}

void show(forms::Form&& form, const SharedState& shared) { form.Show(shared.presenter); }

template <const CopyDirection& direction>
void edit_copy(SharedState& shared) {
    show(fSmartCopy(shared, direction, shared.settings().*direction.options), shared);
}

void edit_row_spacing(SharedState& shared) {
    auto& kept = shared.settings().SmartFmlaRowSpacing;
    show(fSmartFmlaSpacing(shared, row_spacing_words, {kept.FmlaRows, kept.ReferenceRows, kept.Show}), shared);
}

void edit_column_spacing(SharedState& shared) {
    auto& kept = shared.settings().SmartFmlaColSpacing;
    show(fSmartFmlaSpacing(shared, column_spacing_words, {kept.FmlaCols, kept.ReferenceCols, kept.Show}), shared);
}

constexpr settings::SmartTools tools{{
    {"ckbShowCopyRight", "btnCopyRight", shows<&cUserSettings::SmartCopyRight>, edit_copy<copy_right>},
    {"ckbShowCopyDown", "btnCopyDown", shows<&cUserSettings::SmartCopyDown>, edit_copy<copy_down>},
    {"ckbShowFillDates", "btnFillDates", shows<&cUserSettings::SmartFillDates>,
     [](SharedState& shared) { show(fSmartFillDates(shared, shared.settings().SmartFillDates), shared); }},
    {"ckbShowFillNumbers", "btnFillNumbers", shows<&cUserSettings::SmartFillNumbers>,
     [](SharedState& shared) { show(fSmartFillNumbers(shared, shared.settings().SmartFillNumbers), shared); }},
    {"ckbShowFmlaRowSpacing", "btnFmlaRowSpacing", shows<&cUserSettings::SmartFmlaRowSpacing>, edit_row_spacing},
    {"ckbShowFmlaColSpacing", "btnFmlaColSpacing", shows<&cUserSettings::SmartFmlaColSpacing>, edit_column_spacing},
}};

}  // namespace

const settings::SmartTools& tools_with_options() { return tools; }

}  // namespace kestrune::smart
