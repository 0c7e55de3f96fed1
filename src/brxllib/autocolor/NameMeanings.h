#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "automation/Text.h"
#include "excel/Worksheet.h"

namespace kestrune::brxllib {

// Where a formula's values come from, as far as the formula's own text and the names in it tell.
struct Sources {
    bool other_sheets = false;
    bool other_workbooks = false;

    Sources& operator|=(const Sources& more) {
        other_sheets = other_sheets || more.other_sheets;
        other_workbooks = other_workbooks || more.other_workbooks;
        return *this;
    }
};

// What the names and tables in a sheet's formulas lead to. Each is looked up in Excel once: the sheet's own, else the
// workbook's. What is no name (a parameter of LET, a function of another add-in) leads nowhere.
class NameMeanings {
  public:
    // sheet_name: the sheet's, without apostrophes.
    NameMeanings(excel::Worksheet sheet, std::string sheet_name)
        : sheet_(std::move(sheet)), sheet_name_(std::move(sheet_name)) {}

    [[nodiscard]] const std::string& sheet_name() const { return sheet_name_; }
    // Of all names and tables in a formula, and of the names that these names refer to.
    [[nodiscard]] Sources sources_of_names(std::string_view formula);

  private:
    [[nodiscard]] Sources of_name(std::string_view name);
    [[nodiscard]] Sources of_table(std::string_view name);
    [[nodiscard]] std::string refers_to(std::string_view name) const;

    excel::Worksheet sheet_;
    std::string sheet_name_;
    std::map<std::string, Sources, automation::TextLess> known_;
    std::map<std::string, Sources, automation::TextLess> tables_;
};

}  // namespace kestrune::brxllib
