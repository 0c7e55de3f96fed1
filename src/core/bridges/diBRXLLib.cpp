#include "core/bridges/diBRXLLib.h"

#include "automation/Conversion.h"

namespace kestrune::core {

void diBRXLLib::set_application(const automation::ObjectRef& application) const {
    automation::call(automation::to_required_object(iPublic()), "SetApplication", {application});
}

bool diBRXLLib::may_run_command() const { return automation::to_boolean(call(Workbook, "MayRunCommand")); }

std::int32_t diBRXLLib::nearest_color_index(std::int32_t color, const automation::ObjectRef& workbook) const {
    return automation::to_integer(call(Workbook, "NearestColorIndex", {color, workbook}));
}

}  // namespace kestrune::core
