#include "menus/mMenus.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <vector>

#include "automation/Caption.h"
#include "automation/ResumeNext.h"
#include "excel/Application.h"
#include "excel/CommandBarButton.h"
#include "excel/Constants.h"
#include "menus/Captions.h"
#include "menus/CyclePopups.h"
#include "menus/MenuTable.h"
#include "menus/ShortcutTexts.h"
#include "menus/ToolbarChoice.h"
#include "menus/TutorialMenu.h"
#include "settings/cUserSettings.h"

namespace kestrune::menus {
namespace {

using automation::ObjectRef;
using automation::ResumeNext;
using core::SharedState;

constexpr std::string_view menu_tag = "Kestrune.Menu";

// What a row needs before it can be used, and whether it is on: by its command or member.
struct RowState {
    std::string_view key;
    bool (*enabled)(const SharedState& shared) = nullptr;  // null: always
    bool (*checked)(const SharedState& shared) = nullptr;  // null: it is never checked
};

bool shows_gridlines(const SharedState& shared) {
    return excel::Application(shared.application).ActiveWindow().DisplayGridlines();
}

constexpr auto row_states = std::to_array<RowState>({
    {"BRUndo", [](const SharedState& shared) { return !shared.spreadsheet().undo_text().empty(); }},
    {"BRRedo", [](const SharedState& shared) { return !shared.spreadsheet().redo_text().empty(); }},
    {"16", [](const SharedState& shared) { return shared.settings().SheetStyle != nullptr; }},
    {"18", [](const SharedState& shared) { return shared.settings().BRPaintbrushStyle != nullptr; }},
    {"98", nullptr, shows_gridlines},
    {"ToggleAutoColor", nullptr, [](const SharedState& shared) { return shared.spreadsheet().auto_color_is_on(); }},
    {"ToggleToolbar", nullptr, toolbar_is_shown},
});

std::string_view key_of(const MenuRow& row) { return row.request.empty() ? row.member : row.request; }

const MenuRow* row_of(std::span<const MenuRow> rows, std::string_view key) {
    const auto found = std::ranges::find_if(
        rows, [&](const MenuRow& row) { return row.kind != MenuRow::Kind::Popup && key_of(row) == key; });
    return found == rows.end() ? nullptr : &*found;
}

// A popup on the menu itself whose commands work on workbooks, as all of them do.
bool needs_workbook(const MenuRow& row) { return row.level == 1 && row.kind != MenuRow::Kind::Button; }

// The caption of each row, SmartCycles by their names, each popup's access keys its own.
std::vector<std::string> captions_of(const SharedState& shared, std::span<const MenuRow> rows, bool access_keys) {
    const ResumeNext attempt(shared.trace);
    std::vector<std::string> captions(rows.size());
    std::map<std::size_t, std::vector<std::size_t>> siblings;  // by the place of the popup that holds them
    std::vector<std::size_t> holders{rows.size()};             // by level
    for (std::size_t i = 0; i < rows.size(); ++i) {
        captions[i] = rows[i].caption;
        if (rows[i].kind == MenuRow::Kind::Cycle) {
            attempt([&] { captions[i] = literal_caption(name_of(shared, cycle_popup(rows[i].request))); });
        }
        holders.resize(static_cast<std::size_t>(rows[i].level));
        siblings[holders.back()].push_back(i);
        holders.push_back(i);
    }
    for (const auto& [holder, places] : siblings) {
        if (!access_keys) break;
        std::vector<std::string> together;
        for (const std::size_t place : places) together.push_back(captions[place]);
        give_access_keys(together);
        for (std::size_t i = 0; i < places.size(); ++i) captions[places[i]] = together[i];
    }
    return captions;
}

// Where the product menu goes: in front of the tutorial and of Help.
std::optional<std::int32_t> place_on(const SharedState& shared, const ObjectRef& bar) {
    for (const std::string_view caption : {tutorial_caption, std::string_view("&Help")}) {
        if (const ObjectRef control = shared.spreadsheet().find_control(bar, caption)) {
            return excel::CommandBarControl(control).Index();
        }
    }
    return std::nullopt;
}

void build(const SharedState& shared, const ObjectRef& parent, std::span<const MenuRow> rows, bool on_toolbar) {
    const ResumeNext attempt(shared.trace);
    const std::vector<std::string> captions = captions_of(shared, rows, !on_toolbar);
    const ShortcutTexts shortcuts(shared);
    std::vector<ObjectRef> holders{parent};  // by level
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const MenuRow& row = rows[i];
        holders.resize(static_cast<std::size_t>(row.level));
        ObjectRef control;
        if (row.kind == MenuRow::Kind::Button) {
            core::ButtonDesign design{.caption = captions[i],
                                      .on_action = action_of(row),
                                      .parameter = std::string(row.request),
                                      .tag = tag_of(row, on_toolbar),
                                      .shortcut = on_toolbar ? std::string() : shortcuts.key(key_of(row)),
                                      .begin_group = row.line};
            if (row.face_id > 0) design.face_id = row.face_id;
            attempt.assign(control, [&] { return shared.spreadsheet().add_button(holders.back(), design); });
        } else {
            attempt.assign(control, [&] {
                return shared.spreadsheet().add_popup(holders.back(), captions[i], action_of(row),
                                                      tag_of(row, on_toolbar), row.line);
            });
        }
        holders.push_back(control);
        if (!control) continue;
        if (on_toolbar && row.kind == MenuRow::Kind::Button && row.face_id == 0) {
            // Without an icon it would be blank.
            attempt([&] { excel::CommandBarButton(control).Style(excel::msoButtonCaption); });
        }
        if (row.kind == MenuRow::Kind::Popup || row.request.find('.') != std::string_view::npos) continue;
        if (!has_key(row)) continue;
        attempt([&] {
            shared.spreadsheet().set_control_tooltip(
                control, automation::plain_caption(captions[i]) + ".  " + shortcuts.text(key_of(row)));
        });
    }
}

// Does something to a row's control on the menu and on the toolbar, where it is there.
template <class Act>
void for_controls(const SharedState& shared, const MenuRow& row, bool on_toolbar, Act&& act) {
    const ResumeNext attempt(shared.trace);
    ObjectRef control;
    attempt.assign(control, [&] { return shared.spreadsheet().find_control_by_tag(tag_of(row, on_toolbar)); });
    if (control) attempt([&] { act(control); });
}

void show_state(const SharedState& shared, std::span<const MenuRow> rows, bool on_toolbar, bool may_run) {
    const ResumeNext attempt(shared.trace);
    const core::diBRXLLib& library = shared.spreadsheet();
    for (const MenuRow& row : rows) {
        if (!needs_workbook(row) || row.kind == MenuRow::Kind::Cycle) continue;
        for_controls(shared, row, on_toolbar,
                     [&](const ObjectRef& control) { library.set_control_enabled(control, may_run); });
    }
    for (const RowState& state : row_states) {
        const MenuRow* row = row_of(rows, state.key);
        if (!row) continue;
        bool on = true;
        if (state.enabled) {
            attempt.assign(on, [&] { return state.enabled(shared); });
            for_controls(shared, *row, on_toolbar,
                         [&](const ObjectRef& control) { library.set_control_enabled(control, on); });
        }
        if (!state.checked || (!may_run && state.checked == shows_gridlines)) continue;
        if (!attempt.assign(on, [&] { return state.checked(shared); })) continue;
        for_controls(shared, *row, on_toolbar,
                     [&](const ObjectRef& control) { library.set_control_checked(control, on); });
    }
}

void show_cycles(const SharedState& shared, std::span<const MenuRow> rows, bool on_toolbar, bool may_run) {
    const ResumeNext attempt(shared.trace);
    const std::vector<std::string> captions = captions_of(shared, rows, !on_toolbar);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].kind != MenuRow::Kind::Cycle) continue;
        bool filled = false;
        attempt.assign(filled, [&] { return has_steps(shared, cycle_popup(rows[i].request)); });
        for_controls(shared, rows[i], on_toolbar, [&](const ObjectRef& control) {
            shared.spreadsheet().set_control_caption(control, captions[i]);
            shared.spreadsheet().set_control_enabled(control, filled && may_run);
        });
    }
}

