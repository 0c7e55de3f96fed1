#include "excel/Worksheet.h"

#include "excel/Workbook.h"

namespace kestrune::excel {

Workbook Worksheet::Parent() const { return get<Workbook>("Parent"); }

}  // namespace kestrune::excel
