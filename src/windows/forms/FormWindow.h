#pragma once

#include <windows.h>

#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/Form.h"
#include "windows/forms/FormPlaces.h"
#include "windows/forms/Scale.h"

namespace kestrune::windows {

// A form as a real window. Its controls are Windows' own; what the keys do, where the focus goes and what is on, the
// form says. While it is open the thread's other windows take no input, but go on painting.
class FormWindow final : public forms::FormView {
  public:
    // owner: the window that it stands before; null for none. The places outlive it.
    FormWindow(forms::Form& form, HWND owner, const FormPlaces& places);
    ~FormWindow() override;
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;

    // Shows the window until the form is closed. What a handler of the form throws comes out of it.
    void run();

  private:
    static constexpr UINT give_focus = WM_APP + 1;  // to the active control, as soon as messages are answered again

    // Writing to the controls is nothing that a person does.
    struct Writing;

    void changed(const forms::Control& control) override;
    void focused(const forms::Control& control) override;
    void caption_changed() override;
    void closed() override;

    static LRESULT CALLBACK receive(HWND window, UINT message, WPARAM w, LPARAM l) noexcept;
    LRESULT answer(UINT message, WPARAM w, LPARAM l);
    void command(int number, int code);
    void take(forms::Control& control, int code);
    LRESULT notify(const NMHDR& header);
    bool key(const MSG& message);
    bool takes_key(const MSG& message);
    bool key_down(WPARAM key);

    void create_controls();
    void arrange();  // in the window's present size
    void set_font();
    void fit(bool shrink = true);  // gives the window the size that its form needs
    void center();                 // before its owner
    void open_up();
    void resize(SIZE size);  // of the window
    void move_within(const RECT& screen, LONG left, LONG top) const;
    void put_at(const FormPlace& place);
    void keep_place() const;
    [[nodiscard]] HWND window_in_front() const;
    void stand_before(HWND window);
    void rescale(UINT dpi, const RECT& place);
    void add_tip(HWND native) const;
    void mark_default() const;
    void focus_now();
    [[nodiscard]] SIZE least_size() const;
    [[nodiscard]] HWND native(const forms::Control& control) const;
    // The colour behind a control; of the form itself for null.
    [[nodiscard]] COLORREF ground(const forms::Control* control);
    [[nodiscard]] forms::Control* control_of(int number);

    forms::Form& form_;
    HWND owner_;
    const FormPlaces& places_;
    HWND window_ = nullptr;
    HWND tips_ = nullptr;
    std::unique_ptr<Scale> scale_;
    std::vector<HWND> natives_;                    // one a control, in the form's order
    std::vector<std::vector<std::string>> items_;  // that the lists show
    std::vector<std::string> captions_;            // by which the controls were arranged
    std::optional<COLORREF> tabs_ground_;          // behind what stands in tabs
    std::wstring tip_;                             // that is on the screen
    std::exception_ptr failure_;
    int writing_ = 0;
    int inside_ = 0;  // notifications of controls that are being answered
    bool done_ = false;
    bool placed_ = false;  // by the person
};

}  // namespace kestrune::windows
