#include "forms/Looks.h"

#include <charconv>
#include <string_view>

namespace kestrune::forms {
namespace {

std::string number_text(double number) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    return {digits.data(), end};
}

// Red, green and blue, as people write colours.
std::string color_text(std::int32_t bgr) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text = "#";
    for (const int shift : {4, 0, 12, 8, 20, 16}) text += digits[static_cast<std::size_t>(bgr >> shift & 15)];
    return text;
}

constexpr std::array<std::string_view, 4> across_words{"", "centered", "at the right", "from end to end"};
constexpr std::array<std::string_view, 4> down_words{"at the top", "in the middle", "", "from top to bottom"};
constexpr std::array<std::string_view, 3> underlinings{"", "underlined", "underlined twice"};
constexpr std::array<std::string_view, 7> dashes{"", "", "dotted ", "dashed ", "dash-dot ", "dash-dot-dot ", "double "};
constexpr std::array<std::string_view, 4> sides{"at the left", "above", "at the right", "below"};

// "dashed 1.5 pt #FF0000 line above and below"; the sides of one line together.
std::string edges_text(const std::array<Edge, 4>& edges) {
    std::string text;
    std::array<bool, 4> told{};
    for (std::size_t i = 0; i < edges.size(); ++i) {
        if (told[i] || edges[i].dash == Dash::None) continue;
        std::string where;
        int count = 0;
        for (std::size_t j = i; j < edges.size(); ++j) {
            if (edges[j] != edges[i]) continue;
            told[j] = true;
            ++count;
            where += (where.empty() ? "" : ", ") + std::string(sides[j]);
        }
        if (count == 4) where = "all around";
        text += ", " + std::string(dashes[static_cast<std::size_t>(edges[i].dash)]) + number_text(edges[i].width) +
                " pt " + (edges[i].color != 0 ? color_text(edges[i].color) + " " : "") + "line " + where;
    }
    return text;
}

}  // namespace

std::string looks_text(const Looks& looks) {
    std::string text = looks.text + " in " + looks.font + " " + number_text(looks.size);
    const auto add_if = [&](bool is_so, std::string_view words) {
        if (is_so && !words.empty()) text += ", " + std::string(words);
    };
    if (looks.bold) text += " bold";
    if (looks.italic) text += " italic";
    add_if(looks.struck, "struck through");
    add_if(true, underlinings[static_cast<std::size_t>(looks.underlining)]);
    add_if(looks.color != 0, color_text(looks.color));
    if (looks.fill) text += " on " + color_text(*looks.fill);
    add_if(true, across_words[static_cast<std::size_t>(looks.across)]);
    add_if(true, down_words[static_cast<std::size_t>(looks.down)]);
    add_if(looks.inset > 0, "indented by " + number_text(looks.inset) + " pt");
    add_if(looks.stacked, "stacked");
    add_if(looks.turn != 0, "turned by " + std::to_string(looks.turn) + " degrees");
    add_if(looks.wraps, "wrapped");
    add_if(looks.repeats, "repeated");
    add_if(looks.shrinks, "shrunk to fit");
    return text + edges_text(looks.edges);
}

}  // namespace kestrune::forms
