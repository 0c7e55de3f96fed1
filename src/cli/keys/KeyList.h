#pragma once

#include <string>
#include <vector>

#include "automation/Object.h"

namespace kestrune::cli {

// A command of the hot-key registry with its key.
struct ListedKey {
    std::string client;
    std::string product;
    std::string command;  // its number, or the macro that it is
    std::string name;
    std::string description;
    std::string group;
    std::string key;          // empty for none
    std::string default_key;  // the same
    std::string status;       // "default", "chosen", "cleared", "conflict with ..."
    std::string in_excel;     // what the key does in Excel by itself
};

// Every command, in the registry's order.
std::vector<ListedKey> listed_keys(automation::Object& registry);

}  // namespace kestrune::cli
