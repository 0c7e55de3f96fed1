#pragma once

#include <string_view>

// How preferences files are laid out; docs/preferences-file.md shows one.
namespace kestrune::settings {

inline constexpr std::string_view preferences_file_name = "UserPreferences.xml";

// What the root element says about the document. The identifier tells it from other products' documents.
inline constexpr std::string_view root_element = "Kestrune";
inline constexpr std::string_view format_version = "3.0";
inline constexpr std::string_view format_identifier = "7D3E9B20-4C1A-4f85-A6D2-93B0E5C71F48";

// The elements that hold others.
inline constexpr std::string_view settings_element = "UserSettings";
inline constexpr std::string_view styles_element = "Styles";
inline constexpr std::string_view style_element = "Style";  // in a cycle, the name of one
inline constexpr std::string_view steps_element = "Settings";
inline constexpr std::string_view step_element = "Setting";
inline constexpr std::string_view recognised_element = "LookFors";
inline constexpr std::string_view recognised_step_element = "LookFor";

// Of every cycle.
inline constexpr std::string_view name_element = "Name";
inline constexpr std::string_view access_level_element = "AccessLevel";

}  // namespace kestrune::settings
