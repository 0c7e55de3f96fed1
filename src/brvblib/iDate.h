#pragma once

#include <memory>
#include <string>
#include <utility>

#include "automation/MemberTable.h"
#include "brvblib/Library.h"

namespace kestrune::brvblib {

// Dates and the clock.
class iDate : public automation::Served<iDate> {
  public:
    explicit iDate(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    [[nodiscard]] automation::Value now() const { return library_->services.now(); }
    // A date as en-US shows it, "11/22/2026 9:05:00 PM"; the present one when none is given.
    [[nodiscard]] std::string text(const automation::Value& date) const;
    // As Visual Basic's DateAdd: Interval is "yyyy", "q", "m", "d", "ww", "h", "n", "s" ...
    [[nodiscard]] automation::Value date_add(const std::string& interval, double number,
                                             const automation::Value& date) const;
    // The date that a person typed (TypedDate.h); Empty when it is none.
    [[nodiscard]] automation::Value typed(const std::string& text) const;

    std::shared_ptr<Library> library_;
};

}  // namespace kestrune::brvblib
