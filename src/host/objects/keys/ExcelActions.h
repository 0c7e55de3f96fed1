#pragma once

#include "host/objects/HostSession.h"
#include "keys/Key.h"

namespace kestrune::host {

// Does what a key does in Excel, as far as that needs neither a screen nor a person to go on. Whether it was such a
// key.
bool act_as_excel(HostSession& session, const keys::Key& key);

}  // namespace kestrune::host
