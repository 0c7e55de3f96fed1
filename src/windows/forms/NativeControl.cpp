#include "windows/forms/NativeControl.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "automation/Text.h"
#include "windows/com/Unicode.h"

namespace kestrune::windows {
namespace {

using forms::Control;
using forms::Kind;

struct NativeClass {
    const wchar_t* name;
    DWORD style;
    DWORD extended_style;
};

// In the order of Kind. Buttons do not check themselves: the form says what is on.
constexpr std::array<NativeClass, 12> classes{{
    {L"STATIC", SS_LEFT | SS_NOTIFY, 0},
    {L"BUTTON", BS_GROUPBOX, WS_EX_TRANSPARENT},
    {L"BUTTON", BS_RADIOBUTTON | BS_NOTIFY, 0},
    {L"BUTTON", BS_CHECKBOX | BS_NOTIFY, 0},
    {L"EDIT", ES_AUTOHSCROLL, WS_EX_CLIENTEDGE},
    {L"COMBOBOX", CBS_DROPDOWNLIST | WS_VSCROLL | CBS_AUTOHSCROLL, 0},
    {L"LISTBOX", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL, WS_EX_CLIENTEDGE},
    {UPDOWN_CLASSW, UDS_ARROWKEYS, 0},
    {L"BUTTON", BS_PUSHBUTTON | BS_NOTIFY, 0},
    {WC_TABCONTROLW, TCS_FOCUSONBUTTONDOWN, 0},
    {L"STATIC", SS_OWNERDRAW, 0},
    {L"STATIC", SS_OWNERDRAW, 0},
}};

void set_items(HWND native, const Control& control, UINT reset, UINT add) {
    SendMessageW(native, reset, 0, 0);
    for (const std::string& item : control.List()) {
        const std::wstring text = to_utf16(item);
        SendMessageW(native, add, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
}

// A text in which "&" stands for itself, but for the one before the letter at mark.
std::string with_mark(const std::string& caption, std::size_t mark) {
    std::string text;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (i == mark || caption[i] == '&') text += '&';
        text += caption[i];
    }
    return text;
}

void set_tabs(HWND native, const Control& control) {
    SendMessageW(native, TCM_DELETEALLITEMS, 0, 0);
    int place = 0;
    for (const std::string& page : control.List()) {
        std::wstring text = to_utf16(with_mark(page, std::string::npos));
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text.data();
        SendMessageW(native, TCM_INSERTITEMW, static_cast<WPARAM>(place++), reinterpret_cast<LPARAM>(&item));
    }
}

bool has_columns(const Control& control) { return control.is(Kind::List) && !control.design().columns.empty(); }

int chosen_line(HWND native) {
    return static_cast<int>(SendMessageW(native, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

void choose_line(HWND native, int index) {
    LVITEMW state{};
    state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    // Of all lines, so that the one before goes off.
    SendMessageW(native, LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&state));
    if (index < 0) return;
    state.state = state.stateMask;
    SendMessageW(native, LVM_SETITEMSTATE, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&state));
    SendMessageW(native, LVM_ENSUREVISIBLE, static_cast<WPARAM>(index), FALSE);
}

// The list asks for the texts of the lines that it shows, so that it may be long.
void show_lines(HWND native, const Control& control, bool items_too) {
    if (items_too) {
        SendMessageW(native, LVM_SETITEMCOUNT, control.List().size(), 0);
        InvalidateRect(native, nullptr, TRUE);
    }
    if (chosen_line(native) != control.ListIndex()) choose_line(native, control.ListIndex());
}

void add_columns(HWND native, const Control& control) {
    SendMessageW(native, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP);
    WPARAM place = 0;
    for (const forms::ListColumn& column : control.design().columns) {
        std::wstring head = to_utf16(column.head);
        LVCOLUMNW made{};
        made.mask = LVCF_TEXT | LVCF_FMT;
        made.fmt = LVCFMT_LEFT;
        made.pszText = head.data();
        SendMessageW(native, LVM_INSERTCOLUMNW, place++, reinterpret_cast<LPARAM>(&made));
    }
}

// A locked text with its mark. Windows parts lines by two characters.
void show_marked(HWND native, const Control& control) {
    const std::wstring text = to_utf16(control.Text());
    std::wstring lines;
    auto start = static_cast<std::size_t>(control.SelStart());
    std::size_t end = start + static_cast<std::size_t>(control.SelLength());
    const std::size_t first = start;
    const std::size_t last = end;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'\n' && (i == 0 || text[i - 1] != L'\r')) {
            lines += L'\r';
            if (i < first) ++start;
            if (i < last) ++end;
        }
        lines += text[i];
    }
    if (to_utf16(text_in(native)) != lines) SetWindowTextW(native, lines.c_str());
    SendMessageW(native, EM_SETSEL, start, static_cast<LPARAM>(end));
    SendMessageW(native, EM_SCROLLCARET, 0, 0);
}

void show_choice(HWND native, int index, UINT get, UINT set) {
    if (SendMessageW(native, get, 0, 0) != index) SendMessageW(native, set, static_cast<WPARAM>(index), 0);
}

void show_text(HWND native, const std::wstring& text) {
    if (to_utf16(text_in(native)) == text) return;
    SetWindowTextW(native, text.c_str());
}

}  // namespace

HWND create_native(const Control& control, HWND form, int number) {
    NativeClass made = classes[static_cast<std::size_t>(control.kind())];
    if (control.is(Kind::Combo) && control.design().editable) {
        made.style = (made.style & ~static_cast<DWORD>(CBS_DROPDOWNLIST)) | CBS_DROPDOWN;
    }
    if (control.design().pictured) made.style |= CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
    if (control.design().role == forms::Role::Default) made.style |= BS_DEFPUSHBUTTON;
    if (has_columns(control)) {
        made = {WC_LISTVIEWW, LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER,
                WS_EX_CLIENTEDGE};
    }
    if (control.design().multi_line) {
        made.style = (made.style & ~static_cast<DWORD>(ES_AUTOHSCROLL)) | ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL;
    }
    if (control.design().locked) made.style |= ES_READONLY | ES_NOHIDESEL;
    HWND native =
        CreateWindowExW(made.extended_style, made.name, L"", WS_CHILD | WS_CLIPSIBLINGS | made.style, 0, 0, 0, 0, form,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(number)), GetModuleHandleW(nullptr), nullptr);
    if (!native) return nullptr;
    // The form counts; the arrows only say that they were pressed.
    if (control.is(Kind::Spin)) {
        SendMessageW(native, UDM_SETRANGE32, static_cast<WPARAM>(-1000), 1000);
        SendMessageW(native, UDM_SETPOS32, 0, 0);
    }
    if (has_columns(control)) add_columns(native, control);
    return native;
}

