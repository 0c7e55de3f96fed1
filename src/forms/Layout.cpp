#include "forms/Layout.h"

#include <algorithm>
#include <cstddef>

namespace kestrune::forms {
namespace {

// Points; Windows' own distances between the controls of dialogs.
constexpr double margin = 8.25;
constexpr double line_gap = 4.5;
constexpr double gap = 5.25;
constexpr double buttons_gap = 9;  // above the push buttons
constexpr double glyph = 13.5;     // an option button or check box before its caption
constexpr double arrows = 13.5;    // of spin buttons and combo boxes
constexpr double box_border = 6.75;
constexpr double least_button = 56.25;
constexpr Size frame_inset{8.25, 7.5};
constexpr double usual_width = 72;  // of boxes
constexpr double usual_lines = 6;   // of lists
constexpr double usual_text_lines = 3;
constexpr double picture_before_item = 15;
constexpr Size usual_sample{150, 48};

struct Cell {
    std::size_t control;
    Size need;
    double lead;  // empty space before it; to the column where it stands in one
};

struct Line {
    std::vector<Cell> cells;
    Size need;
    double space_above = 0;
    bool buttons = true;  // nothing but push buttons
    bool grows = false;   // takes height that is left over
};

struct Block {
    std::vector<Line> lines;
    Size need;
};

class Arranger {
  public:
    Arranger(const Form& form, const Measures& measures)
        : controls_(form.controls()), measures_(measures), line_height_(measures.text("Xg", 0).height) {}

    Layout arrange(Size inside) {
        const Block whole = block(nullptr, 0);
        layout_.inside = {std::max(inside.width, whole.need.width + 2 * margin),
                          std::max(inside.height, whole.need.height + 2 * margin)};
        layout_.boxes.resize(controls_.size());
        place(whole, {margin, margin, layout_.inside.width - 2 * margin, layout_.inside.height - 2 * margin});
        return std::move(layout_);
    }

  private:
    // What stands in a container (null: the form), on one page of it.
    [[nodiscard]] Block block(const Control* container, std::int32_t page) const {
        Block result;
        for (std::size_t i = 0; i < controls_.size(); ++i) {
            const Control& control = controls_[i];
            if (control.container() != container ||
                (container && container->is(Kind::Tabs) && control.design().page != page)) {
                continue;
            }
            if (control.design().place == Place::Below || result.lines.empty()) result.lines.emplace_back();
            add(result.lines.back(), i);
        }
        align_columns(result);
        // Of one size are those that stand with their like.
        double button = 0;
        for (const Line& line : result.lines) {
            for (const Cell& cell : line.cells) {
                if (line.buttons) button = std::max(button, cell.need.width);
            }
        }
        for (Line& line : result.lines) {
            if (&line != &result.lines.front()) line.space_above = line.buttons ? buttons_gap : line_gap;
            for (Cell& cell : line.cells) {
                if (line.buttons) cell.need.width = button;
                line.need.width += cell.lead + cell.need.width;
                line.need.height = std::max(line.need.height, cell.need.height);
            }
            result.need.width = std::max(result.need.width, line.need.width);
            result.need.height += line.space_above + line.need.height;
        }
        return result;
    }

    void add(Line& line, std::size_t i) const {
        const ControlDesign& design = controls_[i].design();
        const bool attached = design.place == Place::Attached;
        const double lead = line.cells.empty() ? design.indent : attached ? 0 : gap + design.indent;
        line.cells.push_back({i, need_of(controls_[i]), lead});
        line.buttons = line.buttons && design.kind == Kind::Push;
        line.grows = line.grows || grows(controls_[i]);
    }

    void align_columns(Block& block) const {
        double column = 0;
        const auto each = [&](auto&& act) {
            for (Line& line : block.lines) {
                double reached = 0;
                for (Cell& cell : line.cells) {
                    if (controls_[cell.control].design().place == Place::Column) {
                        act(cell, reached);
                        break;
                    }
                    reached += cell.lead + cell.need.width;
                }
            }
        };
        each([&](const Cell& cell, double reached) { column = std::max(column, reached + cell.lead); });
        each([&](Cell& cell, double reached) { cell.lead = column - reached; });
    }

    [[nodiscard]] bool grows(const Control& control) const {
        if (control.design().stretch == Stretch::Both) return true;
        return std::ranges::any_of(controls_,
                                   [&](const Control& inner) { return inner.container() == &control && grows(inner); });
    }

    [[nodiscard]] static bool stretches(const Control& control) {
        return control.design().stretch != Stretch::None || control.is(Kind::Frame) || control.is(Kind::Tabs) ||
               control.is(Kind::List);
    }

    [[nodiscard]] Size need_of(const Control& control) const {
        const ControlDesign& design = control.design();
        // Lists may be long, and measuring texts costs.
        if (design.width > 0 && design.height > 0) return {design.width, design.height};
        const Size need = natural(control);
        return {design.width > 0 ? design.width : need.width, design.height > 0 ? design.height : need.height};
    }

