#include "excel/Range.h"

#include "excel/Worksheet.h"

namespace kestrune::excel {

Worksheet Range::Parent() const { return get<excel::Worksheet>("Parent"); }
Worksheet Range::Worksheet() const { return get<excel::Worksheet>("Worksheet"); }

}  // namespace kestrune::excel
