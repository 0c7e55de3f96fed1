#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace kestrune::forms {

enum class Side : std::uint8_t { Start, Middle, End, Spread };  // left or top, centre, right or bottom, from end to end

enum class Underlining : std::uint8_t { None, Single, Double };

enum class Dash : std::uint8_t { None, Solid, Dots, Dashes, DashDot, DashDotDot, Double };

// A line at an edge of a sample.
struct Edge {
    Dash dash = Dash::None;
    double width = 0.75;     // points
    std::int32_t color = 0;  // BGR

    bool operator==(const Edge&) const = default;
};

// What a sample control shows: a text in a box, as a cell of a sheet shows it.
struct Looks {
    std::string text;
    std::string font = "Arial";
    double size = 10;  // points
    bool bold = false;
    bool italic = false;
    bool struck = false;
    Underlining underlining = Underlining::None;
    bool underlines_box = false;       // from end to end of the box, not the text alone
    std::int32_t color = 0;            // BGR
    std::optional<std::int32_t> fill;  // BGR; nothing for none
    Side across = Side::Start;
    Side down = Side::End;
    double inset = 0;             // points between the text and the side that it stands at
    std::int32_t turn = 0;        // degrees, anticlockwise, from -90 to 90
    bool stacked = false;         // the letters one below the other
    bool wraps = false;           // breaks into lines
    bool repeats = false;         // as often as the box has room for
    bool shrinks = false;         // until the box has room for it
    std::array<Edge, 4> edges{};  // left, top, right, bottom

    bool operator==(const Looks&) const = default;
};

// What they look like in one line: "1,234.50 in Arial 10 bold, #0000FF, at the right, line below".
[[nodiscard]] std::string looks_text(const Looks& looks);

}  // namespace kestrune::forms
