#pragma once

#include <nlohmann/json.hpp>

#include "automation/Value.h"
#include "excel/Range.h"

namespace kestrune::cli {

// A value as JSON: Null and Empty as null, a Date as its serial number, an error as its text ("#DIV/0!").
nlohmann::ordered_json to_json(const automation::Value& value);

// One cell in the object model's names and units.
nlohmann::ordered_json cell_facts(const excel::Range& cell);

}  // namespace kestrune::cli
