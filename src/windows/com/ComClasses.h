#pragma once

#include <string_view>

#include "automation/Object.h"

namespace kestrune::windows {

// A new object of a class that COM knows by its ProgID. Fails with class-not-registered when it does not, and with
// COM's own code and text when the class's server cannot be loaded.
automation::ObjectRef create_com_object(std::string_view prog_id);

// Lets CreateObject ask COM for the classes that this module did not register itself.
void use_com_classes();

}  // namespace kestrune::windows
