#pragma once

#include <memory>
#include <string>
#include <utility>

#include "automation/MemberTable.h"
#include "brxllib/Library.h"

namespace kestrune::brxllib {

// Finds controls of menus and toolbars, and changes how they look.
class iControl : public automation::Served<iControl> {
  public:
    explicit iControl(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    // The control with a caption ("&" and case apart) on a bar or a popup itself, or Nothing.
    [[nodiscard]] automation::ObjectRef find(const automation::ObjectRef& parent, const std::string& caption) const;
    // The control with a tag on any bar, popups included, or Nothing.
    [[nodiscard]] automation::ObjectRef find_by_tag(const std::string& tag) const;
    // What the control whose action runs carries: Parameter, "" when none runs.
    [[nodiscard]] std::string clicked_parameter() const;
    void set_caption(const automation::ObjectRef& control, const std::string& caption);
    void set_enabled(const automation::ObjectRef& control, bool enabled);
    // Shows a button pressed (a check mark in menus) or not.
    void set_checked(const automation::ObjectRef& button, bool checked);
    void set_tooltip(const automation::ObjectRef& control, const std::string& text);
    void remove(const automation::ObjectRef& control);

    std::shared_ptr<Library> library_;
};

}  // namespace kestrune::brxllib
