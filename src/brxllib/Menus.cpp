#include "brxllib/Menus.h"

#include "automation/Text.h"
#include "excel/Constants.h"

namespace kestrune::brxllib {
namespace {

// Captions with their "&" and case told apart no more.
std::string plain(std::string_view caption) {
    std::string text;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && (i + 1 == caption.size() || caption[i + 1] != '&')) continue;
        if (caption[i] == '&') ++i;
        text += automation::lower(caption[i]);
    }
    return text;
}

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

bool same_caption(std::string_view caption, std::string_view text) { return plain(caption) == plain(text); }

excel::CommandBarControl find_control(const excel::CommandBarControls& controls, std::string_view caption) {
    const std::int32_t count = controls.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        const excel::CommandBarControl control = controls.Item(i);
        if (same_caption(control.Caption(), caption)) return control;
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
        return same_caption(control.Caption(), caption) && !control.BuiltIn();
    });
}

}  // namespace kestrune::brxllib
