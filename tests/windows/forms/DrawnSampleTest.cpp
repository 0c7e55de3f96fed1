#include "windows/forms/DrawnSample.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <vector>

namespace kestrune::windows {
namespace {

using forms::Looks;
using forms::Side;

constexpr int width = 300;
constexpr int height = 100;
constexpr COLORREF ink_color = RGB(200, 0, 0);
constexpr COLORREF fill_color = RGB(255, 255, 153);
constexpr COLORREF line_color = RGB(0, 0, 255);

// A sample as it is drawn, 300 by 100 pixels.
class Drawn {
  public:
    explicit Drawn(const Looks& looks) {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        HDC memory = CreateCompatibleDC(nullptr);
        HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        HGDIOBJ before = SelectObject(memory, bitmap);
        draw_sample(looks, Scale(96), memory, {0, 0, width, height});
        GdiFlush();
        const auto* first = static_cast<const std::uint32_t*>(bits);
        pixels_.assign(first, first + width * height);
        SelectObject(memory, before);
        DeleteObject(bitmap);
        DeleteDC(memory);
    }
    [[nodiscard]] COLORREF at(int x, int y) const {
        const std::uint32_t pixel = pixels_[static_cast<std::size_t>(y * width + x)];
        return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
    }
    // The smallest box around all pixels of a colour; the edges of letters are softened, their insides are not.
    [[nodiscard]] RECT around(COLORREF color) const {
        RECT box{width, height, 0, 0};
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                if (at(x, y) != color) continue;
                box = {std::min<LONG>(box.left, x), std::min<LONG>(box.top, y), std::max<LONG>(box.right, x + 1),
                       std::max<LONG>(box.bottom, y + 1)};
            }
        }
        return box;
    }

  private:
    std::vector<std::uint32_t> pixels_;
};

Looks sample() {
    Looks looks;
    looks.text = "HHHH";
    looks.size = 18;
    looks.bold = true;
    looks.color = static_cast<std::int32_t>(ink_color);
    looks.fill = static_cast<std::int32_t>(fill_color);
    return looks;
}

template <class Change>
RECT ink(Change change) {
    Looks looks = sample();
    change(looks);
    const RECT box = Drawn(looks).around(ink_color);
    EXPECT_LT(box.left, box.right) << "no ink at all";
    return box;
}

LONG across(const RECT& box) { return box.right - box.left; }
LONG down(const RECT& box) { return box.bottom - box.top; }

TEST(DrawnSampleTest, PutsTheTextWhereItBelongs) {
    const RECT cell = Drawn(sample()).around(fill_color);
    EXPECT_LT(across(cell), width - 20) << "neighbours are seen, too";
    const RECT plain = ink([](Looks&) {});
    const RECT right = ink([](Looks& looks) { looks.across = Side::End; });
    const RECT middle = ink([](Looks& looks) { looks.across = Side::Middle; });
    EXPECT_LT(plain.left - cell.left, 10);
    EXPECT_LT(cell.right - right.right, 10);
    EXPECT_NEAR(static_cast<double>(middle.left + middle.right), cell.left + cell.right, 8);
    EXPECT_LT(ink([](Looks& looks) { looks.down = Side::Start; }).top, plain.top - 20);
    EXPECT_EQ(ink([](Looks& looks) { looks.inset = 15; }).left, plain.left + 20);
    EXPECT_EQ(ink([](Looks& looks) {
                  looks.inset = 15;
                  looks.across = Side::End;
              }).right,
              right.right - 20);
}

TEST(DrawnSampleTest, TurnsStacksBreaksRepeatsAndShrinksIt) {
    const RECT plain = ink([](Looks&) {});
    EXPECT_GT(across(plain), 2 * down(plain));
    const RECT upright = ink([](Looks& looks) {
        looks.turn = 90;
        looks.down = Side::Middle;
    });
    EXPECT_NEAR(static_cast<double>(down(upright)), across(plain), 4);
    EXPECT_NEAR(static_cast<double>(across(upright)), down(plain), 4);
    const RECT slanted = ink([](Looks& looks) { looks.turn = -45; });
    EXPECT_NEAR(static_cast<double>(across(slanted)), down(slanted), 6);
    const RECT stacked = ink([](Looks& looks) {
        looks.stacked = true;
        looks.size = 9;
    });
    EXPECT_GT(down(stacked), 3 * across(stacked));
    const RECT wrapped = ink([](Looks& looks) {
        looks.text = "HHHH HHHH HHHH HHHH HHHH HHHH";
        looks.wraps = true;
    });
    EXPECT_GT(down(wrapped), 2 * down(plain));
    EXPECT_GT(across(ink([](Looks& looks) { looks.repeats = true; })), 3 * across(plain));
    const RECT shrunk = ink([](Looks& looks) {
        looks.text = "HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH";
        looks.shrinks = true;
    });
    EXPECT_LT(down(shrunk), down(plain));
    EXPECT_GT(shrunk.left, plain.left - 3) << "all of it is seen";
}

TEST(DrawnSampleTest, DrawsLines) {
    const RECT plain = ink([](Looks&) {});
    EXPECT_GT(across(ink([](Looks& looks) {
                  looks.underlining = forms::Underlining::Single;
                  looks.underlines_box = true;
              })),
              2 * across(plain));
    Looks looks = sample();
    looks.edges[0] = {forms::Dash::Solid, 2.25, static_cast<std::int32_t>(line_color)};
    const RECT left = Drawn(looks).around(line_color);
    EXPECT_EQ(across(left), 3);
    EXPECT_GT(down(left), height / 2);
    looks.edges = {};
    looks.edges[3] = {forms::Dash::Double, 2.25, static_cast<std::int32_t>(line_color)};
    EXPECT_EQ(down(Drawn(looks).around(line_color)), 3) << "two lines and a gap";
    looks.edges[3].dash = forms::Dash::Dashes;
    const Drawn dashed(looks);
    const RECT below = dashed.around(line_color);
    int marks = 0;
    for (int x = below.left; x < below.right; ++x) marks += dashed.at(x, below.top) == line_color;
    EXPECT_GT(across(below), 200);
    EXPECT_LT(marks, across(below) * 3 / 4);
}

}  // namespace
}  // namespace kestrune::windows
