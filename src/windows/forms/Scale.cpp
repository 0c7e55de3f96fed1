#include "windows/forms/Scale.h"

#include <cmath>
#include <string>

#include "windows/com/Unicode.h"

namespace kestrune::windows {
namespace {

// Windows 10 knows a scale for each screen, older ones one for all.
template <class Function>
Function since_windows_10(const char* name) {
    // By way of void(*)(), which no compiler takes for a mistaken cast.
    return reinterpret_cast<Function>(
        reinterpret_cast<void (*)()>(GetProcAddress(GetModuleHandleW(L"user32.dll"), name)));
}

UINT system_dpi() {
    HDC screen = GetDC(nullptr);
    const auto dpi = static_cast<UINT>(GetDeviceCaps(screen, LOGPIXELSX));
    ReleaseDC(nullptr, screen);
    return dpi;
}

UINT dpi_of(HWND window) {
    static const auto get = since_windows_10<UINT(WINAPI*)(HWND)>("GetDpiForWindow");
    const UINT dpi = get && window ? get(window) : 0;
    return dpi > 0 ? dpi : system_dpi();
}

HFONT dialog_font(UINT dpi) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    static const auto get =
        since_windows_10<BOOL(WINAPI*)(UINT, UINT, void*, UINT, UINT)>("SystemParametersInfoForDpi");
    if (!get || !get(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi)) {
        SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
        metrics.lfMessageFont.lfHeight =
            MulDiv(metrics.lfMessageFont.lfHeight, static_cast<int>(dpi), static_cast<int>(system_dpi()));
    }
    return CreateFontIndirectW(&metrics.lfMessageFont);
}

}  // namespace

Scale::Scale(HWND window) : Scale(dpi_of(window)) {}

Scale::Scale(UINT dpi) : dpi_(dpi), font_(dialog_font(dpi)) {}

Scale::~Scale() { DeleteObject(font_); }

int Scale::pixels(double points) const { return static_cast<int>(std::lround(points * dpi_ / 72)); }

double Scale::points(int pixels) const { return pixels * 72.0 / dpi_; }

SIZE Scale::outside(SIZE inside, DWORD style, DWORD extended_style) const {
    static const auto adjust =
        since_windows_10<BOOL(WINAPI*)(RECT*, DWORD, BOOL, DWORD, UINT)>("AdjustWindowRectExForDpi");
    RECT whole{0, 0, inside.cx, inside.cy};
    if (!adjust || !adjust(&whole, style, FALSE, extended_style, dpi_)) {
        AdjustWindowRectEx(&whole, style, FALSE, extended_style);
    }
    return {whole.right - whole.left, whole.bottom - whole.top};
}

ScreenMeasures::ScreenMeasures(const Scale& scale)
    : scale_(scale), screen_(GetDC(nullptr)), before_(SelectObject(screen_, scale.font())) {}

ScreenMeasures::~ScreenMeasures() {
    SelectObject(screen_, before_);
    ReleaseDC(nullptr, screen_);
}

forms::Size ScreenMeasures::text(std::string_view text, double width) const {
    const std::wstring wide = to_utf16(text);
    RECT box{0, 0, width > 0 ? scale_.pixels(width) : 0, 0};
    DrawTextW(screen_, wide.c_str(), static_cast<int>(wide.size()), &box,
              DT_CALCRECT | DT_NOPREFIX | (width > 0 ? DT_WORDBREAK : DT_SINGLELINE));
    // Places are rounded to whole pixels, at both ends.
    return {scale_.points(box.right - box.left + 1), scale_.points(box.bottom - box.top)};
}

}  // namespace kestrune::windows
