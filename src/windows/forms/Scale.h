#pragma once

#include <windows.h>

#include "forms/Layout.h"

namespace kestrune::windows {

// How large things are on the screen where a window stands: dots per inch, and Windows' font for dialogs at that size.
class Scale {
  public:
    // Of a window, or of the main screen for null.
    explicit Scale(HWND window);
    // Of so many dots per inch.
    explicit Scale(UINT dpi);
    ~Scale();
    Scale(const Scale&) = delete;
    Scale& operator=(const Scale&) = delete;

    [[nodiscard]] UINT dpi() const { return dpi_; }
    [[nodiscard]] HFONT font() const { return font_; }
    [[nodiscard]] int pixels(double points) const;
    [[nodiscard]] double points(int pixels) const;
    // The pixels that a window takes up around an inside, by its styles.
    [[nodiscard]] SIZE outside(SIZE inside, DWORD style, DWORD extended_style) const;

  private:
    UINT dpi_;
    HFONT font_;
};

// Texts as Windows draws them.
class ScreenMeasures final : public forms::Measures {
  public:
    explicit ScreenMeasures(const Scale& scale);
    ~ScreenMeasures() override;
    ScreenMeasures(const ScreenMeasures&) = delete;
    ScreenMeasures& operator=(const ScreenMeasures&) = delete;

    [[nodiscard]] forms::Size text(std::string_view text, double width) const override;

  private:
    const Scale& scale_;
    HDC screen_;
    HGDIOBJ before_;
};

}  // namespace kestrune::windows
