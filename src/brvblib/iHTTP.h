#pragma once

#include <memory>
#include <string>
#include <utility>

#include "automation/MemberTable.h"
#include "brvblib/Library.h"

namespace kestrune::brvblib {

// The web, as far as the products use it: pages that are opened in the user's browser.
class iHTTP : public automation::Served<iHTTP> {
  public:
    explicit iHTTP(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    // Addresses of http and https only: anything else could start a program.
    void open(const std::string& address) const;

    std::shared_ptr<Library> library_;
};

}  // namespace kestrune::brvblib
