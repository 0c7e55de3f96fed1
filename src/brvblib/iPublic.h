#pragma once

#include <memory>
#include <string>

#include "automation/MemberTable.h"
#include "brvblib/Library.h"

namespace kestrune::brvblib {

// The library's entry object: its sub-objects, and what concerns the library as a whole.
class iPublic : public automation::Served<iPublic> {
  public:
    explicit iPublic(std::shared_ptr<Library> library);
    static const automation::MemberTable& members();

  private:
    // The Excel application whose window and screen updating the library looks after.
    void set_application(const automation::ObjectRef& application) { library_->application = application; }
    // Whether the client was registered. With its last client the library lets go of the application.
    bool unregister_client(const std::string& client_name);

    [[nodiscard]] automation::ObjectRef constants() const { return const_; }
    [[nodiscard]] automation::ObjectRef hot_keys() const { return hot_keys_; }
    [[nodiscard]] automation::ObjectRef product() const { return product_; }
    [[nodiscard]] automation::ObjectRef screen() const { return screen_; }
    [[nodiscard]] automation::ObjectRef strings() const { return string_; }
    [[nodiscard]] automation::ObjectRef xml() const { return xml_; }

    std::shared_ptr<Library> library_;
    automation::ObjectRef const_;
    automation::ObjectRef hot_keys_;
    automation::ObjectRef product_;
    automation::ObjectRef screen_;
    automation::ObjectRef string_;
    automation::ObjectRef xml_;
};

}  // namespace kestrune::brvblib
