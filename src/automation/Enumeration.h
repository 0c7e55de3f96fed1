#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "automation/Object.h"

namespace kestrune::automation {

// Where For Each looks for a collection's enumeration: the hidden member _NewEnum under OLE's DISPID_NEWENUM.
inline constexpr std::int32_t enumeration_id = -4;
inline constexpr std::string_view enumeration_member = "_NewEnum";

// What a collection's _NewEnum answers: its items one after another. On Windows, an IEnumVARIANT; it has no members.
class Enumeration : public Object {
  public:
    // The next item; nothing behind the last one.
    virtual std::optional<Value> next() = 0;
    // Back to the first item.
    virtual void reset() = 0;
    // Another one that goes on from the same place.
    [[nodiscard]] virtual std::shared_ptr<Enumeration> clone() const = 0;

    Value invoke(std::string_view member, Call kind, Arguments& arguments) override;
    [[nodiscard]] std::string_view type_name() const override { return "Unknown"; }
};

// Items as they are now, so that a loop may delete them.
[[nodiscard]] std::shared_ptr<Enumeration> enumerate(std::vector<Value> items);
// `count` items that are made when they are asked for, by their numbers from 0.
[[nodiscard]] std::shared_ptr<Enumeration> enumerate(std::int64_t count, std::function<Value(std::int64_t)> item);

// All items of a collection, as For Each goes through them. Fails as the collection does, with type-mismatch when its
// _NewEnum answers something else.
[[nodiscard]] std::vector<Value> items(Object& collection);

}  // namespace kestrune::automation
