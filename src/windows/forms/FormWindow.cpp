#include "windows/forms/FormWindow.h"

#include <commctrl.h>

#include <algorithm>

#include "forms/Layout.h"
#include "windows/com/Unicode.h"
#include "windows/forms/DrawnControl.h"
#include "windows/forms/NativeControl.h"

namespace kestrune::windows {
namespace {

using forms::Control;
using forms::Kind;

constexpr const wchar_t* class_name = L"KestruneForm";
constexpr int first_number = 100;  // of controls; Windows' own numbers lie below

// This code's own module: classes of windows are registered and found by it.
HINSTANCE module() {
    HMODULE found = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       class_name, &found);
    return found;
}

void register_class(WNDPROC procedure) {
    INITCOMMONCONTROLSEX controls{sizeof controls,
                                  ICC_UPDOWN_CLASS | ICC_TAB_CLASSES | ICC_BAR_CLASSES | ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&controls);
    WNDCLASSEXW made{};
    made.cbSize = sizeof made;
    made.lpfnWndProc = procedure;
    made.hInstance = module();
    made.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    made.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_3DFACE + 1);
    made.lpszClassName = class_name;
    RegisterClassExW(&made);  // fails when it is there already
}

DWORD style_of(const forms::Form& form) {
    return WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN | (form.design().sizable ? WS_THICKFRAME : 0);
}

constexpr DWORD extended_style = WS_EX_DLGMODALFRAME;

// The part of a screen that windows may use.
RECT work_area(HMONITOR monitor) {
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    GetMonitorInfoW(monitor, &screen);
    return screen.rcWork;
}

// Keeps the thread's other windows from taking input, for as long as it lives.
class InputKeptAway {
  public:
    explicit InputKeptAway(HWND open) : open_(open) {
        EnumThreadWindows(GetCurrentThreadId(), &disable, reinterpret_cast<LPARAM>(this));
    }
    ~InputKeptAway() {
        for (HWND window : disabled_) {
            if (IsWindow(window)) EnableWindow(window, TRUE);
        }
    }
    // From one that came later, too.
    void keep_from(HWND window) {
        if (!IsWindowEnabled(window)) return;
        disabled_.push_back(window);
        EnableWindow(window, FALSE);
    }
    InputKeptAway(const InputKeptAway&) = delete;
    InputKeptAway& operator=(const InputKeptAway&) = delete;

  private:
    static BOOL CALLBACK disable(HWND window, LPARAM self) {
        auto& kept = *reinterpret_cast<InputKeptAway*>(self);
        if (window != kept.open_ && GetWindow(window, GW_OWNER) != kept.open_ && IsWindowVisible(window) &&
            IsWindowEnabled(window)) {
            kept.keep_from(window);
        }
        return TRUE;
    }

    HWND open_;
    std::vector<HWND> disabled_;
};

}  // namespace

struct FormWindow::Writing {
    explicit Writing(FormWindow& window) : count(window.writing_) { ++count; }
    ~Writing() { --count; }
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;
    int& count;
};

FormWindow::FormWindow(forms::Form& form, HWND owner, const FormPlaces& places)
    : form_(form), owner_(owner), places_(places) {
    register_class(&FormWindow::receive);
    CreateWindowExW(extended_style, class_name, to_utf16(form.Caption()).c_str(), style_of(form), 0, 0, 0, 0, owner,
                    nullptr, module(), this);
    if (!window_) return;
    scale_ = std::make_unique<Scale>(owner ? owner : window_);
    create_controls();
    set_font();
    fit();
    open_up();
    center();
    if (form_.design().sizable) {
        if (const auto place = places_.place_of(form_.design().name)) put_at(*place);
    }
}

FormWindow::~FormWindow() {
    form_.watch(nullptr);
    if (window_) DestroyWindow(window_);
}

void FormWindow::run() {
    if (!window_) return;
    form_.watch(this);
    for (const Control& control : form_.controls()) changed(control);
    {
        InputKeptAway kept(window_);
        ShowWindow(window_, SW_SHOW);
        focus_now();
        MSG message;
        while (!done_ && form_.Visible()) {
            if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
                // The program ends: that goes on outside.
                PostQuitMessage(static_cast<int>(message.wParam));
                break;
            }
            if (!key(message)) {
                TranslateMessage(&message);
                DispatchMessageW(&message);
            }
            if (HWND other = window_in_front()) {
                kept.keep_from(other);
                stand_before(other);
            }
        }
    }
    if (placed_ && form_.design().sizable && !IsIconic(window_)) keep_place();
    // The others take input again before it goes, so that its owner comes to the front and no other program.
    form_.watch(nullptr);
    ShowWindow(window_, SW_HIDE);
    if (failure_) std::rethrow_exception(failure_);
}

