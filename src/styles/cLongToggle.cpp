#include "styles/cLongToggle.h"

#include <algorithm>

namespace kestrune::styles {

std::shared_ptr<cLongToggle> cLongToggle::Copy() const { return std::make_shared<cLongToggle>(*this); }

bool cLongToggle::IncludesSetting(double value, bool as_read) const {
    const std::vector<double>& values = as_read ? LookFors : Settings;
    return std::ranges::find(values, value) != values.end();
}

}  // namespace kestrune::styles
