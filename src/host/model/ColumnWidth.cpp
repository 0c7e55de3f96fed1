#include "host/model/ColumnWidth.h"

#include <cmath>

namespace kestrune::host {
namespace {

constexpr std::int32_t padding = 5;

std::int32_t whole(double number) { return static_cast<std::int32_t>(number); }

}  // namespace

std::int32_t pixels_of_characters(double characters, std::int32_t digit) {
    if (characters < 1) return whole(characters * (digit + padding) + 0.5);
    return whole(characters * digit + padding + 0.5);
}

double characters_of_pixels(std::int32_t pixels, std::int32_t digit) {
    const double characters = pixels < digit + padding ? static_cast<double>(pixels) / (digit + padding)
                                                       : static_cast<double>(pixels - padding) / digit;
    return std::trunc(characters * 100 + 0.5) / 100;
}

std::int32_t pixels_of_stored_width(double width, std::int32_t digit) {
    return whole((256 * width + whole(128.0 / digit)) / 256 * digit);
}

double stored_width_of_pixels(std::int32_t pixels, std::int32_t digit) {
    return std::trunc(static_cast<double>(pixels) / digit * 256) / 256;
}

std::int32_t standard_column_pixels(std::int32_t characters, std::int32_t digit) {
    return (characters * digit + padding + 7) / 8 * 8;
}

double whole_pixel_points(double points) { return std::round(points / 0.75) * 0.75; }

}  // namespace kestrune::host
