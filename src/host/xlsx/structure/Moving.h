#pragma once

#include <functional>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <utility>
#include <vector>

#include "formula/Edit.h"
#include "host/model/Workbook.h"
#include "host/xlsx/package/Package.h"

namespace kestrune::host {

// An edit on its way through the parts of a package: what it reads, and what is to be done once nothing objects.
struct Moving {
    const Package& package;
    Workbook& book;
    const formula::Edit& edit;
    std::vector<std::pair<std::string, std::string>> replaced;  // parts and their new bytes
    std::vector<std::function<void(Package&)>> later;           // whatever else
};

// A part to move: its name, and the position of the sheet that it belongs to; none for the workbook's own.
struct MovingPart {
    std::string name;
    std::optional<std::size_t> sheet;
};

[[nodiscard]] std::string sheet_of(const Moving& moving, const MovingPart& part);  // its name, or none
[[nodiscard]] bool on_edited_sheet(const Moving& moving, const MovingPart& part);
// The part as a tree. Nothing when it cannot concern the edit: it is of another sheet and never names the edited one.
[[nodiscard]] std::optional<pugi::xml_document> tree_of(const Moving& moving, const MovingPart& part);
void replace(Moving& moving, const MovingPart& part, const pugi::xml_document& tree);

// The kinds of parts.
void move_any(Moving& moving, const MovingPart& part);      // by the names of elements and attributes alone
void move_drawing(Moving& moving, const MovingPart& part);  // DrawingParts.cpp
void move_vml(Moving& moving, const MovingPart& part);
void move_table(Moving& moving, const MovingPart& part);        // TableParts.cpp
void move_pivot_table(Moving& moving, const MovingPart& part);  // PivotParts.cpp
void move_pivot_cache(Moving& moving, const MovingPart& part);

}  // namespace kestrune::host
