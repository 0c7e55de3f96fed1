#pragma once

#include <string>
#include <string_view>

namespace kestrune::host {

/// What the content type of the main part says the file is: .xlsx, .xlsm, .xltx, .xltm, .xlam.
enum class PackageKind { Workbook, MacroWorkbook, Template, MacroTemplate, AddIn };

/// The kind by a main part's content type. Throws PackageError for documents of other programs, .xlsb among them.
PackageKind kind_of_main_part(std::string_view content_type, const std::string& file, std::string_view part);

}  // namespace kestrune::host
