#pragma once

#include <map>
#include <string>

#include "automation/Object.h"
#include "automation/Text.h"
#include "automation/Trace.h"
#include "brvblib/ProductSettings.h"

namespace kestrune::brvblib {

// A program that uses the library.
struct Client {
    std::string product_name;
    std::string title;
};

// What the library's objects share.
struct Library {
    const automation::Trace& trace;  // outlives the library
    ProductSettings settings;
    automation::ObjectRef application;  // Excel's Application; Nothing until a client hands it over
    std::map<std::string, Client, automation::TextLess> clients;
};

}  // namespace kestrune::brvblib
