#include "cli/prefs/AutoColorRules.h"

#include "cli/prefs/SetOption.h"
#include "cli/prefs/SettingsSession.h"
#include "forms/ScriptedPresenter.h"

namespace kestrune::cli {

brxllib::AutoColorSettings auto_color_rules(const std::string& preferences, const std::vector<std::string>& changes) {
    forms::ScriptedPresenter presenter;  // there is nothing to ask
    SettingsSession session(presenter, preferences);
    const auto settings = session.has_file() || !preferences.empty() ? session.load() : session.defaults();
    for (const std::string& change : changes) set_option(*settings, change);
    return {.bAutoColorOn = settings->bAutoColorOn,
            .bAutoColorHyperlinks = settings->bAutoColorHyperlinks,
            .bAutoColorText = settings->bAutoColorText,
            .bAutoColorDate = settings->bAutoColorDate,
            .InputColor = settings->InputColor,
            .PartialInputColor = settings->PartialInputColor,
            .FormulaColor = settings->FormulaColor,
            .WksLinkColor = settings->WksLinkColor,
            .WkbLinkColor = settings->WkbLinkColor,
            .HyperLinkColor = settings->HyperLinkColor};
}

}  // namespace kestrune::cli
