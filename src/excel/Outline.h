#pragma once

#include <array>
#include <cstdint>

#include "excel/Facade.h"

namespace kestrune::excel {

// The outline of a worksheet: its grouped rows and columns.
class Outline : public Facade<Outline> {
  public:
    static constexpr std::string_view class_name = "Outline";
    static constexpr auto members = std::to_array<MemberRow>({
        {"ShowLevels", Access::method, "RowLevels ColumnLevels"},
    });
    using Facade::Facade;

    // 1 hides every grouped row (column), 8 shows all.
    void ShowRowLevels(std::int32_t levels) const { call("ShowLevels", levels); }
    void ShowColumnLevels(std::int32_t levels) const { call("ShowLevels", automation::Missing{}, levels); }
};

}  // namespace kestrune::excel
