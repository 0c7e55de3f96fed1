#pragma once

#include <windows.h>

#include <deque>
#include <functional>
#include <string>

#include "windows/com/Unicode.h"

namespace kestrune::windows {

// Does things to the window in front, one after the other, each when everything before it has been dealt with: a
// timer's message comes only when the thread's queue is empty, in message boxes as well.
class Hand {
  public:
    Hand() {
        present() = this;
        timer_ = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &tick);
    }
    ~Hand() {
        KillTimer(nullptr, timer_);
        present() = nullptr;
    }
    Hand(const Hand&) = delete;
    Hand& operator=(const Hand&) = delete;

    void then(std::function<void()> step) { steps_.push_back(std::move(step)); }
    void key(WPARAM key) {
        then([key] { PostMessageW(GetFocus(), WM_KEYDOWN, key, 1); });
        then([key] { PostMessageW(GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001)); });
    }
    void access_key(wchar_t letter) {
        then([letter] { PostMessageW(GetFocus(), WM_SYSCHAR, static_cast<WPARAM>(letter), 0x20000001); });
    }
    void type(const std::wstring& text) {
        for (const wchar_t c : text) then([c] { PostMessageW(GetFocus(), WM_CHAR, static_cast<WPARAM>(c), 1); });
    }
    // Presses the left mouse button on a control of the form in front, counted from 0 in its own order.
    void click(int control) {
        then([control] {
            HWND window = GetDlgItem(GetActiveWindow(), 100 + control);
            PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
            PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
        });
    }
    [[nodiscard]] bool done() const { return steps_.empty(); }

  private:
    static Hand*& present() {
        static Hand* hand = nullptr;
        return hand;
    }
    static void CALLBACK tick(HWND, UINT, UINT_PTR, DWORD) {
        Hand* hand = present();
        if (!hand || hand->steps_.empty() || !GetActiveWindow()) return;
        const auto step = std::move(hand->steps_.front());
        hand->steps_.pop_front();
        step();
    }

    std::deque<std::function<void()>> steps_;
    UINT_PTR timer_ = 0;
};

}  // namespace kestrune::windows