// A window of the same program that came before this one: Excel has one a workbook. Null for none.
HWND FormWindow::window_in_front() const {
    HWND front = GetActiveWindow();
    if (!front || front == window_ || !IsWindowEnabled(window_)) return nullptr;
    for (HWND owner = front; owner; owner = GetWindow(owner, GW_OWNER)) {
        if (owner == window_) return nullptr;
    }
    return front;
}

// The form belongs to the window that a person sees behind it, or it would bring another one to the front with it.
void FormWindow::stand_before(HWND window) {
    SetWindowLongPtrW(window_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(window));
    if (!done_ && form_.Visible()) SetActiveWindow(window_);
}

// At first a form may be larger than it needs to be.
void FormWindow::open_up() {
    const forms::FormDesign& design = form_.design();
    const SIZE wanted =
        scale_->outside({scale_->pixels(design.width), scale_->pixels(design.height)}, style_of(form_), extended_style);
    if (design.width > 0 && design.height > 0) resize(wanted);
}

// Not smaller than the form needs, and not larger than the screen.
void FormWindow::resize(SIZE size) {
    const SIZE least = least_size();
    const RECT screen = work_area(MonitorFromWindow(owner_ ? owner_ : window_, MONITOR_DEFAULTTOPRIMARY));
    size.cx = std::max(least.cx, std::min(size.cx, screen.right - screen.left));
    size.cy = std::max(least.cy, std::min(size.cy, screen.bottom - screen.top));
    SetWindowPos(window_, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    arrange();
}

void FormWindow::put_at(const FormPlace& place) {
    resize(
        scale_->outside({scale_->pixels(place.width), scale_->pixels(place.height)}, style_of(form_), extended_style));
    RECT own{};
    GetWindowRect(window_, &own);
    const LONG width = own.right - own.left;
    const LONG height = own.bottom - own.top;
    // The screen that it stood on may be gone.
    const RECT wanted{place.left, place.top, place.left + width, place.top + height};
    const RECT screen = work_area(MonitorFromRect(&wanted, MONITOR_DEFAULTTONEAREST));
    move_within(screen, place.left, place.top);
}

void FormWindow::keep_place() const {
    RECT own{};
    GetWindowRect(window_, &own);
    places_.keep(form_.design().name, {own.left, own.top, form_.InsideWidth(), form_.InsideHeight()});
}

// All of it on the screen, the title bar above all.
void FormWindow::move_within(const RECT& screen, LONG left, LONG top) const {
    RECT own{};
    GetWindowRect(window_, &own);
    left = std::max(screen.left, std::min(left, screen.right - (own.right - own.left)));
    top = std::max(screen.top, std::min(top, screen.bottom - (own.bottom - own.top)));
    SetWindowPos(window_, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormWindow::create_controls() {
    tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0,
                            0, window_, nullptr, module(), nullptr);
    if (tips_) SendMessageW(tips_, TTM_SETMAXTIPWIDTH, 0, scale_->pixels(240));
    int number = first_number;
    for (const Control& control : form_.controls()) {
        natives_.push_back(create_native(control, window_, number++));
        items_.emplace_back();
        captions_.push_back(control.Caption());
        if (natives_.back()) add_tip(natives_.back());
    }
    // What holds others lies below them.
    for (std::size_t i = natives_.size(); i-- > 0;) {
        const Control& control = form_.controls()[i];
        if (!control.is(Kind::Tabs) && !control.is(Kind::Frame)) continue;
        SetWindowPos(natives_[i], HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    for (const Control& control : form_.controls()) changed(control);
}

void FormWindow::add_tip(HWND native) const {
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = window_;
    tool.uId = reinterpret_cast<UINT_PTR>(native);
    tool.lpszText = LPSTR_TEXTCALLBACKW;
    SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

HWND FormWindow::native(const Control& control) const {
    for (std::size_t i = 0; i < natives_.size(); ++i) {
        if (&form_.controls()[i] == &control) return natives_[i];
    }
    return nullptr;
}

COLORREF FormWindow::ground(const Control* control) {
    const Control* around = control ? control->container() : nullptr;
    while (around && !around->is(Kind::Tabs)) around = around->container();
    if (!around) return GetSysColor(COLOR_3DFACE);
    if (!tabs_ground_) tabs_ground_ = ground_of(native(*around));
    return *tabs_ground_;
}

Control* FormWindow::control_of(int number) {
    const auto place = static_cast<std::size_t>(number - first_number);
    return number >= first_number && place < natives_.size() ? &form_.controls()[place] : nullptr;
}

void FormWindow::set_font() {
    for (std::size_t i = 0; i < natives_.size(); ++i) {
        SendMessageW(natives_[i], WM_SETFONT, reinterpret_cast<WPARAM>(scale_->font()), FALSE);
        if (form_.controls()[i].design().pictured) fit_items(natives_[i], *scale_);
    }
    if (tips_) SendMessageW(tips_, WM_SETFONT, reinterpret_cast<WPARAM>(scale_->font()), FALSE);
}

SIZE FormWindow::least_size() const {
    const forms::Layout layout = forms::lay_out(form_, ScreenMeasures(*scale_));
    return scale_->outside({scale_->pixels(layout.inside.width), scale_->pixels(layout.inside.height)}, style_of(form_),
                           extended_style);
}

void FormWindow::fit(bool shrink) {
    SIZE size = least_size();
    RECT now{};
    GetWindowRect(window_, &now);
    if (!shrink) size = {std::max(size.cx, now.right - now.left), std::max(size.cy, now.bottom - now.top)};
    SetWindowPos(window_, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    arrange();
}

void FormWindow::center() {
    const RECT screen = work_area(MonitorFromWindow(owner_ ? owner_ : window_, MONITOR_DEFAULTTOPRIMARY));
    RECT before = screen;
    if (owner_ && !IsIconic(owner_)) GetWindowRect(owner_, &before);
    RECT own{};
    GetWindowRect(window_, &own);
    move_within(screen, (before.left + before.right - (own.right - own.left)) / 2,
                (before.top + before.bottom - (own.bottom - own.top)) / 2);
}

void FormWindow::arrange() {
    if (natives_.empty()) return;
    RECT inside{};
    GetClientRect(window_, &inside);
    const forms::Layout layout =
        forms::lay_out(form_, ScreenMeasures(*scale_), {scale_->points(inside.right), scale_->points(inside.bottom)});
    for (std::size_t i = 0; i < natives_.size(); ++i) {
        const forms::Box& box = layout.boxes[i];
        const int left = scale_->pixels(box.left);
        const int top = scale_->pixels(box.top);
        int bottom = scale_->pixels(box.bottom());
        // The height of a combo box is that of its list, too.
        if (form_.controls()[i].is(Kind::Combo)) bottom += scale_->pixels(120);
        MoveWindow(natives_[i], left, top, scale_->pixels(box.right()) - left, bottom - top, FALSE);
        fit_columns(natives_[i], form_.controls()[i], [this](double points) { return scale_->pixels(points); });
    }
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    form_.resize(layout.inside.width, layout.inside.height);
}

void FormWindow::rescale(UINT dpi, const RECT& place) {
    const auto before = std::move(scale_);
    scale_ = std::make_unique<Scale>(dpi);
    set_font();
    SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    if (form_.design().sizable) {
        arrange();
    } else {
        fit();
    }
}

void FormWindow::changed(const Control& control) {
    const auto place = static_cast<std::size_t>(
        std::ranges::find_if(form_.controls(), [&](const Control& one) { return &one == &control; }) -
        form_.controls().begin());
    if (place >= natives_.size() || !natives_[place]) return;
    const Writing writing(*this);
    const bool items_too = items_[place] != control.List();
    if (items_too) items_[place] = control.List();
    show_in(natives_[place], control, items_too);
    if (captions_[place] != control.Caption()) {
        captions_[place] = control.Caption();
        // One of a fixed size needs no more room.
        if (control.design().width <= 0 || control.design().height <= 0) fit(false);
    }
    if (!control.is(Kind::Frame) && !control.is(Kind::Tabs)) return;
    for (const Control& held : form_.controls()) {
        if (held.container() == &control) changed(held);
    }
}

void FormWindow::focused(const Control&) {
    // A control that tells of its focus cannot lose it in the same breath.
    if (inside_ > 0) {
        PostMessageW(window_, give_focus, 0, 0);
    } else {
        focus_now();
    }
}

void FormWindow::focus_now() {
    const Control* active = form_.ActiveControl();
    HWND target = active ? native(*active) : nullptr;
    const HWND now = GetFocus();
    const Writing writing(*this);
    if (target && now != target && !IsChild(target, now)) {
        SetFocus(target);
        if (active->is(Kind::Text) && !active->design().locked) SendMessageW(target, EM_SETSEL, 0, -1);
    }
    mark_default();
}

// Enter presses the button that has the focus, and it shows.
void FormWindow::mark_default() const {
    const Control* active = form_.ActiveControl();
    const Control* pressed = active && active->is(Kind::Push) ? active : form_.button(forms::Role::Default);
    for (std::size_t i = 0; i < natives_.size(); ++i) {
        if (!form_.controls()[i].is(Kind::Push)) continue;
        const WPARAM wanted = &form_.controls()[i] == pressed ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
        const auto now = static_cast<WPARAM>(GetWindowLongW(natives_[i], GWL_STYLE) & BS_TYPEMASK);
        if (now != wanted) SendMessageW(natives_[i], BM_SETSTYLE, wanted, TRUE);
    }
}

void FormWindow::caption_changed() { SetWindowTextW(window_, to_utf16(form_.Caption()).c_str()); }

void FormWindow::closed() {
    done_ = true;
    PostMessageW(window_, WM_NULL, 0, 0);
}

}  // namespace kestrune::windows
