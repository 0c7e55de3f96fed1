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
constexpr std::array<NativeClass, 11> classes{{
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
}};

void set_items(HWND native, const Control& control, UINT reset, UINT add) {
    SendMessageW(native, reset, 0, 0);
    for (const std::string& item : control.List()) {
        const std::wstring text = to_utf16(item);
        SendMessageW(native, add, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
}

void set_tabs(HWND native, const Control& control) {
    SendMessageW(native, TCM_DELETEALLITEMS, 0, 0);
    int place = 0;
    for (const std::string& page : control.List()) {
        std::wstring text = to_utf16(page);
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text.data();
        SendMessageW(native, TCM_INSERTITEMW, static_cast<WPARAM>(place++), reinterpret_cast<LPARAM>(&item));
    }
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
    if (control.design().role == forms::Role::Default) made.style |= BS_DEFPUSHBUTTON;
    HWND native =
        CreateWindowExW(made.extended_style, made.name, L"", WS_CHILD | WS_CLIPSIBLINGS | made.style, 0, 0, 0, 0, form,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(number)), GetModuleHandleW(nullptr), nullptr);
    if (!native) return nullptr;
    // The form counts; the arrows only say that they were pressed.
    if (control.is(Kind::Spin)) {
        SendMessageW(native, UDM_SETRANGE32, static_cast<WPARAM>(-1000), 1000);
        SendMessageW(native, UDM_SETPOS32, 0, 0);
    }
    return native;
}

void show_in(HWND native, const Control& control, bool items_too) {
    switch (control.kind()) {
        case Kind::Option:
        case Kind::Check:
            show_text(native, native_caption(control));
            show_choice(native, control.Checked() ? BST_CHECKED : BST_UNCHECKED, BM_GETCHECK, BM_SETCHECK);
            break;
        case Kind::Text:
            show_text(native, to_utf16(control.Text()));
            break;
        case Kind::Combo:
            if (items_too) set_items(native, control, CB_RESETCONTENT, CB_ADDSTRING);
            show_choice(native, control.ListIndex(), CB_GETCURSEL, CB_SETCURSEL);
            if (control.design().editable) show_text(native, to_utf16(control.Text()));
            break;
        case Kind::List:
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
    std::string text;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (i == mark || caption[i] == '&') text += '&';
        text += caption[i];
    }
    return to_utf16(text);
}

std::string text_in(HWND native) {
    std::vector<wchar_t> text(static_cast<std::size_t>(GetWindowTextLengthW(native)) + 1);
    GetWindowTextW(native, text.data(), static_cast<int>(text.size()));
    return to_utf8(text.data());
}

void draw_picture(const Control& control, HDC context, const RECT& box) {
    FillRect(context, &box, GetSysColorBrush(COLOR_3DFACE));
    const auto& picture = control.Picture();
    if (!picture || picture->width < 1 || picture->height < 1) return;
    // Windows' stretching knows no transparency: the form's colour shows through beforehand.
    const DWORD ground = GetSysColor(COLOR_3DFACE);
    std::vector<std::uint32_t> pixels = picture->pixels;
    pixels.resize(static_cast<std::size_t>(picture->width) * static_cast<std::size_t>(picture->height));
    const auto mixed = [](std::uint32_t over, std::uint32_t under, std::uint32_t alpha) {
        return ((over & 0xFF) * alpha + (under & 0xFF) * (255 - alpha)) / 255;
    };
    for (std::uint32_t& pixel : pixels) {
        const std::uint32_t alpha = pixel >> 24;
        pixel = mixed(pixel >> 16, GetRValue(ground), alpha) << 16 | mixed(pixel >> 8, GetGValue(ground), alpha) << 8 |
                mixed(pixel, GetBValue(ground), alpha);
    }
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = picture->width;
    info.bmiHeader.biHeight = -picture->height;  // rows from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    SetStretchBltMode(context, HALFTONE);
    StretchDIBits(context, box.left, box.top, box.right - box.left, box.bottom - box.top, 0, 0, picture->width,
                  picture->height, pixels.data(), &info, DIB_RGB_COLORS, SRCCOPY);
}

}  // namespace kestrune::windows