    [[nodiscard]] Size natural(const Control& control) const {
        const ControlDesign& design = control.design();
        const auto caption = [&] { return measures_.text(control.Caption(), 0); };
        const double box_height = line_height_ + box_border;
        switch (control.kind()) {
            case Kind::Label:
                return measures_.text(control.Caption(), design.width);
            case Kind::Option:
            case Kind::Check:
                return {glyph + caption().width + 2.25, std::max(line_height_, 10.5) + 1.5};
            case Kind::Text:
                return {usual_width, design.multi_line ? line_height_ * usual_text_lines + box_border : box_height};
            case Kind::Combo:
                return {design.width > 0
                            ? design.width
                            : widest(control.List()) + arrows + 9 + (design.pictured ? picture_before_item : 0),
                        box_height};
            case Kind::List:
                return {control.design().columns.empty() ? std::max(usual_width, widest(control.List()) + arrows + 9)
                                                         : sum_of(control.design().columns) + arrows + 9,
                        line_height_ * (usual_lines + (control.design().columns.empty() ? 0 : 1))};
            case Kind::Spin:
                return {arrows, box_height};
            case Kind::Push:
                return {std::max(caption().width + 18, least_button), line_height_ + 7.5};
            case Kind::Image:
                return control.Picture() ? Size{control.Picture()->width * 0.75, control.Picture()->height * 0.75}
                                         : Size{24, 24};
            case Kind::Sample:
                return usual_sample;
            case Kind::Frame: {
                const Size inner = block(&control, 0).need;
                return {std::max(inner.width, caption().width) + 2 * frame_inset.width,
                        top_inset(control) + inner.height + frame_inset.height};
            }
            case Kind::Tabs: {
                Size inner;
                for (std::int32_t page = 0; page < static_cast<std::int32_t>(control.List().size()); ++page) {
                    const Size need = block(&control, page).need;
                    inner = {std::max(inner.width, need.width), std::max(inner.height, need.height)};
                }
                double heads = 0;
                for (const std::string& head : control.List()) heads += measures_.text(head, 0).width + 13.5;
                return {std::max(inner.width, heads) + 2 * frame_inset.width,
                        top_inset(control) + inner.height + frame_inset.height};
            }
        }
        return {};
    }

    [[nodiscard]] static double sum_of(std::span<const ListColumn> columns) {
        double width = 0;
        for (const ListColumn& column : columns) width += column.width;
        return width;
    }

    [[nodiscard]] double widest(const std::vector<std::string>& items) const {
        double width = 0;
        for (const std::string& item : items) width = std::max(width, measures_.text(item, 0).width);
        return width;
    }

    [[nodiscard]] double top_inset(const Control& container) const {
        return container.is(Kind::Tabs) ? line_height_ + 15 : line_height_ + 4.5;
    }

    void place(const Block& block, const Box& inside) {
        const auto growing = std::ranges::count_if(block.lines, &Line::grows);
        const double more =
            growing == 0 ? 0 : std::max(0.0, inside.height - block.need.height) / static_cast<double>(growing);
        double top = inside.top;
        for (const Line& line : block.lines) {
            top += line.space_above;
            const double height = line.need.height + (line.grows ? more : 0);
            place(line, {inside.left, top, inside.width, height});
            top += height;
        }
    }

    void place(const Line& line, const Box& inside) {
        const auto stretching =
            std::ranges::count_if(line.cells, [&](const Cell& cell) { return stretches(controls_[cell.control]); });
        const double rest = std::max(0.0, inside.width - line.need.width);
        const double more = stretching == 0 ? 0 : rest / static_cast<double>(stretching);
        double left = inside.left + (line.buttons ? rest : 0);
        for (const Cell& cell : line.cells) {
            const Control& control = controls_[cell.control];
            left += cell.lead;
            Box box{left, inside.top, cell.need.width + (stretches(control) ? more : 0), cell.need.height};
            const bool fills =
                grows(control) || control.is(Kind::List) || control.is(Kind::Frame) || control.is(Kind::Tabs);
            if (fills) {
                box.height = inside.height;
            } else {
                // In the middle of a line of boxes; at the first line of a list.
                const double line_of_boxes = std::min(inside.height, line_height_ + box_border + 1.5);
                box.top += std::max(0.0, (line_of_boxes - box.height) / 2);
            }
            layout_.boxes[cell.control] = box;
            place_inside(control, box);
            left += box.width;
        }
    }

    void place_inside(const Control& control, const Box& box) {
        if (!control.is(Kind::Frame) && !control.is(Kind::Tabs)) return;
        const std::size_t pages = control.is(Kind::Tabs) ? control.List().size() : 1;
        for (std::size_t page = 0; page < pages; ++page) {
            place(block(&control, static_cast<std::int32_t>(page)),
                  {box.left + frame_inset.width, box.top + top_inset(control), box.width - 2 * frame_inset.width,
                   box.height - top_inset(control) - frame_inset.height});
        }
    }

    const std::deque<Control>& controls_;
    const Measures& measures_;
    double line_height_;
    Layout layout_;
};

}  // namespace

Layout lay_out(const Form& form, const Measures& measures, Size inside) {
    return Arranger(form, measures).arrange(inside);
}

}  // namespace kestrune::forms
