#pragma once

#include <initializer_list>
#include <span>
#include <string_view>
#include <vector>

#include "automation/Object.h"
#include "automation/Trace.h"

namespace kestrune::core {

// What the wrappers of the two in-house libraries have in common: a library's public object and the sub-objects
// that it has, fetched once.
class LibraryBridge {
  public:
    LibraryBridge(const LibraryBridge&) = delete;
    LibraryBridge& operator=(const LibraryBridge&) = delete;

    // Creates the library's public object, fetches its sub-objects and registers this client with its product
    // object. False when there is no such library; a sub-object that the library lacks stays Nothing.
    bool Create();

    [[nodiscard]] const automation::ObjectRef& iPublic() const { return public_; }

  protected:
    // names: the sub-objects' names in the library's order; they outlive the bridge.
    LibraryBridge(std::string_view prog_id, std::span<const std::string_view> names, const automation::Trace& trace)
        : trace_(trace), prog_id_(prog_id), names_(names), objects_(names.size()) {}
    // Unregisters the client, then lets go of everything.
    ~LibraryBridge();

    [[nodiscard]] const automation::Trace& trace() const { return trace_; }
    [[nodiscard]] const automation::ObjectRef& object(std::size_t place) const { return objects_[place]; }
    // One call of a sub-object's operation. Fails with object-required when the library has no such sub-object.
    automation::Value call(std::size_t place, std::string_view operation, automation::Arguments arguments = {}) const;

  private:
    const automation::Trace& trace_;
    std::string_view prog_id_;
    std::span<const std::string_view> names_;
    automation::ObjectRef public_;
    std::vector<automation::ObjectRef> objects_;
};

}  // namespace kestrune::core
