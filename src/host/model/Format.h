#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "host/model/Color.h"

namespace kestrune::host {

// The parts of a cell format, as styles.xml stores them (ECMA-376 18.8). Every field that a file can
// hold is kept, so that a format derived from another by one change loses nothing; `extra` is XML
// that nobody here reads, kept as it stood.

enum class Underline : std::uint8_t { None, Single, Double, SingleAccounting, DoubleAccounting };
enum class VerticalRun : std::uint8_t { Baseline, Superscript, Subscript };

struct Font {
    std::string name = "Calibri";
    double size = 11;  // points
    bool bold = false;
    bool italic = false;
    bool strike = false;
    bool outline = false;
    bool shadow = false;
    bool condense = false;
    bool extend = false;
    Underline underline = Underline::None;
    VerticalRun vertical = VerticalRun::Baseline;
    Color color;                // Kind::None: the file names none, which shows as automatic
    std::int32_t family = -1;   // -1: absent
    std::int32_t charset = -1;  // -1: absent
    std::string scheme;         // "major", "minor", or empty
    std::string extra;

    bool operator==(const Font&) const = default;
};

enum class Pattern : std::uint8_t {
    None,
    Solid,
    MediumGray,
    DarkGray,
    LightGray,
    DarkHorizontal,
    DarkVertical,
    DarkDown,
    DarkUp,
    DarkGrid,
    DarkTrellis,
    LightHorizontal,
    LightVertical,
    LightDown,
    LightUp,
    LightGrid,
    LightTrellis,
    Gray125,
    Gray0625,
};

struct Fill {
    Pattern pattern = Pattern::None;
    Color foreground;  // the colour of a solid fill
    Color background;
    std::string gradient;  // the whole <gradientFill> element; empty for a pattern fill

    bool operator==(const Fill&) const = default;
};

enum class LineStyle : std::uint8_t {
    None,
    Thin,
    Medium,
    Dashed,
    Dotted,
    Thick,
    Double,
    Hair,
    MediumDashed,
    DashDot,
    MediumDashDot,
    DashDotDot,
    MediumDashDotDot,
    SlantDashDot,
};

struct Line {
    LineStyle style = LineStyle::None;
    Color color;

    bool operator==(const Line&) const = default;
};

// A side of a cell or an area; as bits, several sides.
enum class Edge : std::uint8_t { Left = 1, Top = 2, Right = 4, Bottom = 8 };

// The side that a neighbour across this one touches it with.
[[nodiscard]] constexpr Edge facing(Edge edge) {
    switch (edge) {
        case Edge::Left:
            return Edge::Right;
        case Edge::Top:
            return Edge::Bottom;
        case Edge::Right:
            return Edge::Left;
        default:
            return Edge::Top;
    }
}

struct Border {
    Line left, right, top, bottom, diagonal;
    bool diagonal_up = false;
    bool diagonal_down = false;
    bool outline = true;
    std::string extra;  // <vertical>, <horizontal>

    [[nodiscard]] const Line& line(Edge edge) const {
        switch (edge) {
            case Edge::Left:
                return left;
            case Edge::Top:
                return top;
            case Edge::Right:
                return right;
            default:
                return bottom;
        }
    }
    [[nodiscard]] Line& line(Edge edge) { return const_cast<Line&>(std::as_const(*this).line(edge)); }

    bool operator==(const Border&) const = default;
};

enum class Horizontal : std::uint8_t { General, Left, Center, Right, Fill, Justify, CenterContinuous, Distributed };
enum class Vertical : std::uint8_t { Top, Center, Bottom, Justify, Distributed };

struct Alignment {
    Horizontal horizontal = Horizontal::General;
    Vertical vertical = Vertical::Bottom;
    std::int32_t rotation = 0;  // as stored: 0..90 up, 91..180 down (90 - degrees), 255 stacked
    std::int32_t indent = 0;
    std::int32_t relative_indent = 0;
    std::int32_t reading_order = 0;
    bool wrap = false;
    bool shrink = false;
    bool justify_last_line = false;

    bool operator==(const Alignment&) const = default;
};

struct Protection {
    bool locked = true;
    bool hidden = false;

    bool operator==(const Protection&) const = default;
};

// One complete cell format: numbers into the style table's lists and what has no list of its own.
struct CellFormat {
    std::uint32_t number_format = 0;  // StyleTable::number_format's number
    std::uint32_t font = 0;
    std::uint32_t fill = 0;
    std::uint32_t border = 0;
    std::uint32_t named_style = 0;  // position of its cell style's format (xfId)
    Alignment alignment;
    Protection protection;
    bool quote_prefix = false;
    bool pivot_button = false;
    std::string extra;

    bool operator==(const CellFormat&) const = default;
};

}  // namespace kestrune::host
