#include "cli/show/TerminalGrid.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <iterator>

#include "cli/show/Appearance.h"
#include "cli/show/Outline.h"
#include "formula/Column.h"

namespace kestrune::cli {
namespace {

using formula::Position;

constexpr int widest = 40;  // characters; a wider column is cut

int letters_in(std::string_view text) {
    return static_cast<int>(
        std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

// The first letters of a UTF-8 text.
std::string_view first_letters(std::string_view text, int count) {
    std::size_t end = 0;
    while (end < text.size() && count > 0) {
        ++end;
        while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) ++end;
        --count;
    }
    return text.substr(0, end);
}

// A text that fills its column: cut with an ellipsis, or padded on the side that its alignment leaves free.
std::string fitted(std::string text, int width, host::Horizontal horizontal) {
    std::ranges::replace(text, '\n', ' ');
    const int letters = letters_in(text);
    if (letters > width) return width > 1 ? std::string(first_letters(text, width - 1)) + "…" : "…";
    const int room = width - letters;
    int before = 0;
    if (horizontal == host::Horizontal::Right) before = room;
    if (horizontal == host::Horizontal::Center || horizontal == host::Horizontal::CenterContinuous) before = room / 2;
    return std::string(static_cast<std::size_t>(before), ' ') + text +
           std::string(static_cast<std::size_t>(room - before), ' ');
}

std::string rgb_code(int kind, std::uint32_t bgr) {
    return fmt::format(";{};2;{};{};{}", kind, bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
}

std::string painted(const std::string& text, const Appearance& look) {
    std::string codes = "0";
    if (look.bold) codes += ";1";
    if (look.italic) codes += ";3";
    if (look.underline != host::Underline::None || look.bottom.style != host::LineStyle::None) codes += ";4";
    if (look.strike) codes += ";9";
    if (look.fill) {
        codes += rgb_code(48, *look.fill) +
                 rgb_code(38, look.font_color);  // a fill needs its own ink, whatever the terminal's
    } else if (look.font_color != 0) {
        codes += rgb_code(38, look.font_color);
    }
    return codes == "0" ? text : fmt::format("\x1b[{}m{}\x1b[0m", codes, text);
}

class Grid {
  public:
    Grid(host::Sheet& sheet, const formula::Area& area, bool color, const Classes* classes)
        : sheet_(sheet), color_(color), classes_(classes), looks_(sheet) {
        for (std::int32_t row = area.first_row; row <= area.last_row; ++row) {
            if (sheet.row_height(row) > 0) rows_.push_back(row);
        }
        for (std::int32_t column = area.first_column; column <= area.last_column; ++column) {
            const double width = sheet.column_width(column);
            if (width <= 0) continue;
            columns_.push_back(column);
            widths_.push_back(std::clamp(static_cast<int>(std::lround(width)), 2, widest) + mark_width());
        }
    }

    std::string draw() {
        const OutlineGutter gutter = row_gutter(sheet_, rows_);
        const std::string indent(static_cast<std::size_t>(gutter.levels + number_width), ' ');
        std::string out = indent;
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            out += ' ' + fitted(formula::column_letters(columns_[i]), widths_[i], host::Horizontal::Center);
        }
        out += '\n';
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            for (const OutlineMark mark : gutter.marks[i]) {
                static constexpr const char* signs[] = {" ", "│", "-", "+"};
                out += signs[static_cast<std::size_t>(mark)];
            }
            fmt::format_to(std::back_inserter(out), "{:>{}}", rows_[i], number_width);
            draw_row(out, rows_[i]);
            while (out.ends_with(' ')) out.pop_back();
            out += '\n';
        }
        if (classes_) out += legend();
        return out;
    }

  private:
    static constexpr int number_width = 7;

    // Room in front of each text for its class's letter.
    [[nodiscard]] int mark_width() const { return classes_ ? 2 : 0; }

    [[nodiscard]] std::string on_fill(const std::string& text, const ClassLook& look) const {
        if (!color_) return text;
        Appearance filled;
        filled.fill = look.fill;
        return painted(text, filled);
    }

    [[nodiscard]] std::string legend() const {
        std::string out = "\n";
        for_each_class(*classes_, [&](const ClassLook& look, const std::string& count) {
            out += fmt::format("{} {}  ", on_fill(fmt::format("{} {}", look.mark, look.name), look), count);
        });
        while (out.ends_with(' ')) out.pop_back();
        return out + '\n';
    }

    void draw_row(std::string& out, std::int32_t row) {
        Appearance before;
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            const Position at{row, columns_[i]};
            Appearance look = looks_.at(at);
            out += look.left.style != host::LineStyle::None || before.right.style != host::LineStyle::None ? "│" : " ";
            int width = widths_[i];
            std::size_t last = i;
            // A long text runs over blank cells at its right, and a merged area is one cell.
            const auto merged = sheet_.merge_at(at);
            const bool runs_over = look.runs_over() && look.horizontal != host::Horizontal::Right;
            while (last + 1 < columns_.size()) {
                const Position next{row, columns_[last + 1]};
                const bool joined = merged && merged->contains(next);
                const bool taken = !joined && runs_over && !merged && letters_in(look.text) > width - mark_width() &&
                                   looks_.at(next).blank && !sheet_.merge_at(next) && !look.fill;
                if (!joined && !taken) break;
                ++last;
                width += widths_[last] + 1;
            }
            std::string text = look.text;
            if (look.alignment.indent > 0) {
                const std::string blanks(static_cast<std::size_t>(look.alignment.indent), ' ');
                text = look.horizontal == host::Horizontal::Right ? text + blanks : blanks + text;
            }
            // A number that does not fit shows as marks, never as another number.
            if (look.kind == host::CellKind::Number && letters_in(text) > width - mark_width())
                text = std::string(static_cast<std::size_t>(width - mark_width()), '#');
            text = fitted(std::move(text), width - mark_width(), look.horizontal);
            if (classes_) {
                const ClassLook& cell = look_of(classes_->at(at));
                text = std::string{cell.mark, ' '} + text;
                out += cell.mark == ' ' ? text : on_fill(text, cell);
            } else {
                out += color_ ? painted(text, look) : text;
            }
            before = std::move(look);
            i = last;
        }
        if (before.right.style != host::LineStyle::None) out += "│";
    }

    host::Sheet& sheet_;
    bool color_;
    const Classes* classes_;  // null unless they are to be seen
    SheetAppearance looks_;
    std::vector<std::int32_t> rows_, columns_;  // those in sight
    std::vector<int> widths_;                   // characters, of columns_
};

}  // namespace

std::string terminal_grid(host::Sheet& sheet, const formula::Area& area, bool color, const Classes* classes) {
    return Grid(sheet, area, color, classes).draw();
}

}  // namespace kestrune::cli
