#pragma once

#include <string>
#include <string_view>

#include "automation/Value.h"

namespace kestrune::brvblib {

// Where the data types of XML elements come from (XML-Data, as MSXML reads it) and the prefix used for it.
inline constexpr std::string_view data_types_namespace = "urn:schemas-microsoft-com:datatypes";
inline constexpr std::string_view data_type_attribute = "dt:dt";

// A value as an element holds it.
struct TypedText {
    std::string_view type;  // its data type; empty for a text
    std::string text;
};

// Texts and Empty have no type; Booleans are "boolean" (1 and 0), integers "i4", doubles "r8" with as many digits as
// they need to come back the same, dates "dateTime" to the millisecond. Fails with type-mismatch for other kinds and
// for numbers that are none.
TypedText typed_text(const automation::Value& value);

// The value that an element of a data type holds. Types that are not known give the text, as "string" does. Fails with
// type-mismatch when the text does not spell such a value.
automation::Value typed_value(std::string_view type, const std::string& text);

}  // namespace kestrune::brvblib
