#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "automation/MemberTable.h"
#include "brvblib/Library.h"

namespace kestrune::brvblib {

// The screen and what stands on it.
class iScreen : public automation::Served<iScreen> {
  public:
    explicit iScreen(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    // Places a window: 0 is the application's own, any other a bad index. Placements: 1 maximised, 2 top half,
    // 3 bottom half, 4 left half, 5 right half, 6 centred; any other a bad index. Fails without an application.
    void place(std::int32_t window, std::int32_t placement) const;

    std::shared_ptr<Library> library_;
};

}  // namespace kestrune::brvblib
