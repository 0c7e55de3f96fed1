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
class ProductSettings {
  public:
    ProductSettings() = default;
    explicit ProductSettings(std::map<std::string, automation::Value, automation::TextLess> values)
        : values_(std::move(values)) {}

    // A value by its name, whatever its case; Empty when it is absent.
    [[nodiscard]] automation::Value value(std::string_view name) const {
        const auto found = values_.find(name);
        return found == values_.end() ? automation::Value{} : found->second;
    }

  private:
    std::map<std::string, automation::Value, automation::TextLess> values_;
};

}  // namespace kestrune::brvblib
