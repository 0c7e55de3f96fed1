#include "cli/menu/Nearest.h"

#include <fmt/format.h>

#include <algorithm>
#include <numeric>
#include <vector>

#include "automation/Text.h"

namespace kestrune::cli {
namespace {

constexpr std::size_t most = 3;
// Nobody types more, and the comparison takes the square of it.
constexpr std::size_t longest = 100;

std::string comparable(std::string_view text) {
    std::string lower(text.substr(0, longest));
    for (char& c : lower) c = automation::lower(c);
    return lower;
}

// How many characters have to be put in, taken out or exchanged to make one text of the other.
std::size_t edits(std::string_view from, std::string_view to) {
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < from.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < to.size(); ++j) {
            const std::size_t exchanged = diagonal + (from[i] == to[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({row[j] + 1, row[j + 1] + 1, exchanged});
        }
    }
    return row.back();
}

// Less is nearer. A text that has the typed one in it is nearer than any that only looks like it.
std::size_t distance(const std::string& typed, const std::string& text) {
    const std::size_t found = text.find(typed);
    return found != std::string::npos ? std::min<std::size_t>(found, 1) : edits(typed, text) + 2;
}

}  // namespace

std::string nearest_texts(std::string_view typed, std::span<const std::string> texts) {
    const std::string wanted = comparable(typed);
    std::vector<std::pair<std::size_t, const std::string*>> order;
    order.reserve(texts.size());
    for (const std::string& text : texts) order.emplace_back(distance(wanted, comparable(text)), &text);
    std::ranges::stable_sort(order, {}, &std::pair<std::size_t, const std::string*>::first);
    std::string list;
    for (std::size_t i = 0; i < std::min(most, order.size()); ++i) {
        list += fmt::format("{}'{}'", i == 0 ? "" : ", ", automation::one_line(*order[i].second));
    }
    return list;
}

}  // namespace kestrune::cli
