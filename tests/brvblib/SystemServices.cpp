#include "brvblib/SystemServices.h"

#include "native/PosixFiles.h"
#include "native/PugiXmlParser.h"

namespace kestrune::brvblib {

void add_system_services(Services& services) {
    services.files = std::make_shared<native::PosixFiles>();
    services.xml = std::make_shared<native::PugiXmlParser>();
}

}  // namespace kestrune::brvblib
