#include "excel/FormatCondition.h"

#include "excel/Range.h"

namespace kestrune::excel {

Range FormatCondition::AppliesTo() const { return get<Range>("AppliesTo"); }
void FormatCondition::ModifyAppliesToRange(const Range& range) const { call("ModifyAppliesToRange", range.object()); }

}  // namespace kestrune::excel
