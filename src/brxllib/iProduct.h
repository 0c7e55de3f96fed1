#pragma once

#include <memory>
#include <string>
#include <utility>

#include "automation/MemberTable.h"
#include "brxllib/Library.h"

namespace kestrune::brxllib {

// The products that use the library.
class iProduct : public automation::Served<iProduct> {
  public:
    explicit iProduct(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    // Registering a name again replaces what was said before.
    void register_client(const std::string& client_name, const std::string& product_name, const std::string& title);

    std::shared_ptr<Library> library_;
};

}  // namespace kestrune::brxllib
