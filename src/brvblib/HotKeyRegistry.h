#pragma once

#include <memory>
#include <string>
#include <utility>

#include "automation/MemberTable.h"
#include "brvblib/Library.h"

namespace kestrune::brvblib {

// Who is called when a hot key is pressed. One for all clients of a library.
class HotKeyRegistry : public automation::Served<HotKeyRegistry> {
  public:
    explicit HotKeyRegistry(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    // Registering a name again replaces its callback. Fails with object-required for Nothing.
    void register_callback(const std::string& client_name, const automation::ObjectRef& callback);
    // Whether the client had one. A client that is unregistered from the library loses it as well.
    bool unregister_callback(const std::string& client_name);
    // A client's callback; Nothing when it has none.
    [[nodiscard]] automation::ObjectRef callback(const std::string& client_name) const;

    // The constant text of the product on whose behalf keys run.
    [[nodiscard]] std::string product() const { return product_; }
    void set_product(const std::string& text) { product_ = text; }

    std::shared_ptr<Library> library_;
    std::string product_;
};

}  // namespace kestrune::brvblib
