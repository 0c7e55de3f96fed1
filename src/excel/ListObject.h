#pragma once

#include <array>
#include <string>

#include "excel/Range.h"

namespace kestrune::excel {

// A table of a worksheet.
class ListObject : public Facade<ListObject> {
  public:
    static constexpr std::string_view class_name = "ListObject";
    static constexpr auto members = std::to_array<MemberRow>({
        {"HeaderRowRange", Access::get},
        {"Name", Access::get_put},
        {"Range", Access::get},
        {"ShowHeaders", Access::get_put},
        {"ShowTotals", Access::get_put},
    });
    using Facade::Facade;

    // Nothing while the headers are hidden.
    [[nodiscard]] excel::Range HeaderRowRange() const { return get<excel::Range>("HeaderRowRange"); }
    [[nodiscard]] std::string Name() const { return get<std::string>("Name"); }
    // All of it, headers and totals included.
    [[nodiscard]] excel::Range Range() const { return get<excel::Range>("Range"); }
    [[nodiscard]] bool ShowHeaders() const { return get<bool>("ShowHeaders"); }
    [[nodiscard]] bool ShowTotals() const { return get<bool>("ShowTotals"); }
};

}  // namespace kestrune::excel
