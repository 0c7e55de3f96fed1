#include "windows/dll/BoxWatcher.h"

#include <array>
#include <chrono>

#include "windows/TakePicture.h"
#include "windows/com/Unicode.h"

namespace kestrune::windows {
namespace {

std::string text_of(HWND window) {
    std::array<wchar_t, 1024> text{};
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return to_utf8(text.data());
}

bool is_of_class(HWND window, std::wstring_view wanted) {
    std::array<wchar_t, 64> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return lstrcmpiW(name.data(), wanted.data()) == 0;
}

std::string icon_of(HWND box) {
    for (HWND child = nullptr; (child = FindWindowExW(box, child, L"Static", nullptr));) {
        const auto icon = reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0));
        if (!icon) continue;
        // The system's icons are shared within a process.
        if (icon == LoadIconW(nullptr, IDI_HAND)) return "critical";
        if (icon == LoadIconW(nullptr, IDI_QUESTION)) return "question";
        if (icon == LoadIconW(nullptr, IDI_EXCLAMATION)) return "exclamation";
        if (icon == LoadIconW(nullptr, IDI_ASTERISK)) return "information";
    }
    return "none";
}

SeenBox read(HWND box) {
    SeenBox seen{text_of(box), {}, icon_of(box), {}};
    for (HWND child = nullptr; (child = FindWindowExW(box, child, nullptr, nullptr));) {
        if (!(GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE)) continue;
        if (is_of_class(child, L"Button")) seen.buttons.push_back(text_of(child));
        if (is_of_class(child, L"Static") && !text_of(child).empty()) seen.text += text_of(child);
        // Wine shows the text in an edit control that looks like a label.
        if (is_of_class(child, L"Edit")) seen.text += text_of(child);
    }
    return seen;
}

BOOL CALLBACK keep_box(HWND window, LPARAM found) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != GetCurrentProcessId() || !IsWindowVisible(window) || !is_of_class(window, L"#32770")) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

}  // namespace

BoxWatcher::BoxWatcher(std::filesystem::path picture) : picture_(std::move(picture)), thread_([this] { watch(); }) {}

BoxWatcher::~BoxWatcher() { stop(); }

std::vector<SeenBox> BoxWatcher::stop() {
    stopping_ = true;
    if (thread_.joinable()) thread_.join();
    return boxes_;
}

void BoxWatcher::watch() {
    using namespace std::chrono_literals;
    while (!stopping_) {
        std::this_thread::sleep_for(50ms);
        HWND box = nullptr;
        EnumWindows(keep_box, reinterpret_cast<LPARAM>(&box));
        if (!box) continue;
        std::this_thread::sleep_for(300ms);  // until it is painted
        boxes_.push_back(read(box));
        if (boxes_.size() == 1) take_picture(box, picture_);
        // Enter, as the person would press it.
        PostMessageW(box, WM_COMMAND, MAKEWPARAM(SendMessageW(box, DM_GETDEFID, 0, 0), BN_CLICKED), 0);
        while (IsWindow(box)) std::this_thread::sleep_for(10ms);
    }
}

}  // namespace kestrune::windows
