#pragma once

#include <cstdint>

// Excel's constants under Excel's own spelling and values, those that we use.
namespace kestrune::excel {

inline constexpr std::int32_t xlNone = -4142;

// Horizontal and vertical alignment.
inline constexpr std::int32_t xlGeneral = 1;
inline constexpr std::int32_t xlLeft = -4131;
inline constexpr std::int32_t xlCenter = -4108;
inline constexpr std::int32_t xlRight = -4152;
inline constexpr std::int32_t xlFill = 5;
inline constexpr std::int32_t xlJustify = -4130;
inline constexpr std::int32_t xlCenterAcrossSelection = 7;
inline constexpr std::int32_t xlDistributed = -4117;
inline constexpr std::int32_t xlTop = -4160;
inline constexpr std::int32_t xlBottom = -4107;

// XlDirection
inline constexpr std::int32_t xlUp = -4162;
inline constexpr std::int32_t xlToLeft = -4159;

// XlOrientation
inline constexpr std::int32_t xlHorizontal = -4128;
inline constexpr std::int32_t xlVertical = -4166;
inline constexpr std::int32_t xlUpward = -4171;
inline constexpr std::int32_t xlDownward = -4170;

// XlUnderlineStyle
inline constexpr std::int32_t xlUnderlineStyleNone = -4142;
inline constexpr std::int32_t xlUnderlineStyleSingle = 2;
inline constexpr std::int32_t xlUnderlineStyleDouble = -4119;
inline constexpr std::int32_t xlUnderlineStyleSingleAccounting = 4;
inline constexpr std::int32_t xlUnderlineStyleDoubleAccounting = 5;

// XlLineStyle
inline constexpr std::int32_t xlContinuous = 1;
inline constexpr std::int32_t xlDash = -4115;
inline constexpr std::int32_t xlDot = -4118;
inline constexpr std::int32_t xlDashDot = 4;
inline constexpr std::int32_t xlDashDotDot = 5;
inline constexpr std::int32_t xlSlantDashDot = 13;
inline constexpr std::int32_t xlDouble = -4119;

// XlBorderWeight
inline constexpr std::int32_t xlHairline = 1;
inline constexpr std::int32_t xlThin = 2;
inline constexpr std::int32_t xlMedium = -4138;
inline constexpr std::int32_t xlThick = 4;

// XlBordersIndex
inline constexpr std::int32_t xlDiagonalDown = 5;
inline constexpr std::int32_t xlDiagonalUp = 6;
inline constexpr std::int32_t xlEdgeLeft = 7;
inline constexpr std::int32_t xlEdgeTop = 8;
inline constexpr std::int32_t xlEdgeBottom = 9;
inline constexpr std::int32_t xlEdgeRight = 10;
inline constexpr std::int32_t xlInsideVertical = 11;
inline constexpr std::int32_t xlInsideHorizontal = 12;

// XlPattern
inline constexpr std::int32_t xlSolid = 1;
inline constexpr std::int32_t xlPatternLinearGradient = 4000;
inline constexpr std::int32_t xlPatternRectangularGradient = 4001;

// XlThemeFont
inline constexpr std::int32_t xlThemeFontNone = 0;

// XlColorIndex
inline constexpr std::int32_t xlColorIndexAutomatic = -4105;

// XlFormatConditionType and XlFormatConditionOperator
inline constexpr std::int32_t xlCellValue = 1;
inline constexpr std::int32_t xlExpression = 2;
inline constexpr std::int32_t xlBetween = 1;
inline constexpr std::int32_t xlNotBetween = 2;
inline constexpr std::int32_t xlGreater = 5;
inline constexpr std::int32_t xlLess = 6;

// XlCellType
inline constexpr std::int32_t xlCellTypeAllValidation = -4174;
inline constexpr std::int32_t xlCellTypeComments = -4144;
inline constexpr std::int32_t xlCellTypeConstants = 2;
inline constexpr std::int32_t xlCellTypeFormulas = -4123;
inline constexpr std::int32_t xlCellTypeSameValidation = -4175;

// XlCalculation
inline constexpr std::int32_t xlCalculationManual = -4135;
inline constexpr std::int32_t xlCalculationAutomatic = -4105;

// XlWindowState
inline constexpr std::int32_t xlMaximized = -4137;
inline constexpr std::int32_t xlNormal = -4143;

// XlSheetVisibility
inline constexpr std::int32_t xlSheetVisible = -1;

// MsoControlType
inline constexpr std::int32_t msoControlButton = 1;
inline constexpr std::int32_t msoControlPopup = 10;

// MsoButtonState
inline constexpr std::int32_t msoButtonDown = -1;
inline constexpr std::int32_t msoButtonUp = 0;

// MsoButtonStyle
inline constexpr std::int32_t msoButtonCaption = 2;
inline constexpr std::int32_t msoButtonIconAndCaption = 3;

// MsoBarPosition
inline constexpr std::int32_t msoBarTop = 1;

// XlLink
inline constexpr std::int32_t xlExcelLinks = 1;

// XlReferenceStyle
inline constexpr std::int32_t xlA1 = 1;

}  // namespace kestrune::excel
