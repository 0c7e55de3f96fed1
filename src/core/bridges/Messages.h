#pragma once

#include <cstdint>

namespace kestrune::core {

// The numbers of user messages in the general library's message table.
enum class Text : std::int32_t {
    PreferencesReplaced = 3021,
    ExamplesNotFound = 3025,  // the file's name follows
    RightNeedsOneColumn = 3040,
    NothingToCopy = 3041,
    NoColumnLabel = 3042,
    DownNeedsOneRow = 3043,
    NoRowLabel = 3044,
    ImportFailed = 3060,
    Imported = 3061,
    NoDecimalsToAdjust = 3070,
    NumberFormatTooLong = 3071,
    NoNumbersToScale = 3072,
    NoBookmarks = 3080,
    IntervalIsNoNumber = 3110,
    IntervalOutOfRange = 3112,
    GroupSizeOutOfRange = 3113,
    AdjustmentOutOfRange = 3114,
    StartIsNoDate = 3115,
    EndIsNoDate = 3116,
    EndBeforeStart = 3117,
    SpacingOutOfRange = 3118,
    IntervalNotPositive = 3119,
    SeriesDoesNotFit = 3121,
    PaintbrushStem = 3120,  // a counter follows
    ImportReplacesSettings = 3130,
    ImportQuestion = 3131,
    Exported = 3132,
    RestoreQuestion = 3133,
    Restored = 3134,
    ExportFailed = 3135,
    SettingsNotSaved = 3136,  // the reason follows, as the name or value follows in those below
    ZoomOutOfRange = 3137,
    NoColor = 3138,
    CycleNameMissing = 3139,
    CycleNameTaken = 3140,
    StyleIsInCycle = 3141,
    ValueIsInCycle = 3142,
    NoIndent = 3143,
    NoRowHeight = 3144,
    NoColumnWidth = 3145,
    LessonNotOpened = 3150,
    StyleNameMissing = 3160,
    StyleNameTaken = 3161,
    StyleNameIsStandard = 3162,
    StyleIsStandard = 3163,
    StyleIsNeeded = 3164,
    StyleIsInCycles = 3165,
    NoNumberFormat = 3166,
    NoFontName = 3167,
    NoFontSize = 3168,
    NoOrientation = 3169,
    NoActiveCell = 3170,
};

}  // namespace kestrune::core
