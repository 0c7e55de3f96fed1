#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "automation/Text.h"
#include "automation/Value.h"

namespace kestrune::brvblib {

// The machine-wide product values, which an installation may set:
//   ShowExamples  Boolean  show the examples workbook at the next start; False when absent
//   TT            Boolean  the tutorial is installed; True when absent
//   LessonPath    text     the folder of the lesson workbooks
// Windows keeps them in the registry, other systems in a file.
class ProductStore {
  public:
    virtual ~ProductStore() = default;

    // A value by its name, whatever its case; Empty when it is absent.
    [[nodiscard]] virtual automation::Value value(std::string_view name) const = 0;
};

// Product values that the program which wires the library states itself.
class StatedValues : public ProductStore {
  public:
    using Values = std::map<std::string, automation::Value, automation::TextLess>;

    StatedValues() = default;
    explicit StatedValues(Values values) : values_(std::move(values)) {}

    [[nodiscard]] automation::Value value(std::string_view name) const override {
        const auto found = values_.find(name);
        return found == values_.end() ? automation::Value{} : found->second;
    }

  private:
    Values values_;
};

}  // namespace kestrune::brvblib
