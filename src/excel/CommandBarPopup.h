#pragma once

#include <array>

#include "excel/CommandBarControls.h"

namespace kestrune::excel {

// What popups have beyond other controls.
class CommandBarPopup : public Facade<CommandBarPopup> {
  public:
    static constexpr std::string_view class_name = "CommandBarPopup";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Controls", Access::get},
    });
    using Facade::Facade;

    [[nodiscard]] CommandBarControls Controls() const { return get<CommandBarControls>("Controls"); }
};

}  // namespace kestrune::excel
