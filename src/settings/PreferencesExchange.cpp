#include "settings/PreferencesExchange.h"

#include <optional>
#include <string>

#include "automation/ResumeNext.h"
#include "forms/MsgBox.h"
#include "settings/mReadWrite.h"

namespace kestrune::settings {

using automation::ResumeNext;
using core::SharedState;
using core::Text;

namespace {

constexpr std::string_view filter = "XML Files (*.xml)";
constexpr std::string_view pattern = "*.xml";
constexpr std::string_view proposed_name = "MyUserPreferences.xml";
constexpr std::string_view menu_caption = "Kestrun&e";

void tell(const SharedState& shared, Text number, std::int32_t icon) {
    forms::MsgBox(shared.presenter, shared.general().message(number), icon, core::product_title);
}

bool agrees(const SharedState& shared, const std::string& question) {
    constexpr std::int32_t buttons = forms::vbOKCancel + forms::vbExclamation;
    return forms::MsgBox(shared.presenter, question, buttons, core::product_title) == forms::vbOK;
}

}  // namespace

std::shared_ptr<cUserSettings> ImportUserPreferences(const SharedState& shared) {
    const ResumeNext attempt(shared.trace);
    std::shared_ptr<cUserSettings> settings;
    attempt([&] {
        const core::diBRVBLib& library = shared.general();
        const auto path = library.open_dialog("User Preferences File Import", filter, pattern);
        if (!path) return;
        const std::string warning = library.message(Text::ImportReplacesSettings);
        if (!agrees(shared, warning + "  " + library.message(Text::ImportQuestion))) return;
        settings = LoadUserPreferencesFile(shared, *path);
        if (settings) tell(shared, Text::Imported, forms::vbInformation);
    });
    return settings;
}

bool ExportUserPreferences(const SharedState& shared, const cUserSettings& settings) {
    const ResumeNext attempt(shared.trace);
    std::optional<std::string> path;
    attempt.assign(path, [&] {
        return shared.general().save_dialog("User Preferences File Export", filter, pattern, proposed_name);
    });
    if (!path) return false;
    const bool saved = SaveUserPreferences(shared, settings, *path);
    attempt([&] {
        if (saved) {
            tell(shared, Text::Exported, forms::vbInformation);
        } else {
            tell(shared, Text::ExportFailed, forms::vbExclamation);
        }
    });
    return saved;
}

bool RestoreUserPreferences(SharedState& shared, cUserSettings& settings) {
    const ResumeNext attempt(shared.trace);
    bool restores = false;
    attempt.assign(restores, [&] { return agrees(shared, shared.general().message(Text::RestoreQuestion)); });
    if (!restores) return false;
    settings.LoadDefaults(default_sources(shared));
    // The tutorial menu comes and goes with a setting.
    attempt.assign(shared.product_menu, [&] {
        return shared.spreadsheet().find_control(shared.spreadsheet().worksheet_menu_bar(), menu_caption);
    });
    attempt([&] { tell(shared, Text::Restored, forms::vbInformation); });
    return true;
}

}  // namespace kestrune::settings
