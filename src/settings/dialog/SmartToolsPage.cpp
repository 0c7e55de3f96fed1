#include "settings/dialog/SmartToolsPage.h"

#include <utility>

namespace kestrune::settings {

using forms::Event;

SmartToolsPage::SmartToolsPage(forms::Form& form, Draft& draft, const SmartTools& tools)
    : SettingsPage(form, draft), tools_(tools) {
    for (const SmartTool& tool : tools_) {
        form.on(tool.check, Event::Change, [this, &tool](auto&) { tool.shows(settings()) = at(tool.check).Checked(); });
        form.on(tool.button, Event::Click, [this, &tool](auto&) { edit(tool); });
    }
}

void SmartToolsPage::show() {
    for (const SmartTool& tool : tools_) at(tool.check).Checked(tool.shows(settings()));
}

void SmartToolsPage::edit(const SmartTool& tool) {
    // While the tool's dialog is shown the draft is what is in use: its options, and the styles that it offers.
    struct InUse {
        explicit InUse(Draft& shown) : draft(shown) { std::swap(draft.shared.user_settings, before); }
        ~InUse() { std::swap(draft.shared.user_settings, before); }
        InUse(const InUse&) = delete;
        InUse& operator=(const InUse&) = delete;
        Draft& draft;
        std::shared_ptr<cUserSettings> before = draft.settings;
    };
    {
        const InUse in_use(draft_);
        tool.edit(shared());
    }
    show();
}

}  // namespace kestrune::settings
