#include "settings/dialog/AutoColorPage.h"

#include <optional>

#include "automation/ResumeNext.h"
#include "core/bridges/Product.h"
#include "forms/MsgBox.h"
#include "settings/ColorChoices.h"
#include "styles/ColorText.h"

namespace kestrune::settings {

using forms::Event;

namespace {

// Calls act with the name of each colour and the colour itself; and of each switch.
template <class Settings, class OnColor, class OnSwitch>
void for_each(Settings& settings, OnColor&& on_color, OnSwitch&& on_switch) {
    core::for_each_setting(settings, [&](std::string_view name, auto& value) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(value)>, bool>) {
            on_switch(std::string(name.substr(1)), value);  // without the "b" of Booleans
        } else {
            on_color(std::string(name), value);
        }
    });
}

}  // namespace

AutoColorPage::AutoColorPage(forms::Form& form, Draft& draft) : SettingsPage(form, draft) {
    for_each(
        *draft.settings,
        [&](const std::string& name, std::int32_t) {
            offer_colors(at("cmb" + name));
            form.on("cmb" + name, Event::Change, [this, name](auto&) {
                at("img" + name).Picture(styles::color_patch(styles::color_meant(at("cmb" + name).Text())));
            });
        },
        [](const std::string&, bool) {});
    form.on("lblAutoColorNote", Event::DblClick, [this](auto&) { show_note(); });
    form.on("btnAutoColorNote", Event::Click, [this](auto&) { show_note(); });
}

void AutoColorPage::show() {
    for_each(
        settings(),
        [&](const std::string& name, std::int32_t color) {
            at("cmb" + name).Text(styles::color_text(color));
            at("img" + name).Picture(styles::color_patch(color));
        },
        [&](const std::string& name, bool on) { at("ckb" + name).Checked(on); });
}

std::string AutoColorPage::take() {
    core::AutoColorSettings wanted = settings();
    std::string wrong;
    for_each(
        wanted,
        [&](const std::string& name, std::int32_t& color) {
            if (!wrong.empty()) return;
            const auto meant = styles::color_meant(at("cmb" + name).Text());
            if (meant) {
                color = *meant;
            } else {
                wrong = "cmb" + name;
            }
        },
        [&](const std::string& name, bool& on) { on = at("ckb" + name).Checked(); });
    if (wrong.empty()) {
        static_cast<core::AutoColorSettings&>(settings()) = wanted;
    } else {
        tell(core::Text::NoColor, at(wrong).Text());
    }
    return wrong;
}

void AutoColorPage::show_note() const {
    const automation::ResumeNext attempt(shared().trace);
    attempt([&] {
        forms::MsgBox(shared().presenter,
                      "Kestrune allows you to designate one of the five font color SmartCycles (see 'Color & Other "
                      "Cycles' tab) to be respected by the AutoColor feature.  This is done by naming the desired font "
                      "color SmartCycle '" +
                          shared().spreadsheet().auto_color_smart_cycle() +
                          "', and it means that any cell to which you apply one of the font colors in the selected "
                          "SmartCycle will not be recolored by AutoColor.",
                      forms::vbOKOnly, core::product_title);
    });
}

}  // namespace kestrune::settings
