#include "menus/TutorialMenu.h"

#include <optional>
#include <vector>

#include "automation/ResumeNext.h"
#include "core/bridges/Product.h"
#include "excel/CommandBarControl.h"
#include "forms/MsgBox.h"
#include "menus/LessonTree.h"
#include "menus/MenuTable.h"

namespace kestrune::menus {
namespace {

using automation::ObjectRef;
using automation::ResumeNext;

// Behind the product's menu; at the end of a bar that has none.
std::optional<std::int32_t> place_behind_product(const core::diBRXLLib& library, const ObjectRef& bar) {
    const ObjectRef product = library.find_control(bar, product_menu_caption);
    if (!product) return std::nullopt;
    return excel::CommandBarControl(product).Index() + 1;
}

void build(const core::SharedState& shared, const ObjectRef& bar) {
    const ResumeNext attempt(shared.trace);
    const core::diBRXLLib& library = shared.spreadsheet();
    ObjectRef menu;
    attempt.assign(menu, [&] {
        return library.add_popup(bar, tutorial_caption, {}, "Kestrune.Tutorial", false,
                                 place_behind_product(library, bar));
    });
    if (!menu) return;
    attempt([&] { library.add_button(menu, {.caption = "About This Menu", .on_action = "mDOM.AboutTrainingMenu"}); });
    std::vector<ObjectRef> holders{menu};  // by level
    for (const LessonRow& row : lesson_tree()) {
        holders.resize(static_cast<std::size_t>(row.level));
        ObjectRef popup;
        attempt([&] {
            if (row.file.empty()) {
                popup = library.add_popup(holders.back(), row.caption);
            } else {
                library.add_button(holders.back(), {.caption = std::string(row.caption),
                                                    .on_action = "mDOM.ShowLesson",
                                                    .parameter = std::string(row.file)});
            }
        });
        holders.push_back(popup);
    }
}

}  // namespace

void show_tutorial(const core::SharedState& shared, bool show) {
    const ResumeNext attempt(shared.trace);
    ObjectRef bar;
    if (!attempt.assign(bar, [&] { return shared.spreadsheet().worksheet_menu_bar(); })) return;
    if (!show) {
        attempt([&] { shared.spreadsheet().remove_controls(bar, tutorial_caption); });
        return;
    }
    ObjectRef menu;
    attempt.assign(menu, [&] { return shared.spreadsheet().find_control(bar, tutorial_caption); });
    if (!menu) build(shared, bar);
}

void ShowLesson(const core::SharedState& shared, const std::string& folder, std::string file) {
    const ResumeNext attempt(shared.trace);
    if (file.empty()) attempt.assign(file, [&] { return shared.spreadsheet().clicked_parameter(); });
    if (file.empty()) return;
    ObjectRef lesson;
    // A file name alone leads nowhere but into the folder, and these are all there are.
    if (is_lesson(file)) attempt.assign(lesson, [&] { return shared.spreadsheet().open_workbook(folder + file); });
    if (!lesson) ShowLessonErrMsg(shared);
}

void ShowLessonErrMsg(const core::SharedState& shared) {
    ResumeNext(shared.trace)([&] {
        forms::MsgBox(shared.presenter, shared.general().message(core::Text::LessonNotOpened), forms::vbExclamation,
                      core::product_title);
    });
}

}  // namespace kestrune::menus
