#include "host/model/Tint.h"

#include <algorithm>
#include <cmath>

namespace kestrune::host {
namespace {

// One channel of a colour of this hue, by the distance of the channel's own hue; all from 0 to 1.
double channel(double low, double high, double hue) {
    hue -= std::floor(hue);
    if (hue < 1.0 / 6) return low + (high - low) * 6 * hue;
    if (hue < 1.0 / 2) return high;
    if (hue < 2.0 / 3) return low + (high - low) * (2.0 / 3 - hue) * 6;
    return low;
}

std::uint32_t byte(double part) { return static_cast<std::uint32_t>(std::lround(std::clamp(part, 0.0, 1.0) * 255)); }

}  // namespace

std::uint32_t tinted(std::uint32_t bgr, double tint) {
    if (tint == 0 || std::isnan(tint)) return bgr;
    tint = std::clamp(tint, -1.0, 1.0);
    const double red = (bgr & 0xFFU) / 255.0;
    const double green = (bgr >> 8U & 0xFFU) / 255.0;
    const double blue = (bgr >> 16U & 0xFFU) / 255.0;
    const double most = std::max({red, green, blue});
    const double least = std::min({red, green, blue});
    const double range = most - least;
    double luminance = (most + least) / 2;
    double saturation = 0;
    double hue = 0;
    if (range > 0) {
        saturation = luminance <= 0.5 ? range / (most + least) : range / (2 - most - least);
        if (most == red)
            hue = (green - blue) / range / 6;
        else if (most == green)
            hue = (blue - red) / range / 6 + 1.0 / 3;
        else
            hue = (red - green) / range / 6 + 2.0 / 3;
    }

    luminance = tint < 0 ? luminance * (1 + tint) : luminance * (1 - tint) + tint;

    const double high =
        luminance <= 0.5 ? luminance * (1 + saturation) : luminance + saturation - luminance * saturation;
    const double low = 2 * luminance - high;
    return byte(channel(low, high, hue + 1.0 / 3)) | byte(channel(low, high, hue)) << 8U |
           byte(channel(low, high, hue - 1.0 / 3)) << 16U;
}

}  // namespace kestrune::host
