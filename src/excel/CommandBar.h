#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "excel/CommandBarControls.h"

namespace kestrune::excel {

// A menu bar, a toolbar or a context menu.
class CommandBar : public Facade<CommandBar> {
  public:
    static constexpr std::string_view class_name = "CommandBar";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Controls", Access::get},
        {"Delete", Access::method},
        {"Name", Access::get},
        {"Visible", Access::get_put},
    });
    using Facade::Facade;

    [[nodiscard]] CommandBarControls Controls() const { return get<CommandBarControls>("Controls"); }
    void Delete() const { call("Delete"); }
    [[nodiscard]] std::string Name() const { return get<std::string>("Name"); }
    [[nodiscard]] bool Visible() const { return get<bool>("Visible"); }
    void Visible(bool on) const { put("Visible", on); }
};

}  // namespace kestrune::excel
