#pragma once

#include <array>
#include <cstdint>

#include "excel/CommandBarControl.h"

namespace kestrune::excel {

// The controls of a bar or a popup; positions from 1.
class CommandBarControls : public Facade<CommandBarControls> {
  public:
    static constexpr std::string_view class_name = "CommandBarControls";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Add", Access::method, "Type Id Parameter Before Temporary"},
        {"Count", Access::get},
        {"Item", Access::get, "Index!"},
    });
    using Facade::Facade;

    // A new control (MsoControlType); before: a position, or Missing for the end. A temporary one goes when Excel ends.
    CommandBarControl Add(std::int32_t type, Value before, bool temporary) const {
        return call<CommandBarControl>("Add", type, 1, "", std::move(before), temporary);
    }
    [[nodiscard]] std::int32_t Count() const { return get<std::int32_t>("Count"); }
    [[nodiscard]] CommandBarControl Item(Value index) const { return get<CommandBarControl>("Item", std::move(index)); }
};

}  // namespace kestrune::excel
