#pragma once

#include <cstdint>

#include "host/model/Workbook.h"

namespace kestrune::host {

// The 0-based place of a sheet among its workbook's tabs.
inline std::int32_t position_of(const Sheet& sheet) {
    const auto& sheets = sheet.workbook().sheets();
    std::int32_t position = 0;
    while (sheets[static_cast<std::size_t>(position)].get() != &sheet) ++position;
    return position;
}

}  // namespace kestrune::host
