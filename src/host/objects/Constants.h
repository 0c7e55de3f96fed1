#pragma once

#include <cstdint>

namespace kestrune::host {

// Excel's constants that the served objects take and answer, under Excel's names and values.
inline constexpr std::int32_t xlAutomatic = -4105;
inline constexpr std::int32_t xlNone = -4142;

inline constexpr std::int32_t xlWBATWorksheet = -4167;

inline constexpr std::int32_t xlShiftDown = -4121;
inline constexpr std::int32_t xlShiftToRight = -4161;
inline constexpr std::int32_t xlShiftUp = -4162;
inline constexpr std::int32_t xlShiftToLeft = -4159;
inline constexpr std::int32_t xlFormatFromLeftOrAbove = 0;
inline constexpr std::int32_t xlFormatFromRightOrBelow = 1;

inline constexpr std::int32_t xlA1 = 1;
inline constexpr std::int32_t xlR1C1 = -4150;

inline constexpr std::int32_t xlDiagonalDown = 5;
inline constexpr std::int32_t xlDiagonalUp = 6;
inline constexpr std::int32_t xlEdgeLeft = 7;
inline constexpr std::int32_t xlEdgeTop = 8;
inline constexpr std::int32_t xlEdgeBottom = 9;
inline constexpr std::int32_t xlEdgeRight = 10;
inline constexpr std::int32_t xlInsideVertical = 11;
inline constexpr std::int32_t xlInsideHorizontal = 12;

inline constexpr std::int32_t xlContinuous = 1;
inline constexpr std::int32_t xlDash = -4115;
inline constexpr std::int32_t xlDashDot = 4;
inline constexpr std::int32_t xlDashDotDot = 5;
inline constexpr std::int32_t xlDot = -4118;
inline constexpr std::int32_t xlDouble = -4119;
inline constexpr std::int32_t xlSlantDashDot = 13;

inline constexpr std::int32_t xlHairline = 1;
inline constexpr std::int32_t xlThin = 2;
inline constexpr std::int32_t xlMedium = -4138;
inline constexpr std::int32_t xlThick = 4;

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

inline constexpr std::int32_t xlHorizontal = -4128;
inline constexpr std::int32_t xlVertical = -4166;
inline constexpr std::int32_t xlUpward = -4171;
inline constexpr std::int32_t xlDownward = -4170;

inline constexpr std::int32_t xlUnderlineStyleSingle = 2;
inline constexpr std::int32_t xlUnderlineStyleDouble = -4119;
inline constexpr std::int32_t xlUnderlineStyleSingleAccounting = 4;
inline constexpr std::int32_t xlUnderlineStyleDoubleAccounting = 5;

inline constexpr std::int32_t xlSolid = 1;
inline constexpr std::int32_t xlPatternLinearGradient = 4000;
inline constexpr std::int32_t xlPatternRectangularGradient = 4001;

inline constexpr std::int32_t xlMaximized = -4137;
inline constexpr std::int32_t xlMinimized = -4140;
inline constexpr std::int32_t xlNormal = -4143;

inline constexpr std::int32_t xlCalculationManual = -4135;
inline constexpr std::int32_t xlCalculationSemiautomatic = 2;

inline constexpr std::int32_t xlWorksheet = -4167;

inline constexpr std::int32_t xlSheetVisible = -1;
inline constexpr std::int32_t xlSheetHidden = 0;
inline constexpr std::int32_t xlSheetVeryHidden = 2;

inline constexpr std::int32_t xlSummaryAbove = 0;
inline constexpr std::int32_t xlSummaryBelow = 1;

inline constexpr std::int32_t xlDown = -4121;
inline constexpr std::int32_t xlToLeft = -4159;
inline constexpr std::int32_t xlToRight = -4161;
inline constexpr std::int32_t xlUp = -4162;

inline constexpr std::int32_t xlCellTypeAllValidation = -4174;
inline constexpr std::int32_t xlCellTypeBlanks = 4;
inline constexpr std::int32_t xlCellTypeComments = -4144;
inline constexpr std::int32_t xlCellTypeConstants = 2;
inline constexpr std::int32_t xlCellTypeFormulas = -4123;
inline constexpr std::int32_t xlCellTypeLastCell = 11;
inline constexpr std::int32_t xlCellTypeSameValidation = -4175;
inline constexpr std::int32_t xlNumbers = 1;
inline constexpr std::int32_t xlTextValues = 2;
inline constexpr std::int32_t xlLogical = 4;
inline constexpr std::int32_t xlErrors = 16;

inline constexpr std::int32_t xlCellValue = 1;
inline constexpr std::int32_t xlBetween = 1;
inline constexpr std::int32_t xlNotBetween = 2;

inline constexpr std::int32_t xlThemeFontNone = 0;
inline constexpr std::int32_t xlThemeFontMinor = 1;
inline constexpr std::int32_t xlThemeFontMajor = 2;

// Reading order
inline constexpr std::int32_t xlContext = -5002;
inline constexpr std::int32_t xlLTR = -5003;
inline constexpr std::int32_t xlRTL = -5004;

}  // namespace kestrune::host
