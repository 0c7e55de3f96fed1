// What a person does to a form.
#include <algorithm>
#include <iterator>
#include <utility>

#include "automation/Text.h"
#include "forms/Form.h"

namespace kestrune::forms {
namespace {

bool takes_focus(const Control& control) {
    return !control.is(Kind::Label) && !control.is(Kind::Frame) && !control.is(Kind::Image) &&
           !control.is(Kind::Sample) && control.usable();
}

bool has_text(const Control& control) { return control.is(Kind::Text) || control.is(Kind::Combo); }

bool one_group(const Control& a, const Control& b) {
    return a.is(Kind::Option) && b.is(Kind::Option) && a.container() == b.container() &&
           a.design().page == b.design().page;
}

}  // namespace

Control* Form::spin_of(const Control& box) {
    for (std::size_t i = 1; i < controls_.size(); ++i) {
        if (&controls_[i - 1] == &box && controls_[i].is(Kind::Spin) &&
            controls_[i].design().place == Place::Attached) {
            return &controls_[i];
        }
    }
    return nullptr;
}

Control* Form::box_of(const Control& spin) {
    for (Control& box : controls_) {
        if (spin_of(box) == &spin) return &box;
    }
    return nullptr;
}

// One stop a group of option buttons: the one that is on, or the first when none is. The spin button at a box is worked
// from the box.
bool Form::is_stop(Control& control) {
    if (!takes_focus(control)) return false;
    if (control.is(Kind::Spin)) return box_of(control) == nullptr;
    if (!control.is(Kind::Option)) return true;
    const auto stop_of_group = [&]() -> const Control* {
        const Control* first = nullptr;
        for (const Control& other : controls_) {
            if (!one_group(other, control) || !takes_focus(other)) continue;
            if (other.Checked()) return &other;
            if (!first) first = &other;
        }
        return first;
    };
    return stop_of_group() == &control;
}

Control* Form::first_stop() {
    for (Control& control : controls_) {
        if (is_stop(control)) return &control;
    }
    return nullptr;
}

bool Form::update(Control& control) {
    if (fire(&control, {Event::BeforeUpdate}).cancel) return false;
    fire(control, Event::AfterUpdate);
    return true;
}

bool Form::leave() {
    if (!active_) return true;
    Control& control = *active_;
    if (has_text(control) && control.Text() != text_on_entry_) {
        if (!update(control)) return false;
        text_on_entry_ = control.Text();
    }
    return !fire(&control, {Event::Exit}).cancel;
}

bool Form::go_to(Control& control) {
    if (active_ == &control) return true;
    if (!visible_ || !takes_focus(control) || !leave()) {
        // Where the focus is shown, it may be on its way already.
        if (view_ && active_) view_->focused(*active_);
        return false;
    }
    active_ = &control;
    text_on_entry_ = control.Text();
    if (view_) view_->focused(control);
    fire(control, Event::Enter);
    return active_ == &control;
}

void Form::click(Control& control) {
    if (!visible_ || !control.usable()) return;
    if (takes_focus(control) && !go_to(control)) return;
    switch (control.kind()) {
        case Kind::Option:
        case Kind::Check:
            if (control.is(Kind::Option) && control.Checked()) return;
            control.Checked(!control.Checked());
            update(control);
            break;
        case Kind::Push:
            pressed_ = &control;
            fire(control, Event::Click);
            break;
        case Kind::Label:
        case Kind::Image:
            fire(control, Event::Click);
            break;
        default:
            break;
    }
}

void Form::double_click(Control& control) {
    if (!visible_ || !control.usable() || (takes_focus(control) && !go_to(control))) return;
    fire(control, Event::DblClick);
}

void Form::type(Control& control, std::string text) {
    const bool types =
        (control.is(Kind::Text) && !control.design().locked) || (control.is(Kind::Combo) && control.design().editable);
    if (types && go_to(control)) control.Text(std::move(text));
}

void Form::choose(Control& control, std::int32_t index) {
    if (!go_to(control) || index == control.ListIndex()) return;
    control.ListIndex(index);
    text_on_entry_ = control.Text();
    update(control);
}

void Form::spin(Control& control, bool up) {
    if (!visible_ || !control.usable()) return;
    Control* box = box_of(control);
    if (!go_to(box ? *box : control)) return;
    const std::int32_t before = control.Number();
    control.Number(before + (up ? 1 : -1));
    fire(control, up ? Event::SpinUp : Event::SpinDown);
}

Control* Form::button(Role role) {
    const auto found = std::ranges::find_if(controls_, [&](const Control& control) {
        return control.is(Kind::Push) && control.design().role == role && control.usable();
    });
    return found == controls_.end() ? nullptr : &*found;
}

void Form::walk(bool forward) {
    std::vector<Control*> stops;
    for (Control& control : controls_) {
        if (&control == active_ || is_stop(control)) stops.push_back(&control);
    }
    // Code may have put the focus beside the stop of its group.
    std::erase_if(stops, [&](Control* stop) { return stop != active_ && active_ && one_group(*stop, *active_); });
    if (stops.empty()) return;
    auto at = static_cast<std::size_t>(std::ranges::find(stops, active_) - stops.begin());
    if (at == stops.size()) at = forward ? stops.size() - 1 : 0;
    go_to(*stops[(at + (forward ? 1 : stops.size() - 1)) % stops.size()]);
}

void Form::walk_in_group(Control& from, bool forward) {
    std::vector<Control*> group;
    for (Control& control : controls_) {
        if (one_group(control, from) && takes_focus(control)) group.push_back(&control);
    }
    const auto at = static_cast<std::size_t>(std::ranges::find(group, &from) - group.begin());
    click(*group[(at + (forward ? 1 : group.size() - 1)) % group.size()]);
}

bool Form::press_arrow(Key key) {
    if (!active_) return false;
    Control& control = *active_;
    const bool vertical = key == Key::Up || key == Key::Down;
    const bool forward = key == Key::Down || key == Key::Right;
    switch (control.kind()) {
        case Kind::Option:
            walk_in_group(control, forward);
            return true;
        case Kind::Spin:
            spin(control, key == Key::Up || key == Key::Right);
            return true;
        case Kind::Text:
            if (Control* arrows = vertical ? spin_of(control) : nullptr) {
                spin(*arrows, key == Key::Up);
                return true;
            }
            return false;
        case Kind::List:
        case Kind::Combo:
        case Kind::Tabs: {
            if (vertical == control.is(Kind::Tabs)) return false;
            const std::int32_t to = control.ListIndex() + (forward ? 1 : -1);
            if (to >= 0 && to < static_cast<std::int32_t>(control.List().size())) choose(control, to);
            return true;
        }
        default:
            return false;
    }
}

// Of the tabs that hold the focus, or of the first that can be used.
bool Form::turn_page(bool forward) {
    Control* tabs = nullptr;
    for (const Control* holder = active_; holder && !tabs; holder = holder->container()) {
        if (holder->is(Kind::Tabs)) tabs = find(holder->Name());
    }
    if (!tabs) {
        const auto found =
            std::ranges::find_if(controls_, [](const Control& one) { return one.is(Kind::Tabs) && one.usable(); });
        if (found == controls_.end()) return false;
        tabs = &*found;
    }
    const auto count = static_cast<std::int32_t>(tabs->List().size());
    if (count > 1) choose(*tabs, (tabs->ListIndex() + (forward ? 1 : count - 1)) % count);
    return true;
}

bool Form::press(Key key) {
    if (!visible_) return false;
    switch (key) {
        case Key::Tab:
        case Key::BackTab:
            walk(key == Key::Tab);
            return true;
        case Key::NextPage:
        case Key::PreviousPage:
            return turn_page(key == Key::NextPage);
        case Key::Enter: {
            Control* pressed = active_ && active_->is(Kind::Push) ? active_ : button(Role::Default);
            if (pressed) click(*pressed);
            return pressed != nullptr;
        }
        case Key::Escape:
            if (Control* cancel = button(Role::Cancel)) {
                click(*cancel);
            } else {
                close();
            }
            return true;
        case Key::Space:
            if (!active_ || has_text(*active_) || active_->is(Kind::List)) return false;
            click(*active_);
            return true;
        default:
            return press_arrow(key);
    }
}

bool Form::press_access_key(char letter) {
    if (!visible_) return false;
    // Those of the letter, from the one behind the focus on.
    std::vector<Control*> meant;
    std::size_t next = 0;
    for (auto control = controls_.begin(); control != controls_.end(); ++control) {
        const char own = automation::lower(control->Accelerator());
        if (own == 0 || own != automation::lower(letter) || !control->usable()) continue;
        Control* target = &*control;
        if (control->is(Kind::Label) || control->is(Kind::Frame)) {
            const auto found =
                std::find_if(std::next(control), controls_.end(), [&](Control& c) { return is_stop(c); });
            if (found == controls_.end()) continue;
            target = &*found;
        }
        meant.push_back(target);
        if (target == active_) next = meant.size();
    }
    if (meant.empty()) return false;
    Control& target = *meant[next % meant.size()];
    // One of several is gone to, for the person to say which is meant.
    const bool acts = meant.size() == 1 && (target.is(Kind::Push) || target.is(Kind::Option) || target.is(Kind::Check));
    if (acts && automation::lower(target.Accelerator()) == automation::lower(letter)) {
        click(target);
    } else {
        go_to(target);
    }
    return true;
}

void Form::resize(double width, double height) {
    if (width == width_ && height == height_) return;
    width_ = width;
    height_ = height;
    if (visible_) fire(nullptr, {Event::Resize});
}

}  // namespace kestrune::forms
