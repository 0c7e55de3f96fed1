#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "automation/Value.h"
#include "excel/Workbook.h"
#include "forms/Presenter.h"

namespace kestrune::brxllib {

// A number format that a workbook holds beside Excel's own.
struct CustomFormat {
    std::string code;     // in the object model's spelling
    bool in_use = false;  // by rows, columns, styles, conditional formats, charts or pivot tables, or by cells
};

// Knows a workbook's custom number formats. Excel's object model deletes them but lists them nowhere.
class CustomFormats {
  public:
    CustomFormats() = default;
    CustomFormats(const CustomFormats&) = delete;
    CustomFormats& operator=(const CustomFormats&) = delete;
    virtual ~CustomFormats() = default;

    // In the workbook's order, none when they cannot be found out.
    virtual std::vector<CustomFormat> of(const excel::Workbook& workbook) = 0;
};

// What the library needs of the program that it runs in. Each outlives the library; without one, what needs it fails.
struct Surroundings {
    forms::Presenter* presenter = nullptr;
    CustomFormats* formats = nullptr;
    // A picture of a BGR color, as CommandBarButton.Picture takes it.
    std::function<automation::Value(std::int32_t color)> swatch{};
};

}  // namespace kestrune::brxllib
