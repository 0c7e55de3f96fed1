#pragma once

#include <map>
#include <string>

#include "automation/Object.h"
#include "automation/Text.h"
#include "brvblib/Services.h"

namespace kestrune::brvblib {

// A program that uses the library.
struct Client {
    std::string product_name;
    std::string title;
};

// What the library's objects share.
struct Library {
    Services services;
    automation::ObjectRef application{};  // Excel's Application; Nothing until a client hands it over
    std::map<std::string, Client, automation::TextLess> clients{};
    // What hot keys call, by client; it goes when its client does.
    std::map<std::string, automation::ObjectRef, automation::TextLess> hot_key_callbacks{};
};

}  // namespace kestrune::brvblib
