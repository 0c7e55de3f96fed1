#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "automation/MemberTable.h"
#include "brxllib/Library.h"

namespace kestrune::brxllib {

// Builds menus and toolbars. A parent is a command bar or a popup.
class iMenu : public automation::Served<iMenu> {
  public:
    explicit iMenu(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    using Text = std::optional<std::string>;
    using Number = std::optional<std::int32_t>;
    using Flag = std::optional<bool>;

    // The menu bar that worksheets show.
    [[nodiscard]] automation::ObjectRef worksheet_menu_bar() const;
    // The toolbar of a name, made when there is none.
    [[nodiscard]] automation::ObjectRef toolbar(const std::string& name);
    // Whether there was one.
    bool remove_toolbar(const std::string& name);
    // A popup, which runs OnAction when it opens, and a button, which runs it when it is pressed. Swatch: a BGR color
    // that the button's face shows.
    automation::ObjectRef add_popup(const automation::ObjectRef& parent, const std::string& caption,
                                    const Text& on_action, const Text& tag, Flag begin_group, Number before);
    automation::ObjectRef add_button(const automation::ObjectRef& parent, const std::string& caption,
                                     const std::string& on_action, const Text& parameter, Number face_id,
                                     Flag begin_group, const Text& tag, Number before, const Text& shortcut_text,
                                     Number swatch);
    // Deletes what a bar or a popup holds, Excel's own controls left alone; how many went.
    std::int32_t clear(const automation::ObjectRef& parent);
    // Deletes the controls with a caption; how many went.
    std::int32_t remove(const automation::ObjectRef& parent, const std::string& caption);

    std::shared_ptr<Library> library_;
};

}  // namespace kestrune::brxllib
