#include "settings/dialog/GeneralPage.h"

#include <cmath>

#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "settings/dialog/GeneralControls.h"

namespace kestrune::settings {

using forms::Event;

GeneralPage::GeneralPage(forms::Form& form, Draft& draft) : SettingsPage(form, draft) {
    form.on("txtZoomInterval", Event::Change, [this](auto&) {
        const automation::ResumeNext attempt(shared().trace);
        attempt([&] {
            const auto typed = shared().general().typed_number(at("txtZoomInterval").Text());
            const bool whole = typed && *typed >= 1 && *typed <= longest_zoom_interval && *typed == std::floor(*typed);
            if (whole) at("spnZoomInterval").Number(static_cast<std::int32_t>(*typed));
        });
    });
    form.on("spnZoomInterval", Event::Change, [this](auto&) {
        const automation::ResumeNext attempt(shared().trace);
        attempt([&] {
            const std::int32_t number = at("spnZoomInterval").Number();
            if (shared().general().typed_number(at("txtZoomInterval").Text()) != number) {
                at("txtZoomInterval").Text(std::to_string(number));
            }
        });
    });
    form.on("cmbPaintbrushStyle", Event::Change, [this](auto&) {
        if (!filling())
            settings().BRPaintbrushStyle = settings().Styles->Item(at("cmbPaintbrushStyle").ListIndex() + 1);
    });
    form.on("cmbSheetStyle", Event::Change, [this](auto&) {
        if (!filling()) settings().SheetStyle = settings().Styles->Item(at("cmbSheetStyle").ListIndex() + 1);
    });
}

void GeneralPage::show() {
    at("txtZoomInterval").Text(std::to_string(settings().ZoomInterval));
    at("cmbErrorMsg").Text(settings().ErrorMsg);
    at("ckbTrainingModule").Checked(settings().TrainingModule);
    bool training = true;
    const automation::ResumeNext attempt(shared().trace);
    attempt.assign(training, [&] { return shared().general().allows_training(); });
    at("ckbTrainingModule").Enabled(training);
    at("ckbTrainingModule").ControlTipText(training ? "" : "The tutorial is not installed");
    show_styles();
}

void GeneralPage::show_styles() {
    const styles::cStyles& library = *settings().Styles;
    const auto place_of = [&](const styles::StyleRef& style) { return style ? library.position_of(*style) - 1 : -1; };
    const auto names = names_of(library);
    fill("cmbPaintbrushStyle", names, place_of(settings().BRPaintbrushStyle));
    fill("cmbSheetStyle", names, place_of(settings().SheetStyle));
}

std::string GeneralPage::take() {
    const std::string_view text = automation::trimmed(at("txtZoomInterval").Text());
    const auto interval = shared().general().typed_number(text);
    if (!interval || *interval < 1 || *interval > longest_zoom_interval || *interval != std::floor(*interval)) {
        tell(core::Text::ZoomOutOfRange);
        return "txtZoomInterval";
    }
    settings().ZoomInterval = static_cast<std::int32_t>(*interval);
    settings().ErrorMsg = at("cmbErrorMsg").Text();
    settings().TrainingModule = at("ckbTrainingModule").Checked();
    return {};
}

}  // namespace kestrune::settings
