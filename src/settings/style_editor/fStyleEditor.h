#pragma once

#include <optional>
#include <string>

#include "core/bridges/SharedState.h"
#include "forms/Form.h"
#include "settings/cUserSettings.h"

namespace kestrune::settings {

// The dialog of one style: its name, kind and comments, each property with a check box for whether the style sets it,
// and a cell that shows what the style makes of a value. It changes nothing but its own copy, which OK leaves behind.
class fStyleEditor : public forms::Form {
  public:
    // Shows the fields of a style. edited: the style of the settings that they are of, which may keep its name; null
    // for a new one. All that it is given outlives it.
    fStyleEditor(core::SharedState& shared, const cUserSettings& settings, const styles::StyleFields& fields,
                 const styles::cStyle* edited);

    // The fields as OK took them; nothing while it did not.
    [[nodiscard]] const std::optional<styles::StyleFields>& result() const { return result_; }

  private:
    void offer_choices();
    void handle_events();
    void show_fields();
    void show_usable();
    void show_sample();
    void tick_all(bool ticked);
    void border_all(bool bordered);
    void capture();
    // What the controls say; what cannot be is as it was.
    [[nodiscard]] styles::StyleFields entered();
    // The control whose entry cannot be, after a message that says why; null when all are taken.
    forms::Control* take();
    void go_there(forms::Control& control);
    void tell(core::Text text, std::string_view about = {}) const;
    void confirm();

    core::SharedState& shared_;
    const cUserSettings& settings_;
    const styles::cStyle* edited_;
    styles::StyleFields fields_;  // as they were shown last
    std::optional<styles::StyleFields> result_;
    bool filling_ = false;
};

}  // namespace kestrune::settings
