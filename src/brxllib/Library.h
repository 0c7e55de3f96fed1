#pragma once

#include <map>
#include <string>

#include "automation/Object.h"
#include "automation/Text.h"
#include "automation/Trace.h"
#include "brxllib/Surroundings.h"
#include "brxllib/undo/Stack.h"
#include "excel/Application.h"

namespace kestrune::brxllib {

// A program that uses the library.
struct Client {
    std::string product_name;
    std::string title;
};

// What the library's objects share.
struct Library {
    const automation::Trace& trace;  // outlives the library
    excel::Application application;  // Nothing until a client hands it over
    std::map<std::string, Client, automation::TextLess> clients;
    Surroundings around;
    // What clients gave the library to call back, by the clients' names.
    std::map<std::string, automation::ObjectRef, automation::TextLess> callbacks{};
    undo::Stack undo{};
};

}  // namespace kestrune::brxllib
