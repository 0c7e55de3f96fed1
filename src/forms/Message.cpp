#include "forms/Message.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kestrune::forms {
namespace {

constexpr std::array ok_only{vbOK};
constexpr std::array ok_cancel{vbOK, vbCancel};
constexpr std::array abort_retry_ignore{vbAbort, vbRetry, vbIgnore};
constexpr std::array yes_no_cancel{vbYes, vbNo, vbCancel};
constexpr std::array yes_no{vbYes, vbNo};
constexpr std::array retry_cancel{vbRetry, vbCancel};

// The groups of the buttons argument.
constexpr std::int32_t set_mask = 0xF;
constexpr std::int32_t default_mask = 0xF00;

}  // namespace

std::span<const MsgBoxResult> choices(std::int32_t buttons) {
    switch (buttons & set_mask) {
        case vbOKCancel:
            return ok_cancel;
        case vbAbortRetryIgnore:
            return abort_retry_ignore;
        case vbYesNoCancel:
            return yes_no_cancel;
        case vbYesNo:
            return yes_no;
        case vbRetryCancel:
            return retry_cancel;
        default:
            return ok_only;
    }
}

MsgBoxResult default_choice(std::int32_t buttons) {
    const auto offered = choices(buttons);
    const auto place = static_cast<std::size_t>((buttons & default_mask) / vbDefaultButton2);
    return place < offered.size() ? offered[place] : offered.front();
}

MsgBoxResult safe_choice(std::int32_t buttons) {
    const auto offered = choices(buttons);
    for (const MsgBoxResult wanted : {vbCancel, vbNo, vbAbort}) {
        if (std::ranges::find(offered, wanted) != offered.end()) return wanted;
    }
    return vbOK;
}

std::string_view choice_name(MsgBoxResult choice) {
    static constexpr std::array<std::string_view, 7> names{"OK", "Cancel", "Abort", "Retry", "Ignore", "Yes", "No"};
    return names[static_cast<std::size_t>(choice - vbOK)];
}

}  // namespace kestrune::forms
