#include "host/xlsx/PackageError.h"

#include <fmt/format.h>

#include <utility>

namespace kestrune::host {
namespace {

std::string sentence(const std::string& file, const std::string& part, const std::string& message, std::size_t line,
                     std::size_t column) {
    std::string text = file + ": ";
    if (!part.empty()) text += part;
    if (line != 0) text += fmt::format("{}line {}", part.empty() ? "" : ", ", line);
    if (line != 0 && column != 0) text += fmt::format(", column {}", column);
    if (!part.empty() || line != 0) text += ": ";
    text += message;
    // Names and quoted text come from the file: a line break in them must not make a second line.
    for (char& c : text) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) c = '?';
    }
    return text;
}

}  // namespace

PackageError::PackageError(std::string file, std::string part, std::string message, std::size_t line,
                           std::size_t column)
    : std::runtime_error(sentence(file, part, message, line, column)),
      file_(std::move(file)),
      part_(std::move(part)),
      message_(std::move(message)),
      line_(line),
      column_(column) {}

}  // namespace kestrune::host
