#include "cli/show/HtmlPage.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <unordered_map>

#include "brvblib/xml/XmlText.h"
#include "cli/show/Appearance.h"
#include "cli/show/Outline.h"
#include "cli/show/PageStyle.h"
#include "formula/Column.h"

namespace kestrune::cli {
namespace {

using formula::Area;
using formula::Position;

// A page beyond this helps nobody, and browsers choke on it.
constexpr std::int32_t most_rows = 2000;
constexpr std::int32_t most_columns = 200;

// A text in the page; its line breaks break lines.
std::string escaped(std::string_view text) {
    constexpr std::string_view line_feed = "&#10;";
    std::string out = brvblib::xml_attribute(text);
    for (auto at = out.find(line_feed); at != std::string::npos; at = out.find(line_feed, at))
        out.replace(at, line_feed.size(), "<br>");
    return out;
}

std::string hex(std::uint32_t bgr) {
    return fmt::format("#{:02x}{:02x}{:02x}", bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
}

// CSS texts given short class names, so that a thousand like cells cost a thousand letters.
class CssClasses {
  public:
    std::string name_of(const std::string& css) {
        const auto [entry, fresh] = names_.try_emplace(css, fmt::format("k{}", names_.size()));
        if (fresh) order_.push_back(css);
        return entry->second;
    }
    [[nodiscard]] std::string rules() const {
        std::string out;
        for (const std::string& css : order_)
            fmt::format_to(std::back_inserter(out), "td.{}{{{}}}\n", names_.at(css), css);
        return out;
    }

  private:
    std::unordered_map<std::string, std::string> names_;
    std::vector<std::string> order_;
};

std::string line_css(const VisibleLine& line) {
    using enum host::LineStyle;
    const char* shape = "1px solid";
    switch (line.style) {
        case None:
            return {};
        case Thin:
            shape = "1px solid";
            break;
        case Hair:
        case Dotted:
            shape = "1px dotted";
            break;
        case Dashed:
        case DashDot:
        case DashDotDot:
            shape = "1px dashed";
            break;
        case Medium:
            shape = "2px solid";
            break;
        case MediumDashed:
        case MediumDashDot:
        case MediumDashDotDot:
        case SlantDashDot:
            shape = "2px dashed";
            break;
        case Thick:
            shape = "3px solid";
            break;
        case Double:
            shape = "3px double";
            break;
    }
    return fmt::format("{} {}", shape, hex(line.color));
}

std::string cell_css(const Appearance& look, bool gridlines) {
    std::string css;
    auto add = [&](std::string_view text) { css += text; };
    if (look.font)
        fmt::format_to(std::back_inserter(css), "font:{}pt '{}',sans-serif;", look.font->size,
                       escaped(look.font->name));
    if (look.bold) add("font-weight:bold;");
    if (look.italic) add("font-style:italic;");
    if (look.font_color != 0) add(fmt::format("color:{};", hex(look.font_color)));
    const bool doubled =
        look.underline == host::Underline::Double || look.underline == host::Underline::DoubleAccounting;
    if (look.underline != host::Underline::None || look.strike) {
        add(fmt::format("text-decoration:{}{}{};", look.underline != host::Underline::None ? "underline " : "",
                        look.strike ? "line-through " : "", doubled ? "double" : ""));
    }
    switch (look.horizontal) {
        case host::Horizontal::Right:
            add("text-align:right;");
            break;
        case host::Horizontal::Center:
        case host::Horizontal::CenterContinuous:
            add("text-align:center;");
            break;
        case host::Horizontal::Justify:
        case host::Horizontal::Distributed:
            add("text-align:justify;white-space:normal;");
            break;
        default:
            break;
    }
    switch (look.alignment.vertical) {
        case host::Vertical::Top:
            add("vertical-align:top;");
            break;
        case host::Vertical::Bottom:
            break;
        default:
            add("vertical-align:middle;");
            break;
    }
    if (look.alignment.indent > 0) {
        const char* side = look.horizontal == host::Horizontal::Right ? "right" : "left";
        add(fmt::format("padding-{}:{}px;", side, 3 + 9 * look.alignment.indent));
    }
    if (look.alignment.wrap) add("white-space:pre-wrap;overflow-wrap:anywhere;");
    if (look.fill) add(fmt::format("background:{};", hex(*look.fill)));
    const std::pair<const char*, const VisibleLine*> sides[] = {
        {"left", &look.left}, {"top", &look.top}, {"right", &look.right}, {"bottom", &look.bottom}};
    for (const auto& [side, line] : sides) {
        if (line->style != host::LineStyle::None) {
            add(fmt::format("border-{}:{};", side, line_css(*line)));
        } else if (look.fill) {
            add(fmt::format("border-{}-color:{};", side, hex(*look.fill)));
        }
    }
    if (!gridlines && !look.fill) css.insert(0, "border-color:transparent;");
    return css;
}

// Excel's own turning: positive counts anticlockwise, 91 to 180 clockwise, 255 stacks letters.
std::string turned(const std::string& text, std::int32_t rotation) {
    if (rotation == 0 || text.empty()) return text;
    if (rotation == 255) return fmt::format("<span class=stack>{}</span>", text);
    if (rotation == 90) return fmt::format("<span class=up>{}</span>", text);
    if (rotation == 180) return fmt::format("<span class=down>{}</span>", text);
    return fmt::format("<span class=turn style='transform:rotate({}deg)'>{}</span>",
                       rotation <= 90 ? -rotation : rotation - 90, text);
}

// The text of a cell; an accounting format's sign stands at the left end of the cell.
std::string inner(const Appearance& look) {
    if (!look.fill_at) return escaped(look.text);
    return fmt::format("<span class=ends><span>{}</span><span>{}</span></span>",
                       escaped(look.text.substr(0, *look.fill_at)), escaped(look.text.substr(*look.fill_at)));
}

class SheetPage {
  public:
    SheetPage(host::Sheet& sheet, const Area& area, CssClasses& css, const Classify& classify)
        : sheet_(sheet), area_(area), css_(css), looks_(sheet) {
        area_.last_row = std::min(area_.last_row, area_.first_row + most_rows - 1);
        area_.last_column = std::min(area_.last_column, area_.first_column + most_columns - 1);
        cut_ = area_ != area;
        if (classify) classes_ = classify(sheet, area_);
        for (std::int32_t row = area_.first_row; row <= area_.last_row; ++row) {
            if (sheet_.row_height(row) > 0) rows_.push_back(row);
        }
        for (std::int32_t column = area_.first_column; column <= area_.last_column; ++column) {
            if (sheet_.column_width(column) > 0) columns_.push_back(column);
        }
    }

    std::string table() {
        const OutlineGutter rows_gutter = row_gutter(sheet_, rows_);
        const OutlineGutter columns_gutter = column_gutter(sheet_, columns_);
        if (classes_) out_ = legend();
        fmt::format_to(std::back_inserter(out_), "<table style='zoom:{}%'><colgroup>", sheet_.view().zoom);
        for (int i = 0; i < rows_gutter.levels; ++i) out_ += "<col style='width:16px'>";
        out_ += "<col style='width:44px'>";
        for (const std::int32_t column : columns_) {
            fmt::format_to(std::back_inserter(out_), "<col style='width:{}px'>", sheet_.column_pixels(column));
        }
        out_ += "</colgroup>\n";
        for (int level = 0; level < columns_gutter.levels; ++level) {
            out_ += "<tr class=g>";
            out_ += fmt::format("<td colspan={} class=n></td>", rows_gutter.levels + 1);
            for (std::size_t i = 0; i < columns_.size(); ++i)
                mark(columns_gutter.marks[i][static_cast<std::size_t>(level)], 'h');
            out_ += "</tr>\n";
        }
        out_ += "<tr>";
        for (int i = 0; i < rows_gutter.levels; ++i) out_ += "<td class=n></td>";
        out_ += "<th></th>";
        for (const std::int32_t column : columns_) out_ += fmt::format("<th>{}</th>", formula::column_letters(column));
        out_ += "</tr>\n";
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            fmt::format_to(std::back_inserter(out_), "<tr style='height:{}pt'>", sheet_.row_height(rows_[i]));
            for (int level = 0; level < rows_gutter.levels; ++level)
                mark(rows_gutter.marks[i][static_cast<std::size_t>(level)], 'v');
            fmt::format_to(std::back_inserter(out_), "<th>{}</th>", rows_[i]);
            row_cells(rows_[i]);
            out_ += "</tr>\n";
        }
        out_ += "</table>";
        if (cut_) {
            out_ +=
                fmt::format("<p class=cut>The sheet goes on; this page shows rows {} to {} and columns {} to {}.</p>",
                            area_.first_row, area_.last_row, formula::column_letters(area_.first_column),
                            formula::column_letters(area_.last_column));
        }
        return std::move(out_);
    }

  private:
    [[nodiscard]] std::string legend() const {
        std::string out = "<p class=legend>";
        for_each_class(*classes_, [&](const ClassLook& look, const std::string& count) {
            fmt::format_to(std::back_inserter(out), "<span style='background:{}'>{}</span> {} ", hex(look.fill),
                           look.name, count);
        });
        return out + "</p>\n";
    }

    // Has a cell look like its class, and says it to who points at it.
    std::string classified(Appearance& look, Position at) const {
        const brxllib::CellClass cell = classes_->at(at);
        look.font_color = 0;
        look.fill.reset();
        if (cell == brxllib::CellClass::Empty) return {};
        look.fill = look_of(cell).fill;
        const std::string formula = sheet_.formula_at(at);
        return fmt::format(" title=\"{}{}{}\"", look_of(cell).name,
                           formula.empty() ? "" : ": =", brvblib::xml_attribute(formula));
    }

    void mark(OutlineMark mark, char direction) {
        switch (mark) {
            case OutlineMark::None:
                out_ += "<td class=n></td>";
                break;
            case OutlineMark::Line:
                fmt::format_to(std::back_inserter(out_), "<td class='n o{}'></td>", direction);
                break;
            case OutlineMark::Open:
                out_ += "<td class='n ob'>&minus;</td>";
                break;
            case OutlineMark::Closed:
                out_ += "<td class='n ob'>+</td>";
                break;
        }
    }

    void row_cells(std::int32_t row) {
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            const Position at{row, columns_[i]};
            std::string attributes;
            Appearance look = looks_.at(at);
            const auto merged = sheet_.merge_at(at);
            if (merged) {
                if (!leads(*merged, at)) continue;
                attributes = span_attributes(*merged);
                const Appearance far = looks_.at({merged->last_row, merged->last_column});
                look.right = far.right;
                look.bottom = far.bottom;
            }
            if (classes_) attributes += classified(look, at);
            std::string css = cell_css(look, sheet_.view().show_gridlines);
            if (row == sheet_.view().frozen_rows && look.bottom.style == host::LineStyle::None)
                css += "border-bottom:1px solid #7f7f7f;";
            if (at.column == sheet_.view().frozen_columns && look.right.style == host::LineStyle::None)
                css += "border-right:1px solid #7f7f7f;";
            // A long text runs over blank neighbours; anything else ends where its cell ends.
            const bool clipped = !look.blank && !(look.runs_over() && !merged && room_beside(at, look, i));
            fmt::format_to(std::back_inserter(out_), "<td class={}{}>", css_.name_of(css), attributes);
            if (!look.blank) {
                const std::string text = turned(inner(look), look.alignment.rotation);
                out_ += clipped ? fmt::format("<div>{}</div>", text) : text;
            }
            out_ += "</td>";
        }
    }

