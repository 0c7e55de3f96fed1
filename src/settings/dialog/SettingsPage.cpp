#include "settings/dialog/SettingsPage.h"

#include "core/bridges/Product.h"
#include "forms/MsgBox.h"

namespace kestrune::settings {

void SettingsPage::tell(core::Text text, std::string_view about) const {
    forms::MsgBox(shared().presenter, shared().general().message(text) + std::string(about), forms::vbExclamation,
                  core::product_title);
}

void SettingsPage::fill(std::string_view list, std::vector<std::string> items, std::int32_t chosen) {
    const bool before = filling_;
    filling_ = true;
    forms::Control& control = at(list);
    if (control.List() != items) control.List(std::move(items));
    control.ListIndex(chosen);
    filling_ = before;
}

std::vector<std::string> names_of(const styles::cStyles& styles) {
    std::vector<std::string> names;
    for (std::int32_t i = 1; i <= styles.Count(); ++i) names.push_back(styles.Item(i)->FriendlyName);
    return names;
}

}  // namespace kestrune::settings
