#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/bridges/Messages.h"
#include "styles/StyleFields.h"

namespace kestrune::settings {

// A property of styles that the style editor has a check box for: whether the style sets it.
struct EditedProperty {
    std::string_view control;
    bool styles::StyleFields::*transparent;
};
std::span<const EditedProperty> edited_properties();

// A field of styles and the control that shows it; check boxes say "True" or "False".
struct EditedField {
    std::string_view control;
    bool styles::StyleFields::*transparent;  // of the property that it belongs to; null for what every style has
    std::string (*text)(const styles::StyleFields& style);
    // Takes what stands in the control; false for what the field cannot be.
    bool (*take)(styles::StyleFields& style, const std::string& text);
    core::Text problem{};  // the message then
};
std::span<const EditedField> edited_fields();

}  // namespace kestrune::settings
