#pragma once

#include <string>

#include "brvblib/ProductStore.h"

namespace kestrune::windows {

// Product values from the registry, under Software\<maker>\<product>: those of the machine, and those of the user for
// an installation of their own, where the machine has none. Texts (environment variables in them replaced), 32-bit
// numbers. On 64-bit Windows the product's own half of the registry is asked first, then the other: a 64-bit installer
// serves a 32-bit Excel too. Values of other kinds are Empty, as absent ones are. Read when asked, since an
// administrator may change them while Excel runs.
class RegistryProductStore : public brvblib::ProductStore {
  public:
    explicit RegistryProductStore(std::string_view key = "Software\\Brannoch\\Kestrune");

    [[nodiscard]] automation::Value value(std::string_view name) const override;

  private:
    std::wstring key_;
};

}  // namespace kestrune::windows
