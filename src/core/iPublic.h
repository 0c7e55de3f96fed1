#pragma once

#include <memory>
#include <utility>

#include "automation/MemberTable.h"
#include "core/bridges/SharedState.h"

namespace kestrune::core {

class iGlobal;

// The add-in's entry object, which the companion workbook creates when Excel starts.
class iPublic : public automation::Served<iPublic> {
  public:
    explicit iPublic(std::shared_ptr<SharedState> shared) : shared_(std::move(shared)) {}
    // Shuts the add-in down.
    ~iPublic() override;
    static const automation::MemberTable& members();

  private:
    // Loads the add-in into Excel's Application for its companion workbook; the object itself. Only the first call
    // does anything.
    std::shared_ptr<iPublic> new_public(const automation::ObjectRef& application,
                                        const automation::ObjectRef& workbook);
    // A command object of its own for every call; Nothing before NewPublic.
    [[nodiscard]] std::shared_ptr<iGlobal> new_global() const;

    std::shared_ptr<SharedState> shared_;
    bool opened_ = false;
};

}  // namespace kestrune::core
