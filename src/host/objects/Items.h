#pragma once

#include <utility>
#include <vector>

#include "automation/Enumeration.h"
#include "host/objects/HostObject.h"

namespace kestrune::host {

// What For Each goes through of a collection whose items count from 1.
template <class Collection>
ObjectRef items_of(const Collection& collection) {
    std::vector<Value> items;
    const std::int32_t count = collection.count();
    for (std::int32_t i = 1; i <= count; ++i) {
        if constexpr (requires { collection.item(i); }) {
            items.emplace_back(collection.item(i));
        } else {
            items.emplace_back(collection.item(i, Missing{}, Missing{}));
        }
    }
    return automation::enumerate(std::move(items));
}

// The row of a collection's table that answers its enumeration; the first one, as its id is the lowest.
template <auto Getter>
consteval Member enumeration() {
    return read_only<Getter>(automation::enumeration_member, automation::enumeration_id);
}

}  // namespace kestrune::host
