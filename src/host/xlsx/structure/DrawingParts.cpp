#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <vector>

#include "host/xlsx/package/XmlTree.h"
#include "host/xlsx/structure/Moving.h"
#include "host/xlsx/structure/Places.h"

namespace kestrune::host {
namespace {

constexpr std::int64_t emu_per_point = 12'700;
constexpr std::int64_t emu_per_pixel = 9'525;  // at 96 dpi

pugi::xml_node child_named(pugi::xml_node node, std::string_view name) {
    for (const pugi::xml_node child : node.children())
        if (local_name(child.name()) == name) return child;
    return {};
}

// How far rows or columns reach on the sheet, before an edit and after it. Lines are counted from 0.
class Grid {
  public:
    Grid(Sheet& sheet, const formula::Edit& edit) : sheet_(sheet), edit_(edit) {}

    [[nodiscard]] std::int64_t before(std::int32_t line) const {
        if (edit_.of_rows()) return std::llround(sheet_.row_height(line + 1) * emu_per_point);
        return sheet_.column_pixels(line + 1) * emu_per_pixel;
    }
    [[nodiscard]] std::int64_t after(std::int32_t line) const {
        const std::int32_t first = edit_.first - 1;
        if (line < first) return before(line);
        if (!edit_.inserts()) return before(line + edit_.count);
        if (line >= first + edit_.count) return before(line - edit_.count);
        return before(std::max(first - 1, 0));  // new ones look like the one before them
    }

  private:
    Sheet& sheet_;
    const formula::Edit& edit_;
};

// Where a corner of a shape is: in a row or column, so many EMU behind its start.
struct Corner {
    std::int32_t line = 0;
    std::int64_t offset = 0;
};

class Anchor {
  public:
    Anchor(Moving& moving, Sheet& sheet) : edit_(moving.edit), grid_(sheet, moving.edit) {}

    // Cells push the corner along. One that ends a shape stays where it touches what comes in.
    [[nodiscard]] Corner pushed(Corner corner, bool ends_before) const {
        const std::int32_t first = edit_.first - 1;
        if (edit_.inserts()) {
            const bool stays = corner.line < first || (ends_before && corner.line == first && corner.offset == 0);
            return stays ? corner : Corner{corner.line + edit_.count, corner.offset};
        }
        if (corner.line < first) return corner;
        if (corner.line < first + edit_.count) return {first, 0};
        return {corner.line - edit_.count, corner.offset};
    }
    // Distances along the sheet.
    [[nodiscard]] std::int64_t distance_before(Corner from, Corner to) const {
        std::int64_t sum = to.offset - from.offset;
        for (std::int32_t line = from.line; line < to.line; ++line) sum += grid_.before(line);
        return sum;
    }
    [[nodiscard]] Corner at_distance_after(Corner from, std::int64_t distance) const {
        std::int64_t rest = from.offset + std::max<std::int64_t>(distance, 0);
        Corner corner{from.line, 0};
        for (std::int64_t size = grid_.after(corner.line); rest >= size && corner.line + 1 < formula::max_rows;
             size = grid_.after(corner.line)) {
            rest -= size;
            ++corner.line;
            if (size == 0 && corner.line > from.line + 100'000) break;
        }
        corner.offset = rest;
        return corner;
    }

    // Both corners of a shape that moves and sizes with cells, only moves, or does neither.
    void move(Corner& from, Corner& to, bool moves, bool sizes) const {
        const Corner old_from = from;
        const Corner old_to = to;
        if (moves) {
            from = pushed(old_from, false);
        } else {
            from = at_distance_after({0, 0}, distance_before({0, 0}, old_from));
        }
        if (moves && sizes)
            to = pushed(old_to, pushed(old_from, false).line == old_from.line);
        else
            to = at_distance_after(from, distance_before(old_from, old_to));
    }

  private:
    const formula::Edit& edit_;
    Grid grid_;
};

// The elements that tell one corner.
struct Marker {
    pugi::xml_node line;
    pugi::xml_node offset;

