#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "smart/trace/TraceForm.h"

namespace kestrune::smart {

// The dialog of Smart Dependents: the cells whose formulas refer to the active cell, all of them or those of one sheet.
class fSmartDependents : public TraceForm {
  public:
    explicit fSmartDependents(const core::SharedState& shared);

  private:
    struct Group {
        std::size_t first = 0;
        std::size_t count = 0;
    };

    [[nodiscard]] std::vector<core::CellLink> find() const override;
    [[nodiscard]] std::string line_of(const core::CellLink& link) const override;
    void UserForm_Initialize();
    void cmbBox_Click();

    std::vector<core::CellLink> all_;
    std::vector<Group> groups_;  // by the places of cmbBox
};

}  // namespace kestrune::smart
