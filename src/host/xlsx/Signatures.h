#pragma once

#include "host/xlsx/package/Package.h"

namespace kestrune::host {

// Whether somebody signed the package (ECMA-376 part 2, clause 12). The signature of a VBA project is another thing: it
// holds as long as the project stays, which it does.
[[nodiscard]] bool is_signed(const Package& package);

// Takes the signatures away, with the certificates that came along.
void remove_signatures(Package& package);

}  // namespace kestrune::host
