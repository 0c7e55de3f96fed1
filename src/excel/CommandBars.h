#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "excel/CommandBar.h"

namespace kestrune::excel {

// The application's menus and toolbars; positions from 1.
class CommandBars : public Facade<CommandBars> {
  public:
    static constexpr std::string_view class_name = "CommandBars";
    static constexpr auto members = std::to_array<MemberRow>({
        {"ActionControl", Access::get},
        {"Add", Access::method, "Name Position MenuBar Temporary"},
        {"FindControl", Access::method, "Type Id Tag Visible"},
        {"Item", Access::get, "Index!"},
    });
    using Facade::Facade;

    // The control whose action runs; Nothing outside of one.
    [[nodiscard]] CommandBarControl ActionControl() const { return get<CommandBarControl>("ActionControl"); }
    // A toolbar (MsoBarPosition), not visible yet.
    CommandBar Add(std::string_view name, std::int32_t position, bool temporary) const {
        return call<CommandBar>("Add", name, position, false, temporary);
    }
    // The first control with a tag on any bar; Nothing when there is none.
    [[nodiscard]] CommandBarControl FindControl(std::string_view tag) const {
        return call<CommandBarControl>("FindControl", automation::Missing{}, automation::Missing{}, tag);
    }
    // Fails when there is no such bar.
    [[nodiscard]] CommandBar Item(Value index) const { return get<CommandBar>("Item", std::move(index)); }
};

}  // namespace kestrune::excel
