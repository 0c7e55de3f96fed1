#include <memory>

#include "contract_application/Excel.h"
#include "host/objects/HostSession.h"

namespace kestrune::contract {

automation::ObjectRef new_excel() { return make_application(*std::make_shared<host::HostSession>()); }

}  // namespace kestrune::contract
