#include <windows.h>

#include <gtest/gtest.h>

#include <cstdint>

#include "brvblib/LibraryTest.h"
#include "windows/services/Win32Screen.h"

namespace kestrune::windows {
namespace {

using automation::call;

// As much of Excel as the placing of its window asks: a window and its handle.
struct FakeExcel : automation::Served<FakeExcel> {
    static const automation::MemberTable& members() {
        static constexpr auto rows = automation::member_rows(automation::read_only<&FakeExcel::hwnd>("Hwnd", 1));
        static constexpr automation::MemberTable table("Application", rows);
        return table;
    }
    ~FakeExcel() override { ::DestroyWindow(window); }
    [[nodiscard]] std::int32_t hwnd() const {
        return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(window));
    }
    HWND window = ::CreateWindowExW(0, L"STATIC", L"Excel", WS_OVERLAPPEDWINDOW, 10, 10, 300, 200, nullptr, nullptr,
                                    ::GetModuleHandleW(nullptr), nullptr);
};

struct ScreenTest : brvblib::LibraryTest {
    ScreenTest() {
        services.screen = std::make_shared<Win32Screen>();
        load();
        call(*library, "SetApplication", {excel});
        MONITORINFO screen{};
        screen.cbSize = sizeof screen;
        ::GetMonitorInfoW(::MonitorFromWindow(excel->window, MONITOR_DEFAULTTOPRIMARY), &screen);
        area = screen.rcWork;
    }
    // The window's place in shares of the work area: left, top, right, bottom.
    [[nodiscard]] std::array<double, 4> shares() const {
        RECT now{};
        ::GetWindowRect(excel->window, &now);
        const double width = area.right - area.left;
        const double height = area.bottom - area.top;
        return {(now.left - area.left) / width, (now.top - area.top) / height, (now.right - area.left) / width,
                (now.bottom - area.top) / height};
    }

    std::shared_ptr<FakeExcel> excel = std::make_shared<FakeExcel>();
    RECT area{};
};

TEST_F(ScreenTest, PlacesTheWindowInTheWorkArea) {
    ASSERT_TRUE(excel->window);
    ASSERT_GT(area.right - area.left, 100);
    const struct {
        std::int32_t placement;
        std::array<double, 4> shares;
    } cases[] = {
        {2, {0, 0, 1, 0.5}},
        {3, {0, 0.5, 1, 1}},
        {4, {0, 0, 0.5, 1}},
        {5, {0.5, 0, 1, 1}},
        {6, {0.125, 0.125, 0.875, 0.875}},
    };
    for (const auto& c : cases) {
        // Whatever the window was before.
        ::ShowWindow(excel->window, c.placement % 2 == 0 ? SW_MAXIMIZE : SW_MINIMIZE);
        wrapper.place_window(c.placement);
        EXPECT_FALSE(::IsZoomed(excel->window)) << c.placement;
        EXPECT_FALSE(::IsIconic(excel->window)) << c.placement;
        const auto now = shares();
        for (std::size_t side = 0; side < now.size(); ++side) {
            EXPECT_NEAR(now[side], c.shares[side], 0.01) << c.placement << " side " << side;
        }
    }
    wrapper.place_window(1);
    EXPECT_TRUE(::IsZoomed(excel->window));
}

}  // namespace
}  // namespace kestrune::windows
