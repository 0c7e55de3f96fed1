#pragma once

#include <memory>
#include <string>
#include <utility>

#include "automation/MemberTable.h"
#include "brvblib/Library.h"

namespace kestrune::brvblib {

// What the products ask of the desktop itself.
class iWinAPI : public automation::Served<iWinAPI> {
  public:
    explicit iWinAPI(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    // Opens a document in the program that the user has for it. Fails when it is not there.
    void open(const std::string& path) const;

    std::shared_ptr<Library> library_;
};

}  // namespace kestrune::brvblib
