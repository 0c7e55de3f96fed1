#pragma once

#include <memory>
#include <string>
#include <utility>

#include "automation/MemberTable.h"
#include "core/bridges/SharedState.h"

namespace kestrune::core {

// What the spreadsheet library asks of this product while it undoes and colours.
class diUndoRedo : public automation::Served<diUndoRedo> {
  public:
    explicit diUndoRedo(std::shared_ptr<SharedState> shared) : shared_(std::move(shared)) {}
    static const automation::MemberTable& members();

  private:
    [[nodiscard]] std::string product() const;
    // Undone steps run no macro of this product.
    void run_macro(const std::string&) {}
    // Whether AutoColor leaves cells alone whose font has this colour (BGR).
    [[nodiscard]] bool do_not_auto_color(const automation::Value& color) const;

    std::shared_ptr<SharedState> shared_;
};

}  // namespace kestrune::core
