#pragma once

#include <string>
#include <string_view>

#include "host/xlsx/package/ZipDirectory.h"

namespace kestrune::host {

/// Throws PackageError when the bytes are no zip archive, and says what they are where that can be told: empty, an
/// encrypted workbook, an .xls, another compound file.
void refuse_other_files(std::string_view bytes, const std::string& file);

/// Throws PackageError for entries that would inflate without bound, and for encrypted ones.
void refuse_unsafe_entries(const ZipDirectory& directory, const std::string& file);

/// Whether the content of a "mimetype" entry, which OpenDocument files start with, is a spreadsheet's.
bool is_open_document(std::string_view mimetype);

}  // namespace kestrune::host
