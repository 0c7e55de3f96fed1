// What Windows tells a form's window.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "automation/Text.h"
#include "windows/com/Unicode.h"
#include "windows/forms/DrawnControl.h"
#include "windows/forms/DrawnSample.h"
#include "windows/forms/FormWindow.h"
#include "windows/forms/NativeControl.h"
#include "windows/forms/PressedKey.h"

namespace kestrune::windows {
namespace {

using forms::Control;
using forms::Key;
using forms::Kind;

constexpr UINT dpi_changed = 0x02E0;  // WM_DPICHANGED, since Windows 8.1

// What a control tells when a person goes to it, and when one works with it.
bool goes_there(Kind kind, int code) {
    switch (kind) {
        case Kind::Option:
        case Kind::Check:
        case Kind::Push:
            return code == BN_SETFOCUS;
        case Kind::Text:
            return code == EN_SETFOCUS;
        case Kind::Combo:
            return code == CBN_SETFOCUS;
        case Kind::List:
            return code == LBN_SETFOCUS;
        default:
            return false;
    }
}

bool acts(Kind kind, int code) {
    switch (kind) {
        case Kind::Check:
        case Kind::Push:
            return code == BN_CLICKED || code == BN_DOUBLECLICKED;
        case Kind::Option:
            return code == BN_CLICKED;
        case Kind::Label:
        case Kind::Image:
            return code == STN_CLICKED || code == STN_DBLCLK;
        case Kind::Text:
            return code == EN_CHANGE;
        case Kind::Combo:
            return code == CBN_SELCHANGE || code == CBN_EDITCHANGE;
        case Kind::List:
            return code == LBN_SELCHANGE || code == LBN_DBLCLK;
        default:
            return false;
    }
}

bool down(int key) { return GetKeyState(key) < 0; }

// While a notification of a control is being answered.
struct Inside {
    explicit Inside(int& counter) : count(counter) { ++count; }
    ~Inside() { --count; }
    Inside(const Inside&) = delete;
    Inside& operator=(const Inside&) = delete;
    int& count;
};

// The first line from a place on, and from the top again, that begins like what is typed; -1 for none.
int line_that_begins(const Control& control, std::string_view text, int from) {
    const auto count = static_cast<int>(control.List().size());
    for (int i = 0; i < count; ++i) {
        const int place = (std::max(from, 0) + i) % count;
        if (automation::same_text(control.item(place, 0).substr(0, text.size()), text)) return place;
    }
    return -1;
}

}  // namespace

LRESULT CALLBACK FormWindow::receive(HWND window, UINT message, WPARAM w, LPARAM l) noexcept {
    if (message == WM_NCCREATE) {
        auto* created = static_cast<FormWindow*>(reinterpret_cast<CREATESTRUCTW*>(l)->lpCreateParams);
        created->window_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
    auto* self = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self) return DefWindowProcW(window, message, w, l);
    // Windows lets no exception through; the modal loop throws it on.
    try {
        return self->answer(message, w, l);
    } catch (...) {
        self->failure_ = std::current_exception();
        self->done_ = true;
        return 0;
    }
}

LRESULT FormWindow::answer(UINT message, WPARAM w, LPARAM l) {
    switch (message) {
        case WM_CLOSE:
            form_.close();
            return 0;
        case WM_SETFOCUS:
        case FormWindow::give_focus:
            focus_now();
            return 0;
        case WM_COMMAND:
            if (l) command(LOWORD(w), HIWORD(w));
            return 0;
        case WM_NOTIFY:
            return notify(*reinterpret_cast<const NMHDR*>(l));
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORBTN:
            SetBkMode(reinterpret_cast<HDC>(w), TRANSPARENT);
            SetDCBrushColor(reinterpret_cast<HDC>(w), ground(control_of(GetDlgCtrlID(reinterpret_cast<HWND>(l)))));
            return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
        case WM_THEMECHANGED:
            tabs_ground_.reset();
            break;
        case WM_DRAWITEM: {
            const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(l);
            const Control* drawn = control_of(static_cast<int>(item.CtlID));
            if (!drawn || !scale_) return TRUE;
            if (drawn->is(Kind::Combo)) {
                draw_item(*drawn, *scale_, item);
            } else if (drawn->is(Kind::Sample)) {
                draw_sample(drawn->Looks(), *scale_, item.hDC, item.rcItem);
            } else {
                draw_picture(*drawn, item.hDC, item.rcItem, ground(drawn));
            }
            return TRUE;
        }
        case WM_EXITSIZEMOVE:
            placed_ = true;
            return 0;
        case WM_SIZE:
            if (w != SIZE_MINIMIZED && scale_) arrange();
            return 0;
        case WM_GETMINMAXINFO:
            if (scale_ && !natives_.empty()) {
                const SIZE least = least_size();
                reinterpret_cast<MINMAXINFO*>(l)->ptMinTrackSize = {least.cx, least.cy};
            }
            return 0;
        case dpi_changed:
            if (scale_) rescale(HIWORD(w), *reinterpret_cast<const RECT*>(l));
            return 0;
        case WM_NCDESTROY:
            SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
            break;
        default:
            break;
    }
    return DefWindowProcW(window_, message, w, l);
}

void FormWindow::command(int number, int code) {
    Control* control = control_of(number);
    if (!control || writing_ > 0) return;
    const Inside inside(inside_);
    if (goes_there(control->kind(), code)) {
        form_.go_to(*control);
    } else if (acts(control->kind(), code)) {
        take(*control, code);
        // What the form did not take, the control does not show.
        changed(*control);
    }
}

// What a person did to a control, into the form.
void FormWindow::take(Control& control, int code) {
    HWND native_window = native(control);
    const auto place = [&](UINT get) { return static_cast<std::int32_t>(SendMessageW(native_window, get, 0, 0)); };
    switch (control.kind()) {
        case Kind::Text:
            form_.type(control, text_in(native_window));
            break;
        case Kind::Combo:
            if (code == CBN_EDITCHANGE) {
                form_.type(control, text_in(native_window));
            } else {
                form_.choose(control, place(CB_GETCURSEL));
            }
            break;
        case Kind::List:
            if (code == LBN_DBLCLK) {
                form_.double_click(control);
            } else {
                form_.choose(control, place(LB_GETCURSEL));
            }
            break;
        case Kind::Label:
        case Kind::Image:
            if (code == STN_DBLCLK) {
                form_.double_click(control);
                break;
            }
            [[fallthrough]];
        default:
            form_.click(control);
            break;
    }
}

LRESULT FormWindow::notify(const NMHDR& header) {
    if (header.code == TTN_GETDISPINFOW) {
        auto& asked = *reinterpret_cast<NMTTDISPINFOW*>(const_cast<NMHDR*>(&header));
        for (std::size_t i = 0; i < natives_.size(); ++i) {
            if (natives_[i] == reinterpret_cast<HWND>(header.idFrom))
                tip_ = to_utf16(form_.controls()[i].ControlTipText());
        }
        asked.lpszText = tip_.data();
        return 0;
    }
    Control* control = control_of(static_cast<int>(header.idFrom));
    if (!control) return 0;
    if (header.code == LVN_GETDISPINFOW) {
        auto& asked = reinterpret_cast<NMLVDISPINFOW*>(const_cast<NMHDR*>(&header))->item;
        if ((asked.mask & LVIF_TEXT) && asked.cchTextMax > 0) {
            const std::wstring text = to_utf16(control->item(asked.iItem, static_cast<std::size_t>(asked.iSubItem)));
            const std::size_t length = std::min(text.size(), static_cast<std::size_t>(asked.cchTextMax) - 1);
            text.copy(asked.pszText, length);
            asked.pszText[length] = L'\0';
        }
        return 0;
    }
    if (header.code == LVN_ODFINDITEMW) {
        const auto& sought = *reinterpret_cast<const NMLVFINDITEMW*>(&header);
        if (!(sought.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) || !sought.lvfi.psz) return -1;
        return line_that_begins(*control, to_utf8(sought.lvfi.psz), sought.iStart);
    }
    if (writing_ > 0) return 0;
    const Inside inside(inside_);
    if (header.code == LVN_ITEMCHANGED) {
        const auto& change = *reinterpret_cast<const NMLISTVIEW*>(&header);
        if (!(change.uNewState & LVIS_SELECTED) || (change.uOldState & LVIS_SELECTED)) return 0;
        form_.choose(*control, change.iItem);
        changed(*control);
    }
    // Beside the lines nothing can be chosen.
    if (header.code == static_cast<UINT>(NM_CLICK) && control->is(Kind::List)) changed(*control);
    if (header.code == static_cast<UINT>(NM_DBLCLK) && control->is(Kind::List)) {
        if (reinterpret_cast<const NMITEMACTIVATE*>(&header)->iItem >= 0) form_.double_click(*control);
    }
    if (header.code == UDN_DELTAPOS) {
        const auto& pressed = *reinterpret_cast<const NMUPDOWN*>(&header);
        form_.spin(*control, pressed.iDelta > 0);
        return TRUE;  // the form counts
    }
    if (header.code == TCN_SELCHANGE) {
        form_.choose(*control, static_cast<std::int32_t>(SendMessageW(header.hwndFrom, TCM_GETCURSEL, 0, 0)));
        changed(*control);
    }
    if (header.code == static_cast<UINT>(NM_SETFOCUS)) form_.go_to(*control);
    return 0;
}

bool FormWindow::key(const MSG& message) {
    if (message.hwnd != window_ && !IsChild(window_, message.hwnd)) return false;
    try {
        if (takes_key(message)) return true;
        if (message.message == WM_KEYDOWN) return key_down(message.wParam);
        if (message.message == WM_SYSCHAR && message.wParam < 0x80) {
            return form_.press_access_key(static_cast<char>(message.wParam));
        }
    } catch (...) {
        failure_ = std::current_exception();
        done_ = true;
        return true;
    }
    return false;
}

// A box that takes keys leaves those to the form that a person needs to leave it.
bool FormWindow::takes_key(const MSG& message) {
    Control* active = form_.ActiveControl();
    if (!active || !active->design().takes_keys || native(*active) != message.hwnd) return false;
    if (message.message == WM_CHAR || message.message == WM_SYSCHAR) return message.wParam != VK_TAB;
    if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN) return false;
    const bool held = down(VK_CONTROL) || down(VK_MENU);
    if (!held && (message.wParam == VK_TAB || message.wParam == VK_RETURN || message.wParam == VK_ESCAPE)) return false;
    const bool erases = message.wParam == VK_DELETE || message.wParam == VK_BACK;
    if (const auto text = pressed_key_text(message.wParam))
        form_.type(*active, erases && !held ? std::string() : *text);
    return true;
}

