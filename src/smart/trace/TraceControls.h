#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "forms/Design.h"

namespace kestrune::smart {

inline constexpr double trace_width = 250;  // of the dialogs of references, points, at least

// What stands below the lists of references.
inline constexpr auto trace_controls = std::to_array<forms::ControlDesign>({
    {.name = "lblFormula", .caption = "Formula:", .accelerator = 'F'},
    {.name = "txtFormula",
     .kind = forms::Kind::Text,
     .stretch = forms::Stretch::Across,
     .tip = "The formula, with the reference that is chosen in the list marked",
     .width = trace_width,
     .multi_line = true,
     .locked = true},
    {.name = "lblNote", .stretch = forms::Stretch::Across, .width = trace_width, .height = 24},
});

// A text made fit to stand in one column of one line. What is longer than anybody reads in a list is cut.
inline std::string column_text(std::string_view text) {
    constexpr std::size_t longest = 255;
    std::string line(text);
    if (line.size() > longest) {
        // Not within a character.
        std::size_t end = longest;
        while (end > 0 && (static_cast<unsigned char>(line[end]) & 0xC0) == 0x80) --end;
        line = line.substr(0, end) + "...";
    }
    std::ranges::replace_if(
        line, [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    return line;
}

}  // namespace kestrune::smart
