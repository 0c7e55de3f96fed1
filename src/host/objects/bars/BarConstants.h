#pragma once

#include <cstdint>

// Office's constants for command bars under Office's own spelling and values.
namespace kestrune::host {

// MsoControlType
inline constexpr std::int32_t msoControlButton = 1;
inline constexpr std::int32_t msoControlPopup = 10;

// MsoBarType
inline constexpr std::int32_t msoBarTypeNormal = 0;
inline constexpr std::int32_t msoBarTypeMenuBar = 1;
inline constexpr std::int32_t msoBarTypePopup = 2;

// MsoBarPosition
inline constexpr std::int32_t msoBarTop = 1;
inline constexpr std::int32_t msoBarFloating = 4;
inline constexpr std::int32_t msoBarPopup = 5;

// MsoButtonState and MsoButtonStyle
inline constexpr std::int32_t msoButtonDown = -1;
inline constexpr std::int32_t msoButtonUp = 0;
inline constexpr std::int32_t msoButtonMixed = 2;
inline constexpr std::int32_t msoButtonAutomatic = 0;

}  // namespace kestrune::host
