#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace kestrune::forms {

// The buttons argument of a message box: one value of each group, added up, under Visual Basic's values.
enum MsgBoxStyle : std::int32_t {
    // Which buttons there are.
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbAbortRetryIgnore = 2,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbRetryCancel = 5,
    // The icon.
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
    // Which button a plain Enter presses.
    vbDefaultButton1 = 0,
    vbDefaultButton2 = 256,
    vbDefaultButton3 = 512,
};

// What a message box answers.
enum MsgBoxResult : std::int32_t {
    vbOK = 1,
    vbCancel = 2,
    vbAbort = 3,
    vbRetry = 4,
    vbIgnore = 5,
    vbYes = 6,
    vbNo = 7,
};

struct Message {
    std::string text;
    std::int32_t buttons = vbOKOnly;
    std::string caption;
};

// The answers that a box with these buttons offers, from left to right. Unknown button sets read as OK alone.
std::span<const MsgBoxResult> choices(std::int32_t buttons);

// The answer that a plain Enter gives.
MsgBoxResult default_choice(std::int32_t buttons);

// The answer that commits to least, for a box that nobody can be asked about: Cancel where there is one, else No,
// else Abort, else OK.
MsgBoxResult safe_choice(std::int32_t buttons);

// A button as a person reads it: "OK", "Cancel" ... "No".
std::string_view choice_name(MsgBoxResult choice);

}  // namespace kestrune::forms