    Marker(pugi::xml_node marker, const formula::Edit& edit)
        : line(child_named(marker, edit.of_rows() ? "row" : "col")),
          offset(child_named(marker, edit.of_rows() ? "rowOff" : "colOff")) {}
    [[nodiscard]] Corner read() const { return {line.text().as_int(), offset.text().as_llong()}; }
    void write(Places& places, Corner corner) const {
        places.set_text(line, std::to_string(corner.line));
        places.set_text(offset, std::to_string(corner.offset));
    }
};

void move_anchor(Places& places, const Anchor& anchor, pugi::xml_node element, const formula::Edit& edit) {
    const Marker from(child_named(element, "from"), edit);
    const pugi::xml_node end = child_named(element, "to");
    if (!from.line) return;
    if (!end) return from.write(places, anchor.pushed(from.read(), false));
    const Marker to(end, edit);
    const std::string_view mode = element.attribute("editAs").as_string("twoCell");
    Corner first = from.read();
    Corner last = to.read();
    anchor.move(first, last, mode != "absolute", mode == "twoCell");
    from.write(places, first);
    to.write(places, last);
}

// "left column, offset, top row, offset, right column, offset, bottom row, offset", offsets in pixels.
std::vector<std::int32_t> numbers_of(std::string_view text) {
    std::vector<std::int32_t> numbers;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end) {
        std::int32_t number = 0;
        if (const auto parsed = std::from_chars(at, end, number); parsed.ec == std::errc()) {
            numbers.push_back(number);
            at = parsed.ptr;
        } else {
            ++at;
        }
    }
    return numbers;
}

// A note goes where its cell goes, and with it; a control as other shapes do.
void move_client_data(Places& places, pugi::xml_node data, const formula::Edit& edit) {
    const bool note = std::string_view(data.attribute("ObjectType").value()) == "Note";
    const pugi::xml_node box = child_named(data, "Anchor");
    std::vector<std::int32_t> numbers = numbers_of(box.text().get());
    const std::size_t first = edit.of_rows() ? 2 : 0;
    std::int32_t by = 0;
    if (note) {
        const pugi::xml_node cell = child_named(data, edit.of_rows() ? "Row" : "Column");
        const auto moved = places.line(cell.text().as_int());
        if (!moved) return places.remove(data.parent());
        by = *moved - cell.text().as_int();
        places.set_text(cell, std::to_string(*moved));
    } else if (numbers.size() == 8) {
        by = places.line(numbers[first]).value_or(edit.first - 1) - numbers[first];
    }
    if (numbers.size() != 8 || by == 0) return;
    std::string text;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const bool of_axis = i == first || i == first + 4;
        if (!text.empty()) text += ", ";
        text += std::to_string(of_axis ? std::max(numbers[i] + by, 0) : numbers[i]);
    }
    places.set_text(box, text);
}

void move_all_client_data(Places& places, pugi::xml_node node, const formula::Edit& edit) {
    for (const pugi::xml_node child : node.children()) {
        if (local_name(child.name()) == "ClientData")
            move_client_data(places, child, edit);
        else
            move_all_client_data(places, child, edit);
    }
}

}  // namespace

void move_drawing(Moving& moving, const MovingPart& part) {
    auto tree = tree_of(moving, part);
    if (!tree) return;
    Places places(moving.edit, sheet_of(moving, part));
    if (on_edited_sheet(moving, part)) {
        const Anchor anchor(moving, *moving.book.sheets()[*part.sheet]);
        for (const pugi::xml_node child : tree->document_element().children())
            if (local_name(child.name()).ends_with("Anchor")) move_anchor(places, anchor, child, moving.edit);
    }
    places.move(*tree);
    if (places.changed()) replace(moving, part, *tree);
}

void move_vml(Moving& moving, const MovingPart& part) {
    auto tree = tree_of(moving, part);
    if (!tree) return;
    Places places(moving.edit, sheet_of(moving, part));
    if (on_edited_sheet(moving, part)) move_all_client_data(places, *tree, moving.edit);
    places.move(*tree);
    if (places.changed()) replace(moving, part, *tree);
}

}  // namespace kestrune::host
