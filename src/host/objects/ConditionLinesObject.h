#pragma once

#include <vector>

#include "host/objects/BorderLine.h"
#include "host/objects/Colors.h"
#include "host/objects/ConditionRule.h"
#include "host/objects/HostObject.h"

namespace kestrune::host {

// What the Border and Borders of a conditional format have in common: sides of the cells that it holds for.
// A reading answers Null for a conditional format that draws no lines, and when the sides differ. Conditional
// formats draw thin lines only: a heavier weight is error 1004.
template <class Derived>
class ConditionLinesObject : public HostObject<Derived> {
  public:
    [[nodiscard]] Value line_style() const {  // XlLineStyle
        return read([](const Line& line) { return Value(host::line_style(line)); });
    }
    void set_line_style(std::int32_t style) {
        check_line_style("Border.LineStyle", style);
        write("Border.LineStyle", [&](Line& line) { host::set_line_style(line, style); });
    }
    [[nodiscard]] Value weight() const {  // XlBorderWeight
        return read([](const Line& line) { return Value(line_weight(line)); });
    }
    void set_weight(std::int32_t weight) {
        if (weight != xlThin && weight != xlHairline) {
            refuse("Border.Weight", "a conditional format draws thin lines only");
        }
        write("Border.Weight", [&](Line& line) { set_line_weight(line, weight); });
    }
    [[nodiscard]] Value color() const {  // BGR
        return read([&](const Line& line) { return color_value(rule_.workbook(), line.color, 0); });
    }
    void set_color(std::int32_t bgr) {
        write("Border.Color", [&](Line& line) { set_line_color(line, color_of_value(bgr)); });
    }
    [[nodiscard]] Value color_index() const {  // 1..56, xlAutomatic
        return read([&](const Line& line) {
            return line.style == LineStyle::None ? Value(xlNone) : host::color_index(rule_.workbook(), line.color);
        });
    }
    void set_color_index(std::int32_t index) {
        const Color color = color_of_index("Border.ColorIndex", index);
        write("Border.ColorIndex", [&](Line& line) { set_line_color(line, color); });
    }

    [[nodiscard]] Value theme_color() const {
        return themed("Border.ThemeColor", read([](const Line& line) { return host::theme_color(line.color); }));
    }
    void set_theme_color(std::int32_t color) {
        const Color stored = color_of_theme("Border.ThemeColor", color);
        write("Border.ThemeColor", [&](Line& line) { set_line_color(line, stored); });
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
    ConditionLinesObject(ConditionRule rule, std::vector<Edge> edges)
        : HostObject<Derived>(rule.session()), rule_(rule), edges_(std::move(edges)) {}

    [[nodiscard]] const ConditionRule& rule() const { return rule_; }

  private:
    template <class Read>
    [[nodiscard]] Value read(Read&& read_line) const {
        const auto border = rule_.differential().border;
        if (!border) return Null{};
        const Value first = read_line(border->line(edges_.front()));
        for (const Edge edge : edges_) {
            if (!(read_line(border->line(edge)) == first)) return Null{};
        }
        return first;
    }
    void write(std::string_view member, const std::function<void(Line&)>& change) const {
        rule_.change_differential(member, [&](DifferentialFormat& format) {
            Border border = format.border.value_or(Border{});
            for (const Edge edge : edges_) {
                Line& line = border.line(edge);
                change(line);
                if (line_weight(line) != xlThin && line_weight(line) != xlHairline) {
                    refuse(member, "a conditional format draws thin lines only");
                }
            }
            format.border = border == Border{} ? std::nullopt : std::optional(border);
        });
    }

    ConditionRule rule_;
    std::vector<Edge> edges_;
};

}  // namespace kestrune::host
