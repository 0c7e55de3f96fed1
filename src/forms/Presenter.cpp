#include "forms/Presenter.h"

#include "automation/Text.h"
#include "forms/Form.h"

namespace kestrune::forms {

void Presenter::present(Form& form) {
    for (Planned& planned : fills_) {
        if (!automation::same_text(planned.fill.form, form.design().name)) continue;
        planned.used = true;
        if (form.Visible()) apply(planned.fill, form);
    }
    if (form.Visible()) work(form);
    if (form.Visible()) form.close();
    if (form_listener_) form_listener_(form);
}

std::vector<FormFill> Presenter::unused_fills() const {
    std::vector<FormFill> unused;
    for (const Planned& planned : fills_) {
        if (!planned.used) unused.push_back(planned.fill);
    }
    return unused;
}

}  // namespace kestrune::forms
