#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Control.h"
#include "forms/Event.h"

namespace kestrune::forms {

class Presenter;

// What shows a form while a person works with it.
class FormView {
  public:
    virtual ~FormView() = default;
    virtual void changed(const Control& control) = 0;  // in something that is seen
    virtual void focused(const Control& control) = 0;
    virtual void caption_changed() = 0;
    virtual void closed() = 0;
};

// The keys that forms give a meaning; in boxes and lists others are the control's own.
enum class Key : std::uint8_t { Tab, BackTab, Enter, Escape, Up, Down, Left, Right, Space, NextPage, PreviousPage };

// A dialog: named controls and what is done when something happens to them (see Event.h). It knows no window; a
// presenter shows it. Names that the form does not have are std::out_of_range: they are faults of ours.
class Form : private ControlHome {
  public:
    // The design outlives the form.
    explicit Form(const FormDesign& design);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form() = default;

    [[nodiscard]] const FormDesign& design() const { return design_; }
    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void Caption(std::string caption);

    [[nodiscard]] Control& operator[](std::string_view name);
    [[nodiscard]] const Control& operator[](std::string_view name) const;
    [[nodiscard]] Control* find(std::string_view name);                  // whatever its case; null when there is none
    [[nodiscard]] std::deque<Control>& controls() { return controls_; }  // in tab order
    [[nodiscard]] const std::deque<Control>& controls() const { return controls_; }

    // What to do on an event of the form, or of a control; in the order in which they were given.
    void on(Event event, Handler handler);
    void on(std::string_view control, Event event, Handler handler);

    // Shows the form and comes back when it is closed.
    void Show(Presenter& presenter);
    void Hide();    // closes it, and keeps it loaded
    void Unload();  // closes it unless QueryClose cancels that
    [[nodiscard]] bool Visible() const { return visible_; }

    [[nodiscard]] Control* ActiveControl() const { return active_; }  // that has the focus; null for none
    void SetFocus(std::string_view control) { static_cast<void>(go_to((*this)[control])); }
    // Its width and height inside, points, while it is shown somewhere that has them; 0 else.
    [[nodiscard]] double InsideWidth() const { return width_; }
    [[nodiscard]] double InsideHeight() const { return height_; }

    // What a person does. Whatever a person could not do (the control cannot be seen, or is disabled) is not done.

    // Goes to a control: whether the focus is there now.
    bool go_to(Control& control);
    void click(Control& control);
    void double_click(Control& control);
    void type(Control& control, std::string text);  // the whole text that then stands there
    void choose(Control& control, std::int32_t index);
    void spin(Control& control, bool up);
    // Whether the key meant something here.
    bool press(Key key);
    bool press_access_key(char letter);
    void close();  // by the window's own means
    void resize(double width, double height);

    // The push button that was pressed last; null for none.
    [[nodiscard]] const Control* pressed() const { return pressed_; }
    // Who is told what changes; null for nobody.
    void watch(FormView* view) { view_ = view; }
    // The button with a role that can be pressed now; null for none.
    [[nodiscard]] Control* button(Role role);
    // The spin button at a box, null for none, and the box at a spin button.
    [[nodiscard]] Control* spin_of(const Control& box);
    [[nodiscard]] Control* box_of(const Control& spin);

  private:
    struct Row {
        const Control* control;  // null for the form
        Event event;
        Handler handler;
    };

    void fire(Control& control, Event event) override { static_cast<void>(fire(&control, {event})); }
    void changed(Control& control) override;
    Control* chosen_beside(const Control& control) override;
    EventCall fire(const Control* control, EventCall call);

    void activate();
    bool query_close(CloseMode mode);
    void shut();
    bool leave();  // whether the active control lets go of the focus
    bool update(Control& control);
    bool is_stop(Control& control);
    void walk(bool forward);
    void walk_in_group(Control& from, bool forward);
    [[nodiscard]] Control* first_stop();
    bool press_arrow(Key key);
    bool turn_page(bool forward);

    const FormDesign& design_;
    std::string caption_;
    std::deque<Control> controls_;  // which stay where they are
    std::vector<Row> rows_;
    FormView* view_ = nullptr;
    Control* active_ = nullptr;
    const Control* pressed_ = nullptr;
    std::string text_on_entry_;
    double width_ = 0;
    double height_ = 0;
    bool loaded_ = false;
    bool visible_ = false;
};

}  // namespace kestrune::forms
