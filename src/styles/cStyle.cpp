#include "styles/cStyle.h"

#include "styles/cStyles.h"

namespace kestrune::styles {

std::int32_t cStyle::MyIndex() const { return holder_ ? holder_->position_of(*this) : 0; }

std::shared_ptr<cStyle> cStyle::Copy() const { return std::make_shared<cStyle>(StyleFields(*this)); }

}  // namespace kestrune::styles
