#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "brxllib/Table.h"
#include "excel/Application.h"

namespace kestrune::brxllib {

// A defined name and what it stands for.
struct DefinedName {
    std::string sheet;      // of a name that one sheet owns, else empty
    std::string name;       // without the sheet
    std::string refers_to;  // R1C1, with its "="; relative references count from the cell that uses the name
};

// An open workbook, as far as references need to know it. Each part is read from Excel when it is first asked for.
class OpenBook {
  public:
    explicit OpenBook(const excel::Workbook& workbook);

    [[nodiscard]] const excel::Workbook& workbook() const { return workbook_; }
    [[nodiscard]] const std::string& name() const { return name_; }      // "Model.xlsx"
    [[nodiscard]] const std::string& folder() const { return folder_; }  // "C:\models"; empty before the first save

    // The worksheets' names from left to right.
    [[nodiscard]] const std::vector<std::string>& sheets();
    // The position of a sheet's name, whatever its case.
    [[nodiscard]] std::optional<std::size_t> sheet(std::string_view sheet_name);

    // All names that could be read.
    [[nodiscard]] const std::vector<DefinedName>& names();
    // A name as a formula on a sheet sees it: the sheet's own first, then the workbook's. Null when there is none.
    [[nodiscard]] const DefinedName* find_name(std::string_view sheet_name, std::string_view text);
    // Only that of one scope; the workbook's for an empty sheet.
    [[nodiscard]] const DefinedName* find_in_scope(std::string_view sheet_name, std::string_view text);

    [[nodiscard]] const std::vector<Table>& tables();
    [[nodiscard]] const Table* find_table(std::string_view table_name);
    // The table that a cell lies in; null when it lies in none.
    [[nodiscard]] const Table* table_at(std::string_view sheet_name, formula::Position at);

    // The path of a linked workbook by its number in files ("[1]Sheet!A1"); empty when there is none.
    [[nodiscard]] std::string link(std::size_t number);

  private:
    excel::Workbook workbook_;
    std::string name_;
    std::string folder_;
    std::optional<std::vector<std::string>> sheets_;
    std::optional<std::vector<DefinedName>> names_;
    std::map<std::string, std::size_t> names_by_key_;
    std::optional<std::vector<Table>> tables_;
    std::optional<std::vector<std::string>> links_;
};

// The workbooks that are open when it is made.
class OpenBooks {
  public:
    explicit OpenBooks(const excel::Application& application);

    [[nodiscard]] std::vector<OpenBook>& all() { return books_; }
    // By file name, whatever its case; null when none of that name is open.
    [[nodiscard]] OpenBook* find(std::string_view name);

  private:
    std::vector<OpenBook> books_;
};

}  // namespace kestrune::brxllib
