#pragma once

#include <cstdint>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "formula/Edit.h"

namespace kestrune::host {

// Moves the places that XML names: attributes and texts with cells, areas and formulas, found by the names that
// ECMA-376 and its extensions give to elements and attributes.
class Places {
  public:
    // `sheet` is the sheet that the XML belongs to; empty for a part of no sheet, whose formulas name theirs.
    Places(const formula::Edit& edit, std::string_view sheet);

    // Moves everything at and below a node and takes away what has lost its last cell. The node itself stays, perhaps
    // empty: see `empty`.
    void move(pugi::xml_node node);
    // Whether anything was changed.
    [[nodiscard]] bool changed() const { return changed_; }
    [[nodiscard]] bool own() const { return own_; }

    // One place each; false when it is gone, and then nothing changes.
    bool move_formula(pugi::xml_node node);  // the text of an element
    bool move_formula(pugi::xml_attribute attribute);
    bool move_areas(pugi::xml_attribute attribute);
    // A row or column counted from 0, of the edited kind, and gone without a trace: nothing.
    [[nodiscard]] std::optional<std::int32_t> line(std::int32_t from_zero) const;
    void set(pugi::xml_attribute attribute, const std::string& value);
    void set_text(pugi::xml_node node, const std::string& value);
    void remove(pugi::xml_node node);  // when everything has been looked at

    // Whether an element whose children are all gone has no meaning left.
    [[nodiscard]] static bool means_nothing(pugi::xml_node node);

  private:
    void walk(pugi::xml_node node);
    void visit(pugi::xml_node element);
    void move_rule(pugi::xml_node element);
    void move_rule_formulas(pugi::xml_node element, const std::vector<formula::Area>& areas);
    void move_sparkline(pugi::xml_node element);
    void move_break(pugi::xml_node element);
    void move_pane(pugi::xml_node element);
    void move_control(pugi::xml_node element);
    void move_filter(pugi::xml_node element);
    void move_consolidation(pugi::xml_node element);
    void prune(pugi::xml_node node);

    const formula::Edit& edit_;
    std::string sheet_;
    bool own_;
    bool changed_ = false;
    std::vector<pugi::xml_node> gone_;
};

}  // namespace kestrune::host
