#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "excel/Application.h"
#include "excel/CommandBarButton.h"
#include "excel/CommandBarPopup.h"

namespace kestrune::brxllib {

// The first control with a caption on a bar or a popup itself, not in popups on it; Nothing when there is none.
[[nodiscard]] excel::CommandBarControl find_control(const excel::CommandBarControls& controls,
                                                    std::string_view caption);

// What a new control is to be like.
struct ControlDesign {
    std::string caption;
    std::string on_action;
    std::string parameter;
    std::string tag;
    std::string shortcut;                 // buttons
    std::optional<std::int32_t> face_id;  // buttons
    bool begin_group = false;             // a line in front of it
    std::optional<std::int32_t> before;   // a position from 1; else at the end
};

// New controls, gone when Excel ends, so that nothing of ours outlives the add-in in Excel's menus. One that cannot be
// made whole is taken away again.
excel::CommandBarControl add_popup(const excel::CommandBarControls& controls, const ControlDesign& design);
excel::CommandBarControl add_button(const excel::CommandBarControls& controls, const ControlDesign& design);

// Deletes all controls, from the last to the first, Excel's own left alone; how many went.
std::int32_t clear_controls(const excel::CommandBarControls& controls);
// Deletes every control with a caption; how many went.
std::int32_t remove_controls(const excel::CommandBarControls& controls, std::string_view caption);

}  // namespace kestrune::brxllib
