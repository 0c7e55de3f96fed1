#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/bridges/SharedState.h"
#include "forms/Form.h"
#include "settings/cUserSettings.h"

namespace kestrune::settings {

// What the settings dialog works on: a copy of the settings in use, which may be another record after an import.
struct Draft {
    core::SharedState& shared;
    std::shared_ptr<cUserSettings> settings;
};

// One page of the settings dialog: its controls are the form's. Lists of styles and cycles change the draft at once;
// single values stand in their controls until they are taken.
class SettingsPage {
  public:
    SettingsPage(forms::Form& form, Draft& draft) : form_(form), draft_(draft) {}
    SettingsPage(const SettingsPage&) = delete;
    SettingsPage& operator=(const SettingsPage&) = delete;
    virtual ~SettingsPage() = default;

    // Shows the draft, whatever the page showed before.
    virtual void show() = 0;
    // Shows what other pages may have changed: names and order of styles.
    virtual void show_styles() {}
    // Takes what stands in the controls into the draft. When that is not possible a message says why, and this is the
    // control that it is about; empty when all is taken.
    virtual std::string take() { return {}; }

  protected:
    [[nodiscard]] forms::Control& at(std::string_view name) const { return form_[name]; }
    [[nodiscard]] cUserSettings& settings() const { return *draft_.settings; }
    [[nodiscard]] core::SharedState& shared() const { return draft_.shared; }
    // Tells a message with what it is about behind it.
    void tell(core::Text text, std::string_view about = {}) const;
    // Gives a list its items and chooses one (from 0 on) without the page's handlers taking that for a person's choice.
    void fill(std::string_view list, std::vector<std::string> items, std::int32_t chosen);
    [[nodiscard]] bool filling() const { return filling_; }

    forms::Form& form_;
    Draft& draft_;

  private:
    bool filling_ = false;
};

// The names of a collection's styles, in its order.
std::vector<std::string> names_of(const styles::cStyles& styles);

}  // namespace kestrune::settings
