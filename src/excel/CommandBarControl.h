#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "excel/Facade.h"

namespace kestrune::excel {

// A control of a menu or a toolbar, whichever kind it is.
class CommandBarControl : public Facade<CommandBarControl> {
  public:
    static constexpr std::string_view class_name = "CommandBarControl";
    static constexpr auto members = std::to_array<MemberRow>({
        {"BeginGroup", Access::get_put},
        {"BuiltIn", Access::get},
        {"Caption", Access::get_put},
        {"Delete", Access::method, "Temporary"},
        {"Enabled", Access::get_put},
        {"Execute", Access::method},
        {"Index", Access::get},
        {"OnAction", Access::get_put},
        {"Parameter", Access::get_put},
        {"Tag", Access::get_put},
        {"TooltipText", Access::get_put},
        {"Type", Access::get},
        {"Visible", Access::get_put},
    });
    using Facade::Facade;

    void BeginGroup(bool on) const { put("BeginGroup", on); }
    [[nodiscard]] bool BuiltIn() const { return get<bool>("BuiltIn"); }
    [[nodiscard]] std::string Caption() const { return get<std::string>("Caption"); }  // "&" marks the access key
    void Caption(std::string_view text) const { put("Caption", text); }
    void Delete() const { call("Delete"); }
    [[nodiscard]] bool Enabled() const { return get<bool>("Enabled"); }
    void Enabled(bool on) const { put("Enabled", on); }
    void Execute() const { call("Execute"); }  // as a click does
    [[nodiscard]] std::int32_t Index() const { return get<std::int32_t>("Index"); }
    void OnAction(std::string_view macro) const { put("OnAction", macro); }
    [[nodiscard]] std::string Parameter() const { return get<std::string>("Parameter"); }
    void Parameter(std::string_view text) const { put("Parameter", text); }
    [[nodiscard]] std::string Tag() const { return get<std::string>("Tag"); }
    void Tag(std::string_view text) const { put("Tag", text); }
    void TooltipText(std::string_view text) const { put("TooltipText", text); }
    [[nodiscard]] std::int32_t Type() const { return get<std::int32_t>("Type"); }  // MsoControlType
    void Visible(bool on) const { put("Visible", on); }
};

}  // namespace kestrune::excel
