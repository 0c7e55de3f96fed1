#include "excel/Areas.h"

#include "excel/Range.h"

namespace kestrune::excel {

Range Areas::Item(std::int32_t index) const { return get<Range>("Item", index); }

}  // namespace kestrune::excel
