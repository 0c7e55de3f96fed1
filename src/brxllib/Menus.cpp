#include "brxllib/Menus.h"

#include "automation/Caption.h"
#include "excel/Constants.h"

namespace kestrune::brxllib {
namespace {

// Most properties of a new control are right as they are; each one written is a call.
void dress(const excel::CommandBarControl& control, const ControlDesign& design) {
    control.Caption(design.caption);
    if (!design.on_action.empty()) control.OnAction(design.on_action);
    if (!design.parameter.empty()) control.Parameter(design.parameter);
    if (!design.tag.empty()) control.Tag(design.tag);
    if (design.begin_group) control.BeginGroup(true);
    const excel::CommandBarButton button(control.object());
    if (!design.shortcut.empty()) button.ShortcutText(design.shortcut);
    if (design.face_id) button.FaceId(*design.face_id);
}

excel::CommandBarControl add(const excel::CommandBarControls& controls, std::int32_t type,
                             const ControlDesign& design) {
    automation::Value before = automation::Missing{};
    if (design.before) before = *design.before;
    const excel::CommandBarControl control = controls.Add(type, before, true);
    try {
        dress(control, design);
    } catch (...) {
        control.Delete();
        throw;
    }
    return control;
}

template <class Wanted>
std::int32_t remove_if(const excel::CommandBarControls& controls, Wanted&& wanted) {
    std::int32_t removed = 0;
    for (std::int32_t i = controls.Count(); i >= 1; --i) {
        const excel::CommandBarControl control = controls.Item(i);
        if (!wanted(control)) continue;
        control.Delete();
        ++removed;
    }
    return removed;
}

}  // namespace

excel::CommandBarControl find_control(const excel::CommandBarControls& controls, std::string_view caption) {
    const std::int32_t count = controls.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        const excel::CommandBarControl control = controls.Item(i);
        if (automation::same_caption(control.Caption(), caption)) return control;
    }
    return {};
}

excel::CommandBarControl add_popup(const excel::CommandBarControls& controls, const ControlDesign& design) {
    return add(controls, excel::msoControlPopup, design);
}

excel::CommandBarControl add_button(const excel::CommandBarControls& controls, const ControlDesign& design) {
    return add(controls, excel::msoControlButton, design);
}

std::int32_t clear_controls(const excel::CommandBarControls& controls) {
    return remove_if(controls, [](const excel::CommandBarControl& control) { return !control.BuiltIn(); });
}

std::int32_t remove_controls(const excel::CommandBarControls& controls, std::string_view caption) {
    return remove_if(controls, [&](const excel::CommandBarControl& control) {
        return automation::same_caption(control.Caption(), caption) && !control.BuiltIn();
    });
}

}  // namespace kestrune::brxllib
