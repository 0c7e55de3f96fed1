#pragma once

#include <array>
#include <cstdint>

#include "excel/Facade.h"

namespace kestrune::excel {

// A window on a workbook. The display settings belong to the sheet that it shows.
class Window : public Facade<Window> {
  public:
    static constexpr std::string_view class_name = "Window";
    static constexpr auto members = std::to_array<MemberRow>({
        {"ActiveSheet", Access::get},
        {"DisplayGridlines", Access::get_put},
        {"DisplayHeadings", Access::get_put},
        {"ScrollColumn", Access::get_put},
        {"ScrollRow", Access::get_put},
        {"WindowState", Access::get_put},
        {"Zoom", Access::get_put},
    });
    using Facade::Facade;

    [[nodiscard]] ObjectRef ActiveSheet() const { return get<ObjectRef>("ActiveSheet"); }
    [[nodiscard]] bool DisplayGridlines() const { return get<bool>("DisplayGridlines"); }
    void DisplayGridlines(bool shown) const { put("DisplayGridlines", shown); }
    [[nodiscard]] bool DisplayHeadings() const { return get<bool>("DisplayHeadings"); }
    void DisplayHeadings(bool shown) const { put("DisplayHeadings", shown); }
    // The first column and row that are seen, of the part that scrolls.
    [[nodiscard]] std::int32_t ScrollColumn() const { return get<std::int32_t>("ScrollColumn"); }
    void ScrollColumn(std::int32_t column) const { put("ScrollColumn", column); }
    [[nodiscard]] std::int32_t ScrollRow() const { return get<std::int32_t>("ScrollRow"); }
    void ScrollRow(std::int32_t row) const { put("ScrollRow", row); }
    [[nodiscard]] std::int32_t WindowState() const { return get<std::int32_t>("WindowState"); }  // XlWindowState
    void WindowState(std::int32_t state) const { put("WindowState", state); }
    // Per cent, 10 to 400; a write outside fails.
    [[nodiscard]] std::int32_t Zoom() const { return get<std::int32_t>("Zoom"); }
    void Zoom(std::int32_t percent) const { put("Zoom", percent); }
};

}  // namespace kestrune::excel