    [[nodiscard]] bool room_beside(Position at, const Appearance& look, std::size_t i) {
        const bool leftward = look.horizontal == host::Horizontal::Right;
        if (leftward ? i == 0 : i + 1 == columns_.size()) return false;
        const Position beside{at.row, columns_[leftward ? i - 1 : i + 1]};
        return looks_.at(beside).blank && !sheet_.merge_at(beside);
    }

    // Whether a merged area is drawn from this cell: its first row and column that are in sight.
    [[nodiscard]] bool leads(const Area& merged, Position at) const {
        return at.row == *std::ranges::lower_bound(rows_, merged.first_row) &&
               at.column == *std::ranges::lower_bound(columns_, merged.first_column);
    }

    [[nodiscard]] std::string span_attributes(const Area& merged) const {
        const auto within = [](const std::vector<std::int32_t>& shown, std::int32_t first, std::int32_t last) {
            return std::ranges::upper_bound(shown, last) - std::ranges::lower_bound(shown, first);
        };
        return fmt::format(" colspan={} rowspan={}", within(columns_, merged.first_column, merged.last_column),
                           within(rows_, merged.first_row, merged.last_row));
    }

    host::Sheet& sheet_;
    Area area_;
    CssClasses& css_;
    SheetAppearance looks_;
    std::optional<Classes> classes_;  // when fills show them
    bool cut_ = false;
    std::vector<std::int32_t> rows_, columns_;  // those in sight
    std::string out_;
};

std::string page(const std::string& title, const std::vector<std::pair<host::Sheet*, Area>>& sheets,
                 const Classify& classify, std::size_t opened = 0) {
    CssClasses css;
    std::string body, tabs, switches;
    for (std::size_t i = 0; i < sheets.size(); ++i) {
        const auto& [sheet, area] = sheets[i];
        fmt::format_to(std::back_inserter(body), "<input type=radio name=sheet id=t{0}{1}>\n<section>{2}</section>\n",
                       i, i == opened ? " checked" : "", SheetPage(*sheet, area, css, classify).table());
        const std::string color = sheet->defaults().tab_color
                                      ? fmt::format(" style='border-bottom:3px solid {}'",
                                                    hex(sheet->workbook().rgb_of(*sheet->defaults().tab_color, 0)))
                                      : "";
        fmt::format_to(std::back_inserter(tabs), "<label for=t{} data-tab={}{}>{}</label>", i, i, color,
                       escaped(sheet->name()));
        fmt::format_to(
            std::back_inserter(switches),
            "body:has(#t{0}:checked) nav label[for=t{0}]{{background:#fff;font-weight:bold;color:#107c41}}\n", i);
    }
    return fmt::format(
        "<!DOCTYPE html>\n<html lang=en><head><meta charset=utf-8><title>{}</title>\n<style>\n{}{}{}</style></head>\n"
        "<body><header>{}</header>\n{}<nav>{}</nav></body></html>\n",
        escaped(title), page_style, css.rules(), switches, escaped(title), body, tabs);
}

}  // namespace

std::string html_page(host::Workbook& workbook, const Classify& classify) {
    std::vector<std::pair<host::Sheet*, Area>> sheets;
    std::size_t opened = 0;
    for (std::int32_t position = 0; const auto& sheet : workbook.sheets()) {
        const bool active = position++ == workbook.active_sheet;
        if (sheet->kind() != host::SheetKind::Worksheet || sheet->visibility != host::Visibility::Visible) continue;
        if (active) opened = sheets.size();
        Area area = sheet->used_area();
        // A person sees the sheet from its first cell on, and some empty room around.
        area.first_row = area.first_column = 1;
        area.last_row = std::clamp(area.last_row + 3, 20, formula::max_rows);
        area.last_column = std::clamp(area.last_column + 2, 8, formula::max_columns);
        sheets.emplace_back(sheet.get(), area);
    }
    return page(workbook.name, sheets, classify, opened);
}

std::string html_page(host::Workbook& workbook, host::Sheet& sheet, const Area& area, const Classify& classify) {
    return page(workbook.name, {{&sheet, area}}, classify);
}

}  // namespace kestrune::cli