void fit_columns(HWND native, const Control& control, const std::function<int(double)>& pixels) {
    if (!has_columns(control)) return;
    RECT inside{};
    GetClientRect(native, &inside);
    // With room for the scroll bar, which comes with the lines.
    RECT whole{};
    GetWindowRect(native, &whole);
    const int room = std::min<int>(
        inside.right, whole.right - whole.left - GetSystemMetrics(SM_CXVSCROLL) - 2 * GetSystemMetrics(SM_CXEDGE));
    int wanted = 0;
    for (const forms::ListColumn& column : control.design().columns) wanted += pixels(column.width);
    const double share = wanted > room && wanted > 0 ? static_cast<double>(room) / wanted : 1;
    int left = room;
    WPARAM place = 0;
    for (const forms::ListColumn& column : control.design().columns) {
        const bool is_last = place + 1 == control.design().columns.size();
        const int width = is_last ? left : static_cast<int>(pixels(column.width) * share);
        SendMessageW(native, LVM_SETCOLUMNWIDTH, place++, MAKELPARAM(std::max(width, 0), 0));
        left -= width;
    }
    // Which of its lines are seen, a list knows only when it has its size.
    if (control.ListIndex() >= 0) {
        SendMessageW(native, LVM_ENSUREVISIBLE, static_cast<WPARAM>(control.ListIndex()), FALSE);
    }
}

void show_in(HWND native, const Control& control, bool items_too) {
    switch (control.kind()) {
        case Kind::Option:
        case Kind::Check:
            show_text(native, native_caption(control));
            show_choice(native, control.Checked() ? BST_CHECKED : BST_UNCHECKED, BM_GETCHECK, BM_SETCHECK);
            break;
        case Kind::Text:
            if (control.design().locked) {
                show_marked(native, control);
            } else {
                show_text(native, to_utf16(control.Text()));
            }
            break;
        case Kind::Combo:
            if (items_too) set_items(native, control, CB_RESETCONTENT, CB_ADDSTRING);
            show_choice(native, control.ListIndex(), CB_GETCURSEL, CB_SETCURSEL);
            if (control.design().editable) show_text(native, to_utf16(control.Text()));
            break;
        case Kind::List:
            if (has_columns(control)) {
                show_lines(native, control, items_too);
                break;
            }
            if (items_too) set_items(native, control, LB_RESETCONTENT, LB_ADDSTRING);
            show_choice(native, control.ListIndex(), LB_GETCURSEL, LB_SETCURSEL);
            break;
        case Kind::Tabs:
            if (items_too) set_tabs(native, control);
            show_choice(native, control.ListIndex(), TCM_GETCURSEL, TCM_SETCURSEL);
            break;
        case Kind::Spin:
            break;
        case Kind::Image:
        case Kind::Sample:
            InvalidateRect(native, nullptr, TRUE);
            break;
        default:
            show_text(native, native_caption(control));
            break;
    }
    const bool enabled = control.usable() || !control.shown();
    if ((IsWindowEnabled(native) != FALSE) != enabled) EnableWindow(native, enabled);
    const bool seen = (GetWindowLongW(native, GWL_STYLE) & WS_VISIBLE) != 0;
    if (seen != control.shown()) ShowWindow(native, control.shown() ? SW_SHOWNA : SW_HIDE);
}

std::wstring native_caption(const Control& control) {
    const std::string& caption = control.Caption();
    const char letter = control.Accelerator();
    std::size_t mark = letter ? caption.find(letter) : std::string::npos;
    if (letter && mark == std::string::npos) {
        const auto found =
            std::ranges::find_if(caption, [&](char c) { return automation::lower(c) == automation::lower(letter); });
        if (found != caption.end()) mark = static_cast<std::size_t>(found - caption.begin());
    }
    return to_utf16(with_mark(caption, mark));
}

std::string text_in(HWND native) {
    std::vector<wchar_t> text(static_cast<std::size_t>(GetWindowTextLengthW(native)) + 1);
    GetWindowTextW(native, text.data(), static_cast<int>(text.size()));
    return to_utf8(text.data());
}

COLORREF ground_of(HWND tabs) {
    RECT box{};
    GetClientRect(tabs, &box);
    HDC screen = GetDC(tabs);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, box.right, box.bottom);
    HGDIOBJ before = SelectObject(memory, bitmap);
    FillRect(memory, &box, GetSysColorBrush(COLOR_3DFACE));
    SendMessageW(tabs, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(memory), PRF_CLIENT);
    SendMessageW(tabs, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&box));
    const COLORREF color = GetPixel(memory, box.left + 1, (box.top + box.bottom) / 2);
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(tabs, screen);
    return color == CLR_INVALID ? GetSysColor(COLOR_3DFACE) : color;
}

}  // namespace kestrune::windows
