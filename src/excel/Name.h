#pragma once

#include <array>
#include <string>

#include "excel/Facade.h"

namespace kestrune::excel {

// A defined name.
class Name : public Facade<Name> {
  public:
    static constexpr std::string_view class_name = "Name";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Comment", Access::get_put},
        {"Delete", Access::method},
        {"Name", Access::get_put},
        {"RefersTo", Access::get_put},
        {"RefersToR1C1", Access::get_put},
        {"RefersToRange", Access::get},
        {"Visible", Access::get_put},
    });
    using Facade::Facade;

    [[nodiscard]] std::string Comment() const { return get<std::string>("Comment"); }
    void Comment(std::string_view text) const { put("Comment", text); }
    void Delete() const { call("Delete"); }
    // With the sheet in front when the name belongs to one ("Sheet1!Rate"). The class's own name
    // cannot name a member, hence the shorter words.
    [[nodiscard]] std::string text() const { return get<std::string>("Name"); }
    void rename(std::string_view name) const { put("Name", name); }
    [[nodiscard]] std::string RefersTo() const { return get<std::string>("RefersTo"); }  // "=Sheet1!$A$1"
    void RefersTo(std::string_view formula) const { put("RefersTo", formula); }
    // Relative references count from the cell that uses the name.
    [[nodiscard]] std::string RefersToR1C1() const { return get<std::string>("RefersToR1C1"); }
    void RefersToR1C1(std::string_view formula) const { put("RefersToR1C1", formula); }
    // Fails for a name that stands for no range.
    [[nodiscard]] ObjectRef RefersToRange() const { return get<ObjectRef>("RefersToRange"); }
    [[nodiscard]] bool Visible() const { return get<bool>("Visible"); }
    void Visible(bool visible) const { put("Visible", visible); }
};

}  // namespace kestrune::excel
