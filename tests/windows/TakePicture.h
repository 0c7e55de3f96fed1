#pragma once

#include <windows.h>

#include <filesystem>
#include <fstream>

namespace kestrune::windows {

// Writes a window as it stands on the screen to a bitmap file.
inline void take_picture(HWND window, const std::filesystem::path& file) {
    RECT place{};
    GetWindowRect(window, &place);
    BITMAPINFO info{};
    info.bmiHeader = {
        sizeof info.bmiHeader, place.right - place.left, place.bottom - place.top, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* pixels = nullptr;
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    HGDIOBJ previous = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, info.bmiHeader.biWidth, info.bmiHeader.biHeight, screen, place.left, place.top, SRCCOPY);
    GdiFlush();
    const auto size = static_cast<DWORD>(info.bmiHeader.biWidth * info.bmiHeader.biHeight * 4);
    BITMAPFILEHEADER header{};
    header.bfType = 0x4D42;
    header.bfOffBits = sizeof header + sizeof info.bmiHeader;
    header.bfSize = header.bfOffBits + size;
    std::ofstream out(file, std::ios::binary);
    out.write(reinterpret_cast<const char*>(&header), sizeof header);
    out.write(reinterpret_cast<const char*>(&info.bmiHeader), sizeof info.bmiHeader);
    out.write(static_cast<const char*>(pixels), size);
    SelectObject(memory, previous);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

}  // namespace kestrune::windows