bool may_run(const SharedState& shared) {
    bool may = false;
    ResumeNext(shared.trace).assign(may, [&] { return shared.spreadsheet().may_run_command(); });
    return may;
}

bool is_built(const SharedState& shared) {
    ObjectRef menu;
    ResumeNext(shared.trace).assign(menu, [&] { return shared.spreadsheet().find_control_by_tag(menu_tag); });
    return menu != nullptr;
}

// The menu and the toolbar, without the tutorial.
void remove_own(SharedState& shared) {
    const ResumeNext attempt(shared.trace);
    shared.product_menu.reset();
    attempt(
        [&] { shared.spreadsheet().remove_controls(shared.spreadsheet().worksheet_menu_bar(), product_menu_caption); });
    attempt([&] { shared.spreadsheet().remove_toolbar(toolbar_name); });
}

void build_own(SharedState& shared) {
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        const ObjectRef bar = shared.spreadsheet().worksheet_menu_bar();
        shared.product_menu = shared.spreadsheet().add_popup(bar, product_menu_caption, "mDOM.UpdateMenuPopup",
                                                             menu_tag, false, place_on(shared, bar));
    });
    if (shared.product_menu) build(shared, shared.product_menu, menu_rows(), false);
    ObjectRef toolbar;
    attempt.assign(toolbar, [&] { return shared.spreadsheet().toolbar(toolbar_name); });
    if (!toolbar) return;
    build(shared, toolbar, toolbar_rows(), true);
    attempt([&] { excel::CommandBar(toolbar).Visible(wants_toolbar(shared)); });
}

}  // namespace