bool FormWindow::key_down(WPARAM key) {
    const Control* active = form_.ActiveControl();
    const bool unfolded = active && active->is(Kind::Combo) && SendMessageW(native(*active), CB_GETDROPPEDSTATE, 0, 0);
    switch (key) {
        case VK_TAB:
            if (down(VK_CONTROL)) return form_.press(down(VK_SHIFT) ? Key::PreviousPage : Key::NextPage);
            return form_.press(down(VK_SHIFT) ? Key::BackTab : Key::Tab);
        case VK_PRIOR:
        case VK_NEXT:
            return down(VK_CONTROL) && form_.press(key == VK_PRIOR ? Key::PreviousPage : Key::NextPage);
        case VK_RETURN:
            return !unfolded && form_.press(Key::Enter);
        case VK_ESCAPE:
            return !unfolded && form_.press(Key::Escape);
        case VK_UP:
        case VK_DOWN:
        case VK_LEFT:
        case VK_RIGHT: {
            // In lists, combo boxes and page tabs the arrows are the control's own.
            const bool ours = active && (active->is(Kind::Option) || active->is(Kind::Text) || active->is(Kind::Spin));
            const Key arrow = key == VK_UP     ? Key::Up
                              : key == VK_DOWN ? Key::Down
                              : key == VK_LEFT ? Key::Left
                                               : Key::Right;
            return ours && form_.press(arrow);
        }
        default:
            return false;
    }
}

}  // namespace kestrune::windows
