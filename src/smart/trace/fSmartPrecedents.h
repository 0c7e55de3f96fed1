#pragma once

#include <string>
#include <vector>

#include "smart/trace/TraceForm.h"

namespace kestrune::smart {

// The dialog of Smart Precedents: the cells that the active cell's formula refers to. When it opens it asks about
// workbooks that are not open.
class fSmartPrecedents : public TraceForm {
  public:
    explicit fSmartPrecedents(const core::SharedState& shared);

  private:
    [[nodiscard]] std::vector<core::CellLink> find() const override;
    [[nodiscard]] std::string line_of(const core::CellLink& link) const override;
    void UserForm_Initialize();
    [[nodiscard]] std::string value_of(const core::CellLink& link) const;
    [[nodiscard]] std::string heading(bool empty) const;
};

}  // namespace kestrune::smart
