#pragma once

#include <optional>
#include <string>

namespace kestrune::cli {

struct ShowOptions {
    std::string workbook;
    std::optional<std::string> range;
    std::optional<std::string> html;  // a page is written here
    std::string color = "auto";       // auto, always, never
};

// `kestrune show`: a sheet drawn in the terminal, or the workbook as a page.
void show(const ShowOptions& options);

}  // namespace kestrune::cli
