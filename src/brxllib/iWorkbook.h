#pragma once

#include <cstdint>
#include <memory>
#include <string>
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

    // The names whose reference is invalid (InvalidNames.h), an array from 1; and deletes them: how many went.
    [[nodiscard]] automation::Value invalid_names(const automation::ObjectRef& workbook) const;
    std::int32_t remove_invalid_names(const automation::ObjectRef& workbook);

    // The workbook's custom number formats that are not in use: neither in FormatsInUse (an array of codes) nor by
    // rows, columns, styles, conditional formats, charts or pivot tables. An array from 1. Where nobody can list a
    // workbook's formats there are none.
    [[nodiscard]] automation::Value unused_number_formats(const automation::ObjectRef& workbook,
                                                          const automation::Value& formats_in_use) const;

    // Opens the workbook of a file and makes it the active one; Nothing when it cannot be opened.
    automation::ObjectRef open(const std::string& path);

    std::shared_ptr<Library> library_;
};

}  // namespace kestrune::brxllib
