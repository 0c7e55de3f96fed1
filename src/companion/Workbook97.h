#pragma once

#include <string>
#include <string_view>

namespace kestrune::companion {

// A workbook of the format before 2007 (.xls, [MS-XLS]) with a Visual Basic project, both as the bytes of their files.
// The project's first module belongs to the workbook, the following ones to its sheets in their order. VbaError, which
// names the file, when the workbook is none or has more sheets than there are modules for.
std::string with_macros(std::string_view workbook, std::string_view project, std::string_view file);

}  // namespace kestrune::companion
