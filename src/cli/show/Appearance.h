#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

#include "host/model/ConditionalMatch.h"
#include "host/model/Workbook.h"
#include "number_format/NumberFormat.h"

namespace kestrune::cli {

struct VisibleLine {
    host::LineStyle style = host::LineStyle::None;
    std::uint32_t color = 0;  // BGR

    bool operator==(const VisibleLine&) const = default;
};

// A cell as a person sees it: every default worked out, conditional formats laid over.
struct Appearance {
    std::string text;                    // as displayed
    std::optional<std::size_t> fill_at;  // the byte of the text where blanks fill the cell's width
    bool blank = true;
    host::CellKind kind = host::CellKind::Blank;
    const host::Font* font = nullptr;
    bool bold = false, italic = false, strike = false;
    host::Underline underline = host::Underline::None;
    std::uint32_t font_color = 0;                          // BGR
    std::optional<std::uint32_t> fill;                     // BGR; none shows the sheet
    host::Horizontal horizontal = host::Horizontal::Left;  // never General
    host::Alignment alignment;
    VisibleLine left, top, right, bottom;  // shared lines included

    // Whether the text may run over into blank neighbours.
    [[nodiscard]] bool runs_over() const {
        return kind == host::CellKind::String && !alignment.wrap && !alignment.shrink;
    }
};

// Works out appearances on one sheet. Reading order does not matter.
class SheetAppearance {
  public:
    explicit SheetAppearance(host::Sheet& sheet) : sheet_(sheet), workbook_(sheet.workbook()), conditions_(sheet) {}

    [[nodiscard]] Appearance at(formula::Position position);

  private:
    [[nodiscard]] const number_format::NumberFormat& format_of(host::StyleId style);
    void write_text(Appearance& look, formula::Position position, host::StyleId style);
    // A number that its column has no room for: rounded where the format leaves that open, else a row of #.
    void fit_number(number_format::Rendered& shown, double value, formula::Position position, host::StyleId style);
    void lay_fill(Appearance& look, const host::Fill& fill) const;
    void lay_conditional_formats(Appearance& look, formula::Position position);

    host::Sheet& sheet_;
    host::Workbook& workbook_;
    host::ConditionalMatcher conditions_;
    std::unordered_map<std::uint32_t, number_format::NumberFormat> formats_;  // by number, each read once
};

}  // namespace kestrune::cli
