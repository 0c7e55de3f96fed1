#include "settings/dialog/fUserSettings.h"

#include "automation/AutomationError.h"
#include "automation/ResumeNext.h"
#include "core/bridges/Product.h"
#include "forms/MsgBox.h"
#include "settings/LiveSettings.h"
#include "settings/PreferencesExchange.h"
#include "settings/dialog/AutoColorControls.h"
#include "settings/dialog/GeneralControls.h"
#include "settings/dialog/OtherCycleControls.h"
#include "settings/dialog/SmartToolControls.h"
#include "settings/dialog/StyleControls.h"
#include "settings/dialog/StyleCycleControls.h"
#include "settings/mReadWrite.h"

namespace kestrune::settings {
namespace {

using automation::ResumeNext;
using forms::ControlDesign;
using forms::Event;
using forms::Kind;

constexpr std::array<ControlDesign, 1> tabs{{{.name = page::tabs, .kind = Kind::Tabs, .items = page::heads}}};

constexpr std::array<ControlDesign, 1> apply_button{
    {{.name = "btnApply", .kind = Kind::Push, .caption = "Apply", .accelerator = 'y', .place = forms::Place::Beside}}};

constexpr auto controls =
    forms::joined(tabs, general_controls, auto_color_controls, smart_tool_controls, style_cycle_controls,
                  other_cycle_controls, style_controls, forms::ok_and_cancel, apply_button);

constexpr forms::FormDesign form_design{
    .name = "fUserSettings", .caption = "Brannoch Kestrune -- User Settings", .controls = controls};

}  // namespace

fUserSettings::fUserSettings(core::SharedState& shared, const SmartTools& tools)
    : Form(form_design),
      shared_(shared),
      draft_{shared, shared.settings().Copy()},
      general_(*this, draft_),
      auto_color_(*this, draft_),
      smart_tools_(*this, draft_, tools),
      style_cycles_(*this, draft_),
      other_cycles_(*this, draft_),
      styles_(*this, draft_),
      pages_{&general_, &auto_color_, &smart_tools_, &style_cycles_, &other_cycles_, &styles_} {
    const auto attempted = [this](auto act) {
        return [this, act](auto&) { static_cast<void>(ResumeNext(shared_.trace)([&] { act(); })); };
    };
    on(Event::Activate, attempted([this] { show_draft(); }));
    on(page::tabs, Event::Change, attempted([this] { page_chosen(); }));
    on("btnImport", Event::Click, attempted([this] { import(); }));
    on("btnExport", Event::Click, attempted([this] {
           // What is seen is what is exported.
           if (take_all()) ExportUserPreferences(shared_, *draft_.settings);
       }));
    on("btnRestore", Event::Click, attempted([this] {
           if (RestoreUserPreferences(shared_, *draft_.settings)) show_draft();
       }));
    on("btnOK", Event::Click, attempted([this] {
           if (apply()) Unload();
       }));
    on("btnApply", Event::Click, attempted([this] { apply(); }));
    on("btnCancel", Event::Click, [this](auto&) { Unload(); });
}

void fUserSettings::show_draft() {
    for (SettingsPage* page : pages_) page->show();
}

void fUserSettings::page_chosen() {
    const auto place = static_cast<std::size_t>((*this)[page::tabs].ListIndex());
    if (place < pages_.size()) pages_[place]->show_styles();
}

bool fUserSettings::take_all() {
    for (std::size_t i = 0; i < pages_.size(); ++i) {
        const std::string wrong = pages_[i]->take();
        if (wrong.empty()) continue;
        (*this)[page::tabs].ListIndex(static_cast<std::int32_t>(i));
        SetFocus(wrong);
        return false;
    }
    return true;
}

bool fUserSettings::apply() {
    if (!take_all()) return false;
    try {
        save_preferences(shared_, *draft_.settings, user_preferences_path(shared_));
    } catch (const automation::AutomationError& error) {
        shared_.trace.skipped(error.what());
        forms::MsgBox(shared_.presenter, shared_.general().message(core::Text::SettingsNotSaved) + error.description(),
                      forms::vbExclamation, core::product_title);
        return false;
    }
    use_settings(shared_, draft_.settings->Copy());
    return true;
}

void fUserSettings::import() {
    if (auto imported = ImportUserPreferences(shared_)) {
        draft_.settings = std::move(imported);
        show_draft();
    }
}

void ShowUserSettings(core::SharedState& shared, const SmartTools& tools) {
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        fUserSettings form(shared, tools);
        form.Show(shared.presenter);
    });
}

}  // namespace kestrune::settings
