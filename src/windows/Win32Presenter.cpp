#include "windows/Win32Presenter.h"

#include <windows.h>

#include <commdlg.h>

#include <array>
#include <cstring>

#include "windows/com/Unicode.h"
#include "windows/forms/FormWindow.h"

namespace kestrune::windows {
namespace {

using forms::FileDialog;

BOOL CALLBACK keep_excel_window(HWND window, LPARAM found) {
    std::array<wchar_t, 8> class_name{};
    GetClassNameW(window, class_name.data(), static_cast<int>(class_name.size()));
    if (std::wstring_view(class_name.data()) != L"XLMAIN" || !IsWindowVisible(window)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

// Null when the thread has no window, as in a program without any.
HWND owner() {
    HWND window = GetActiveWindow();
    // While another program is in front, no window of ours is active.
    if (!window) EnumThreadWindows(GetCurrentThreadId(), keep_excel_window, reinterpret_cast<LPARAM>(&window));
    return window;
}

// Visual Basic's values are Windows' own, but a set of buttons that does not exist is OK alone rather than a failure.
UINT style_of(std::int32_t buttons) {
    UINT style = static_cast<UINT>(buttons) & (MB_TYPEMASK | MB_ICONMASK | MB_DEFMASK);
    if ((style & MB_TYPEMASK) > MB_RETRYCANCEL) style &= ~static_cast<UINT>(MB_TYPEMASK);
    return style;
}

// What stands between zeros in the dialog's list of filters; the string's own zero ends it.
std::wstring filters_of(const FileDialog& dialog) {
    if (dialog.pattern.empty()) return {};
    return to_utf16((dialog.filter.empty() ? dialog.pattern : dialog.filter) + '\0' + dialog.pattern + '\0');
}

}  // namespace

forms::MsgBoxResult Win32Presenter::answer_to(const forms::Message& message) {
    // Visual Basic's own title for a box that has none.
    const std::string_view caption = message.caption.empty() ? "Microsoft Excel" : std::string_view(message.caption);
    HWND window = owner();
    const int answer = MessageBoxW(window, to_utf16(message.text).c_str(), to_utf16(caption).c_str(),
                                   style_of(message.buttons) | (window ? 0 : MB_TASKMODAL));
    return answer >= IDOK && answer <= IDNO ? static_cast<forms::MsgBoxResult>(answer)
                                            : forms::safe_choice(message.buttons);
}

void Win32Presenter::work(forms::Form& form) { FormWindow(form, owner(), places_).run(); }

bool Win32Presenter::copy(const std::string& text) {
    const std::wstring wide = to_utf16(text);
    const std::size_t bytes = (wide.size() + 1) * sizeof(wchar_t);
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (!memory) return false;
    if (void* place = GlobalLock(memory)) {
        std::memcpy(place, wide.c_str(), bytes);
        GlobalUnlock(memory);
        if (OpenClipboard(owner())) {
            // The clipboard has the memory from then on.
            const bool taken = EmptyClipboard() && SetClipboardData(CF_UNICODETEXT, memory);
            CloseClipboard();
            if (taken) return true;
        }
    }
    GlobalFree(memory);
    return false;
}

std::optional<std::string> Win32Presenter::choose_file(const FileDialog& dialog) {
    constexpr std::size_t longest_path = 32768;
    const bool saving = dialog.purpose == FileDialog::Purpose::Save;
    const std::wstring title = to_utf16(dialog.title);
    const std::wstring filters = filters_of(dialog);
    const std::wstring folder = to_utf16(dialog.folder);
    std::wstring path = to_utf16(dialog.proposed);
    path.resize(longest_path);

    OPENFILENAMEW box{};
    box.lStructSize = sizeof box;
    box.hwndOwner = owner();
    box.lpstrTitle = title.empty() ? nullptr : title.c_str();
    box.lpstrFilter = filters.empty() ? nullptr : filters.c_str();
    box.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
    box.lpstrFile = path.data();
    box.nMaxFile = static_cast<DWORD>(path.size());
    // Excel's current folder is the user's: the dialog leaves it alone.
    box.Flags = OFN_EXPLORER | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST |
                (saving ? OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY : OFN_FILEMUSTEXIST | OFN_HIDEREADONLY);
    if (!(saving ? GetSaveFileNameW(&box) : GetOpenFileNameW(&box))) return std::nullopt;
    return forms::path_meant(dialog, to_utf8(path.c_str()));
}

}  // namespace kestrune::windows
