#include "windows/Swatch.h"

#include <windows.h>

#include <olectl.h>

#include <algorithm>
#include <vector>

#include "automation/AutomationError.h"
#include "windows/com/ComPtr.h"
#include "windows/com/Objects.h"

namespace kestrune::windows {
namespace {

constexpr int side = 16;  // pixels, as Office's icons have
constexpr COLORREF edge = RGB(128, 128, 128);

[[noreturn]] void fail(std::int32_t result) {
    throw automation::AutomationError(automation::hresult::of(static_cast<std::uint32_t>(result)), "swatch",
                                      "Windows made no picture");
}

HBITMAP draw(COLORREF color) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = side;
    info.bmiHeader.biHeight = side;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    void* pixels = nullptr;
    HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    if (!bitmap || !pixels) return nullptr;
    auto* at = static_cast<BYTE*>(pixels);  // 48 bytes a row: none of them is padding
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const bool inside = std::min(x, y) > 0 && std::max(x, y) < side - 1;
            const COLORREF pixel = inside ? color : edge;
            *at++ = GetBValue(pixel);
            *at++ = GetGValue(pixel);
            *at++ = GetRValue(pixel);
        }
    }
    return bitmap;
}

}  // namespace

automation::Value swatch(std::int32_t color) {
    PICTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.picType = PICTYPE_BITMAP;
    description.bmp.hbitmap = draw(static_cast<COLORREF>(color) & 0xFFFFFF);
    if (!description.bmp.hbitmap) fail(E_OUTOFMEMORY);
    ComPtr<IDispatch> picture;
    // The picture owns the bitmap and deletes it.
    const HRESULT result = OleCreatePictureIndirect(&description, IID_IPictureDisp, TRUE,
                                                    reinterpret_cast<void**>(picture.GetAddressOf()));
    if (FAILED(result)) {
        DeleteObject(description.bmp.hbitmap);
        fail(result);
    }
    return object_of(picture.Get());
}

}  // namespace kestrune::windows
