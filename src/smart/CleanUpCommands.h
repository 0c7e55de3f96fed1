#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"
#include "excel/Workbook.h"

namespace kestrune::smart {

// Command bodies. Each asks first, and tells when it is done; neither does or says anything without a workbook.

// Deletes the names of the active workbook whose references are no longer valid.
void RemoveInvalidRangeNames(core::SharedState& shared, std::int32_t);
// Deletes its custom number formats that nothing uses.
void RemoveUnusedNumberFormats(core::SharedState& shared, std::int32_t);

// The same without question and answer; in the active workbook when given none.
void CollectAndRemoveUnusedFormats(const core::SharedState& shared, excel::Workbook workbook);

}  // namespace kestrune::smart
