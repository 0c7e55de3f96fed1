#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace kestrune::cli {

// One difference between two workbooks.
struct Change {
    std::string place;     // "Model!B4:F20", "Model!B:B", "Model!4:4", "Model", or "workbook"
    std::string property;  // in the object model's names
    std::string before;    // empty where there was nothing
    std::string after;
};
using ChangeSink = std::function<void(const Change&)>;

}  // namespace kestrune::cli
