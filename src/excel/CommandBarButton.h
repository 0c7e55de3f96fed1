#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "excel/Facade.h"

namespace kestrune::excel {

// What buttons have beyond other controls.
class CommandBarButton : public Facade<CommandBarButton> {
  public:
    static constexpr std::string_view class_name = "CommandBarButton";
    static constexpr auto members = std::to_array<MemberRow>({
        {"FaceId", Access::get_put},
        {"Picture", Access::get_put},
        {"ShortcutText", Access::get_put},
        {"State", Access::get_put},
        {"Style", Access::get_put},
    });
    using Facade::Facade;

    void FaceId(std::int32_t id) const { put("FaceId", id); }  // the number of one of Office's icons
    void Picture(Value picture) const { put("Picture", std::move(picture)); }
    void ShortcutText(std::string_view text) const { put("ShortcutText", text); }
    [[nodiscard]] std::int32_t State() const { return get<std::int32_t>("State"); }  // MsoButtonState
    void State(std::int32_t state) const { put("State", state); }
    void Style(std::int32_t style) const { put("Style", style); }  // MsoButtonStyle
};

}  // namespace kestrune::excel
