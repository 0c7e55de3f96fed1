#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace kestrune::host {

/// A workbook file that cannot be read or written, in one line for its user:
/// `model.xlsx: xl/worksheets/sheet3.xml, line 1: <c r="ZZZ9"> is outside the sheet`.
class PackageError : public std::runtime_error {
  public:
    /// `part` is empty when the whole file is meant; `line` and `column` are 1-based, 0 when unknown.
    PackageError(std::string file, std::string part, std::string message, std::size_t line = 0, std::size_t column = 0);

    const std::string& file() const { return file_; }
    const std::string& part() const { return part_; }
    const std::string& message() const { return message_; }
    std::size_t line() const { return line_; }
    std::size_t column() const { return column_; }

  private:
    std::string file_;
    std::string part_;
    std::string message_;
    std::size_t line_;
    std::size_t column_;
};

}  // namespace kestrune::host
