#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "automation/MemberTable.h"
#include "brxllib/Library.h"

namespace kestrune::brxllib {

// The state of workbooks, and what a whole workbook has: its palette.
class iWorkbook : public automation::Served<iWorkbook> {
  public:
    explicit iWorkbook(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    // Whether a command may run now: Excel takes commands (no cell is being edited, no dialog is open) and a
    // workbook is active, which none is in Protected View.
    [[nodiscard]] bool may_run_command() const;

    // The entry (1 to 56) of the workbook's palette nearest to a BGR colour.
    [[nodiscard]] std::int32_t nearest_color_index(std::int32_t color, const automation::ObjectRef& workbook) const;

    std::shared_ptr<Library> library_;
};

}  // namespace kestrune::brxllib