void CreateBRMenus(SharedState& shared) {
    if (!shared.spreadsheet_library || !shared.user_settings) return;
    remove_own(shared);
    build_own(shared);
    show_tutorial(shared, shared.settings().TrainingModule);
    BRMenuState(shared);
}

void DeleteBRMenus(SharedState& shared) {
    if (!shared.spreadsheet_library) return;
    remove_own(shared);
    show_tutorial(shared, false);
}

void BRMenuState(SharedState& shared) {
    UpdateMenuPopup(shared);
    UpdateTogglesPopup(shared);
}

void UpdateMenuPopup(SharedState& shared) {
    if (!shared.spreadsheet_library || !shared.user_settings) return;
    const bool may = may_run(shared);
    show_state(shared, menu_rows(), false, may);
    show_state(shared, toolbar_rows(), true, may);
}

void UpdateTogglesPopup(SharedState& shared) {
    if (!shared.spreadsheet_library || !shared.user_settings) return;
    const bool may = may_run(shared);
    show_cycles(shared, menu_rows(), false, may);
    show_cycles(shared, toolbar_rows(), true, may);
}

void ToggleToolbar(SharedState& shared) {
    if (!shared.spreadsheet_library) return;
    const ResumeNext attempt(shared.trace);
    bool shown = false;
    attempt.assign(shown, [&] { return toolbar_is_shown(shared); });
    attempt([&] { excel::CommandBar(shared.spreadsheet().toolbar(toolbar_name)).Visible(!shown); });
    keep_toolbar(shared, !shown);
    UpdateMenuPopup(shared);
}

void refresh_menus(SharedState& shared) {
    if (!shared.spreadsheet_library || !is_built(shared)) return;
    CreateBRMenus(shared);
}

}  // namespace kestrune::menus
