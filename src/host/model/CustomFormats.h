#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/model/Workbook.h"

namespace kestrune::host {

// A number format that a workbook holds beside the built-in ones.
struct CustomNumberFormat {
    std::string code;     // in the object model's spelling
    bool in_use = false;  // by cells, rows, columns, named styles, conditional formats, or parts outside the model
};

// All of them, each code once, in the order of the file's numbers. Reads all sheets.
[[nodiscard]] std::vector<CustomNumberFormat> custom_number_formats(Workbook& book);

// Takes a custom number format away; what shows in it is General afterwards. False when there is none of that code.
bool delete_number_format(Workbook& book, std::string_view code);

}  // namespace kestrune::host
