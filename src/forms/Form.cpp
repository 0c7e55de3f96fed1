#include "forms/Form.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "automation/Text.h"
#include "forms/Presenter.h"

namespace kestrune::forms {

Form::Form(const FormDesign& design) : design_(design), caption_(design.caption) {
    for (const ControlDesign& row : design.controls) {
        const Control* container = row.in.empty() ? nullptr : &(*this)[row.in];
        controls_.emplace_back(static_cast<ControlHome&>(*this), row, container);
    }
}

Control* Form::find(std::string_view name) {
    const auto found =
        std::ranges::find_if(controls_, [&](const Control& one) { return automation::same_text(one.Name(), name); });
    return found == controls_.end() ? nullptr : &*found;
}

Control& Form::operator[](std::string_view name) {
    if (Control* control = find(name)) return *control;
    throw std::out_of_range("form " + std::string(design_.name) + " has no control " + std::string(name));
}

const Control& Form::operator[](std::string_view name) const { return const_cast<Form&>(*this)[name]; }

void Form::Caption(std::string caption) {
    caption_ = std::move(caption);
    if (view_) view_->caption_changed();
}

void Form::on(Event event, Handler handler) { rows_.push_back({nullptr, event, std::move(handler)}); }

void Form::on(std::string_view control, Event event, Handler handler) {
    rows_.push_back({&(*this)[control], event, std::move(handler)});
}

EventCall Form::fire(const Control* control, EventCall call) {
    // By place: a handler may add others.
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (rows_[i].control == control && rows_[i].event == call.event) rows_[i].handler(call);
    }
    return call;
}

void Form::changed(Control& control) {
    if (view_) view_->changed(control);
    if (!active_ || active_->usable()) return;
    // Nobody can be asked to leave what is gone.
    active_ = nullptr;
    if (Control* next = first_stop()) go_to(*next);
}

Control* Form::chosen_beside(const Control& control) {
    const auto found = std::ranges::find_if(controls_, [&](const Control& other) {
        return &other != &control && other.is(Kind::Option) && other.Checked() &&
               other.container() == control.container() && other.design().page == control.design().page;
    });
    return found == controls_.end() ? nullptr : &*found;
}

void Form::Show(Presenter& presenter) {
    if (visible_) return;
    if (!loaded_) {
        loaded_ = true;
        fire(nullptr, {Event::Initialize});
    }
    visible_ = true;
    pressed_ = nullptr;
    // Whatever comes out of a handler, the form is closed then.
    struct Closing {
        ~Closing() {
            form.visible_ = false;
            form.view_ = nullptr;
            form.active_ = nullptr;
        }
        Form& form;
    };
    {
        const Closing closing{*this};
        activate();
        if (visible_) presenter.present(*this);
        if (visible_) close();
    }
    if (!loaded_) fire(nullptr, {Event::Terminate});
}

void Form::activate() {
    if (Control* first = first_stop()) go_to(*first);
    if (visible_) fire(nullptr, {Event::Activate});
}

void Form::shut() {
    visible_ = false;
    if (view_) view_->closed();
}

void Form::Hide() {
    if (visible_) shut();
}

bool Form::query_close(CloseMode mode) {
    if (fire(nullptr, {Event::QueryClose, mode}).cancel) return false;
    if (active_) fire(*active_, Event::Exit);
    loaded_ = false;
    return true;
}

void Form::Unload() {
    if (visible_ && query_close(CloseMode::FormCode)) shut();
}

void Form::close() {
    if (visible_ && query_close(CloseMode::FormControlMenu)) shut();
}

}  // namespace kestrune::forms
