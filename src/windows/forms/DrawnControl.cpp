#include "windows/forms/DrawnControl.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "windows/com/Unicode.h"

namespace kestrune::windows {
namespace {

using forms::Control;

void draw(const forms::Picture* picture, HDC context, const RECT& box, DWORD ground) {
    if (!picture || picture->width < 1 || picture->height < 1) return;
    // Windows' stretching knows no transparency: what lies below shows through beforehand.
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

}  // namespace

void draw_picture(const Control& control, HDC context, const RECT& box, COLORREF ground) {
    SetDCBrushColor(context, ground);
    FillRect(context, &box, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    draw(control.Picture().get(), context, box, ground);
}

void draw_item(const Control& combo, const Scale& scale, const DRAWITEMSTRUCT& item) {
    const bool chosen = (item.itemState & ODS_SELECTED) != 0;
    const int ground = chosen ? COLOR_HIGHLIGHT : COLOR_WINDOW;
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(ground));
    const auto place = static_cast<std::size_t>(item.itemID);
    if (place >= combo.List().size()) return;
    const int gap = scale.pixels(2);
    const int size = std::max<int>(1, item.rcItem.bottom - item.rcItem.top - 2 * scale.pixels(1.5));
    RECT patch{item.rcItem.left + gap, item.rcItem.top + scale.pixels(1.5), 0, 0};
    patch.right = patch.left + size;
    patch.bottom = patch.top + size;
    const auto& pictures = combo.ItemPictures();
    if (pictures.empty()) patch.right = item.rcItem.left;
    if (place < pictures.size()) draw(pictures[place].get(), item.hDC, patch, GetSysColor(ground));
    const std::wstring text = to_utf16(combo.List()[place]);
    RECT rest{patch.right + 2 * gap, item.rcItem.top, item.rcItem.right, item.rcItem.bottom};
    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, GetSysColor(chosen ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &rest,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void fit_items(HWND combo, const Scale& scale) {
    const int height = scale.pixels(ScreenMeasures(scale).text("Xg", 0).height);
    SendMessageW(combo, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height + scale.pixels(1.5));
    SendMessageW(combo, CB_SETITEMHEIGHT, 0, height + scale.pixels(1.5));
}

}  // namespace kestrune::windows
