#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>

#include "automation/Object.h"
#include "automation/Text.h"
#include "brvblib/Services.h"
#include "brvblib/hotkeys/HotKeys.h"

namespace kestrune::brvblib {

// A program that uses the library.
struct Client {
    std::string product_name;
    std::string title;
};

// What the library's objects share.
struct Library {
    Library(Services given, std::shared_ptr<HotKeys> keys) : services(std::move(given)), hot_keys(std::move(keys)) {}
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    // A client that goes without a word leaves no keys bound.
    ~Library();

    // The services that the operation which asks cannot do without: object-required when the program gave none.
    [[nodiscard]] const Files& files() const;
    [[nodiscard]] const XmlParser& xml() const;
    [[nodiscard]] const Desktop& desktop() const;

    Services services;
    automation::ObjectRef application{};  // Excel's Application; Nothing until a client hands it over
    std::map<std::string, Client, automation::TextLess> clients{};
    std::shared_ptr<HotKeys> hot_keys;  // of all the libraries in this process
    // The clients that registered a call-back for them here; it goes when its client does.
    std::set<std::string, automation::TextLess> hot_key_clients{};
};

}  // namespace kestrune::brvblib
