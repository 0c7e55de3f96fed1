#pragma once

#include "host/objects/BorderLine.h"
#include "host/objects/BorderLines.h"
#include "host/objects/Colors.h"
#include "host/objects/HostObject.h"

namespace kestrune::host {

// What Border and Borders have in common: the lines with one XlBordersIndex. A reading answers Null when
// the lines differ.
template <class Derived>
class LinesObject : public HostObject<Derived> {
  public:
    [[nodiscard]] Value line_style() const {  // XlLineStyle; xlNone without a line
        return read([](const Line& line) { return Value(host::line_style(line)); });
    }
    void set_line_style(std::int32_t style) {
        check_line_style("Border.LineStyle", style);
        write("Border.LineStyle", [&](Line& line) { host::set_line_style(line, style); });
    }
    [[nodiscard]] Value weight() const {  // XlBorderWeight; xlThin without a line
        return read([](const Line& line) { return Value(line_weight(line)); });
    }
    void set_weight(std::int32_t weight) {
        check_line_weight("Border.Weight", weight);
        write("Border.Weight", [&](Line& line) { set_line_weight(line, weight); });
    }
    [[nodiscard]] Value color() const {  // BGR; 0 without a line
        return read([&](const Line& line) { return color_value(cells_.workbook(), line.color, 0); });
    }
    void set_color(std::int32_t bgr) { write_color("Border.Color", color_of_value(bgr)); }
    [[nodiscard]] Value color_index() const {  // 1..56, xlAutomatic; xlNone without a line
        return read([&](const Line& line) {
            return line.style == LineStyle::None ? Value(xlNone) : host::color_index(cells_.workbook(), line.color);
        });
    }
    void set_color_index(std::int32_t index) {
        if (index == xlNone) return set_line_style(xlNone);
        write_color("Border.ColorIndex", color_of_index("Border.ColorIndex", index));
    }
    [[nodiscard]] Value theme_color() const {
        return themed("Border.ThemeColor", read([](const Line& line) { return host::theme_color(line.color); }));
    }
    void set_theme_color(std::int32_t color) {
        write_color("Border.ThemeColor", color_of_theme("Border.ThemeColor", color));
    }
    [[nodiscard]] Value tint_and_shade() const {
        return read([](const Line& line) { return Value(line.color.tint); });
    }
    void set_tint_and_shade(double tint) {
        const double checked = checked_tint("Border.TintAndShade", tint);
        write("Border.TintAndShade", [&](Line& line) {
            if (line.style != LineStyle::None) line.color.tint = checked;
        });
    }

  protected:
    LinesObject(CellRange cells, std::int32_t index)
        : HostObject<Derived>(cells.session()), cells_(std::move(cells)), index_(index) {}

    [[nodiscard]] const CellRange& cells() const { return cells_; }

  private:
    template <class Read>
    [[nodiscard]] Value read(Read&& read_line) const {
        const std::vector<Line> lines = lines_of(cells_, index_);
        if (lines.empty()) return read_line(Line{});
        const Value first = read_line(lines.front());
        for (const Line& line : lines) {
            if (!(read_line(line) == first)) return Null{};
        }
        return first;
    }
    void write(std::string_view member, const std::function<void(Line&)>& change) const {
        change_lines(cells_, index_, member, change);
    }
    void write_color(std::string_view member, const Color& color) const {
        write(member, [&](Line& line) { set_line_color(line, color); });
    }

    CellRange cells_;
    std::int32_t index_;
};

}  // namespace kestrune::host
