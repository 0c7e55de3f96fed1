#pragma once

namespace kestrune::styles {

// The size, in points, that Excel's own list offers next: 8, 9, 10, 11, 12, 14 ... 28, 36, 48, 72. Beyond the list
// sizes go up by tens to 409, the largest, and below it down by ones to 1.
[[nodiscard]] double larger_font_size(double points);
[[nodiscard]] double smaller_font_size(double points);

}  // namespace kestrune::styles
