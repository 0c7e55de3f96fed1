#include "windows/services/Win32Screen.h"

#include <windows.h>

#include <cmath>
#include <cstdint>

#include "automation/AutomationError.h"
#include "automation/Conversion.h"

namespace kestrune::windows {
namespace {

// Excel tells the handle as a 32-bit number, which Windows' handles fit in.
HWND window_of(automation::Object& application) {
    try {
        const double number = automation::to_double(automation::get(application, "Hwnd"));
        const auto bits = static_cast<std::int32_t>(static_cast<std::int64_t>(number));
        const HWND window = reinterpret_cast<HWND>(static_cast<std::intptr_t>(bits));
        return ::IsWindow(window) ? window : nullptr;
    } catch (const automation::AutomationError&) {
        return nullptr;
    }
}

struct Module {
    explicit Module(const wchar_t* name) : handle(::LoadLibraryW(name)) {}
    ~Module() {
        if (handle) ::FreeLibrary(handle);
    }
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;
    HMODULE handle;
};

// How far the borders that nobody sees reach beyond the window that is seen, each side; none before Windows Vista.
RECT invisible_borders(HWND window) {
    using GetAttribute = HRESULT(WINAPI*)(HWND, DWORD, void*, DWORD);
    constexpr DWORD extended_frame_bounds = 9;  // DWMWA_EXTENDED_FRAME_BOUNDS
    const Module dwm(L"dwmapi.dll");
    if (!dwm.handle) return {};
    // By way of void(*)(), which no compiler takes for a mistaken cast.
    const auto address = reinterpret_cast<void (*)()>(::GetProcAddress(dwm.handle, "DwmGetWindowAttribute"));
    const auto get_attribute = reinterpret_cast<GetAttribute>(address);
    RECT whole{};
    RECT seen{};
    if (!get_attribute || FAILED(get_attribute(window, extended_frame_bounds, &seen, sizeof seen)) ||
        !::GetWindowRect(window, &whole) || ::IsRectEmpty(&seen)) {
        return {};
    }
    return {seen.left - whole.left, seen.top - whole.top, whole.right - seen.right, whole.bottom - seen.bottom};
}

LONG part(LONG from, LONG to, double share) {
    return from + static_cast<LONG>(std::lround(static_cast<double>(to - from) * share));
}

}  // namespace

bool Win32Screen::place(automation::Object& application, const std::optional<brvblib::Share>& share) const {
    const HWND window = window_of(application);
    if (!window) return false;
    if (!share) {
        ::ShowWindow(window, SW_MAXIMIZE);
        return true;
    }
    // Asked before restoring, which may take the window to the screen where it stood before it was maximised.
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    if (!::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &screen)) return false;
    if (::IsZoomed(window) || ::IsIconic(window)) ::ShowWindow(window, SW_RESTORE);
    const RECT& area = screen.rcWork;
    const RECT border = invisible_borders(window);
    const LONG left = part(area.left, area.right, share->left) - border.left;
    const LONG top = part(area.top, area.bottom, share->top) - border.top;
    const LONG right = part(area.left, area.right, share->left + share->width) + border.right;
    const LONG bottom = part(area.top, area.bottom, share->top + share->height) + border.bottom;
    return ::SetWindowPos(window, nullptr, left, top, right - left, bottom - top, SWP_NOZORDER | SWP_NOACTIVATE) != 0;
}

}  // namespace kestrune::windows
