#pragma once

#include <memory>
#include <string>

#include "automation/MemberTable.h"
#include "brxllib/Library.h"

namespace kestrune::brxllib {

// The library's entry object: its sub-objects, and what concerns the library as a whole.
class iPublic : public automation::Served<iPublic> {
  public:
    explicit iPublic(std::shared_ptr<Library> library);
    static const automation::MemberTable& members();

  private:
    // The Excel application that the library works in.
    void set_application(const automation::ObjectRef& application);
    // Whether the client was registered. With its last client the library lets go of the application.
    bool unregister_client(const std::string& client_name);

    [[nodiscard]] automation::ObjectRef product() const { return product_; }
    [[nodiscard]] automation::ObjectRef workbook() const { return workbook_; }

    std::shared_ptr<Library> library_;
    automation::ObjectRef product_;
    automation::ObjectRef workbook_;
};

}  // namespace kestrune::brxllib
