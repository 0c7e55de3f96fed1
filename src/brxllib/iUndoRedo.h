#pragma once

#include <memory>
#include <string>
#include <utility>

#include "automation/MemberTable.h"
#include "brxllib/Library.h"

namespace kestrune::brxllib {

// The objects through which the library calls its clients back.
class iUndoRedo : public automation::Served<iUndoRedo> {
  public:
    explicit iUndoRedo(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    // Keeps a client's callback object until the client unregisters. Registering again replaces it; Nothing takes it
    // back.
    void register_callback(const std::string& client_name, const automation::ObjectRef& callback);

    std::shared_ptr<Library> library_;
};

}  // namespace kestrune::brxllib
