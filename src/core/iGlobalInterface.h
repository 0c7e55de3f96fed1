#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "automation/Text.h"

namespace kestrune::core {

// Every member of iGlobal in the interface's order, those included that this version does not have yet: a member's
// dispatch id is its place, and stays what it is when others join.
inline constexpr auto iglobal_interface = std::to_array<std::string_view>({
    "CreateBRMenus",
    "BRMenuState",
    "DeleteBRMenus",
    "BRUndo",
    "BRRedo",
    "SetBRUndo",
    "ToggleAutoColor",
    "RunAutoColor",
    "ToggleToolbar",
    "ShowExamplesWorkbook",
    "ShowHotKeyManager",
    "ShowUserSettings",
    "ShowAboutBrannoch",
    "ShowHelp",
    "RunMacro",
    "UpdateMenuPopup",
    "UpdateTogglesPopup",
    "UpdateGeneralStyleTogglePopup",
    "UpdateCurrencyStyleTogglePopup",
    "UpdatePercentStyleTogglePopup",
    "UpdateMultipleStyleTogglePopup",
    "UpdateDateStyleTogglePopup",
    "UpdateBinaryStyleTogglePopup",
    "UpdateUnderlineStyleTogglePopup",
    "UpdateCenterStyleTogglePopup",
    "UpdateHAlignStyleTogglePopup",
    "UpdateVAlignStyleTogglePopup",
    "UpdateBorderStyleTogglePopup",
    "UpdateCellColorStyleTogglePopup",
    "UpdateMyStyleToggle1Popup",
    "UpdateMyStyleToggle2Popup",
    "UpdateMyStyleToggle3Popup",
    "UpdateMyStyleToggle4Popup",
    "UpdateMyStyleToggle5Popup",
    "UpdateMyStyleToggle6Popup",
    "UpdateMyStyleToggle7Popup",
    "UpdateMyStyleToggle8Popup",
    "UpdateMyStyleToggle9Popup",
    "UpdateMyStyleToggle10Popup",
    "UpdateMyStyleToggle11Popup",
    "UpdateMyStyleToggle12Popup",
    "UpdateMyStyleToggle13Popup",
    "UpdateMyStyleToggle14Popup",
    "UpdateMyStyleToggle15Popup",
    "UpdateMyColorToggle1Popup",
    "UpdateMyColorToggle2Popup",
    "UpdateMyColorToggle3Popup",
    "UpdateMyColorToggle4Popup",
    "UpdateMyColorToggle5Popup",
    "UpdateLeftIndentTogglePopup",
    "UpdateRightIndentTogglePopup",
    "UpdateRowHeightTogglePopup",
    "UpdateColumnWidthTogglePopup",
    "AboutSmartCycles",
    "AboutBRPaintbrush",
    "AboutHidingAndUnhiding",
    "AboutTrainingMenu",
    "LessonPath",
    "ShowLessonErrMsg",
    "CustomSmartCycleInfo",
    "ApplySmartCycleStyle",
    "ToggleBlackFonts",
    "ShowLesson",
});

// The dispatch id of a member; 0 when the interface has no such member.
constexpr std::int32_t iglobal_id(std::string_view member) {
    for (std::size_t i = 0; i < iglobal_interface.size(); ++i) {
        if (automation::same_text(iglobal_interface[i], member)) return static_cast<std::int32_t>(i) + 1;
    }
    return 0;
}

}  // namespace kestrune::core
