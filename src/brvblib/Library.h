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
    // The services that the operation which asks cannot do without: object-required when the program gave none.
    [[nodiscard]] const Files& files() const;
    [[nodiscard]] const XmlParser& xml() const;
    [[nodiscard]] const Desktop& desktop() const;

    Services services;
    automation::ObjectRef application{};  // Excel's Application; Nothing until a client hands it over
    std::map<std::string, Client, automation::TextLess> clients{};
    // What hot keys call, by client; it goes when its client does.
    std::map<std::string, automation::ObjectRef, automation::TextLess> hot_key_callbacks{};
};

}  // namespace kestrune::brvblib
