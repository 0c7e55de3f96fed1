#include "excel/Hyperlink.h"

#include "excel/Range.h"

namespace kestrune::excel {

Range Hyperlink::Range() const { return get<excel::Range>("Range"); }

}  // namespace kestrune::excel
