#pragma once

#include <span>
#include <string>
#include <string_view>

#include "formula/Edit.h"
#include "host/model/LyingThings.h"
#include "host/xlsx/SheetLayout.h"
#include "host/xlsx/package/Package.h"

namespace kestrune::host {

// What lies on a sheet. Its own text is as it was before `edits`, the parts that belong to it have followed them.
[[nodiscard]] LyingThings read_lying(const Package& package, const std::string& sheet_part, std::string_view text,
                                     const SheetLayout& layout, std::span<const formula::Edit> edits);

}  // namespace kestrune::host
