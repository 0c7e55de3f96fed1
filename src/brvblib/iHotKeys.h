#pragma once

#include <memory>

#include "automation/MemberTable.h"
#include "brvblib/HotKeyRegistry.h"

namespace kestrune::brvblib {

// Hot keys: where clients register what a key press calls.
class iHotKeys : public automation::Served<iHotKeys> {
  public:
    explicit iHotKeys(const std::shared_ptr<Library>& library) : registry_(std::make_shared<HotKeyRegistry>(library)) {}
    static const automation::MemberTable& members();

  private:
    [[nodiscard]] std::shared_ptr<HotKeyRegistry> registry() const { return registry_; }

    std::shared_ptr<HotKeyRegistry> registry_;
};

}  // namespace kestrune::brvblib
