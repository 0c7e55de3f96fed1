#include "styles/FontSizes.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kestrune::styles {
namespace {

constexpr std::array listed{8.0,  9.0,  10.0, 11.0, 12.0, 14.0, 16.0, 18.0,
                            20.0, 22.0, 24.0, 26.0, 28.0, 36.0, 48.0, 72.0};
constexpr double smallest = 1;
constexpr double largest = 409;
constexpr double step_above = 10;

}  // namespace

double larger_font_size(double points) {
    if (points < listed.front()) return std::min(std::floor(points) + 1, listed.front());
    const auto next = std::ranges::upper_bound(listed, points);
    if (next != listed.end()) return *next;
    return std::min((std::floor(points / step_above) + 1) * step_above, largest);
}

double smaller_font_size(double points) {
    if (points <= listed.front()) return std::max(std::ceil(points) - 1, smallest);
    if (points > listed.back()) return std::max((std::ceil(points / step_above) - 1) * step_above, listed.back());
    return *std::prev(std::ranges::lower_bound(listed, points));
}

}  // namespace kestrune::styles
