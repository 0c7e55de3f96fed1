#include "number_format/Decimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace kestrune::number_format {
namespace {

constexpr int max_digits = 15;

}  // namespace

Decimal::Decimal(double value) : negative_(std::signbit(value)) {
    const double size = std::fabs(value);
    if (size == 0 || !std::isfinite(size)) {
        negative_ = false;
        return;
    }
    if (size < 1e15 && size == std::floor(size)) {
        const auto end =
            std::to_chars(digits_.data(), digits_.data() + digits_.size(), static_cast<std::int64_t>(size)).ptr;
        point_ = count_ = static_cast<int>(end - digits_.data());
    } else {
        std::array<char, 40> text{};
        const auto end =
            std::to_chars(text.data(), text.data() + text.size(), size, std::chars_format::scientific, max_digits - 1)
                .ptr;
        digits_[0] = text[0];
        std::copy_n(text.data() + 2, max_digits - 1, digits_.data() + 1);  // behind "d."
        int exponent = 0;
        const char* power = text.data() + max_digits + 2;  // behind "d.dddde"
        if (*power == '+') ++power;
        std::from_chars(power, end, exponent);
        count_ = max_digits;
        point_ = exponent + 1;
    }
    trim();
}

void Decimal::trim() {
    while (count_ > 0 && digits_[static_cast<std::size_t>(count_ - 1)] == '0') --count_;
}

void Decimal::round(int decimals) {
    int keep = point_ + decimals;
    if (keep >= count_) return;
    const bool up = keep >= 0 && digit(keep) >= '5';
    keep = std::max(keep, 0);
    count_ = keep;
    if (up) {
        int i = keep - 1;
        while (i >= 0 && digits_[static_cast<std::size_t>(i)] == '9') --i;
        if (i < 0) {
            digits_[0] = '1';
            count_ = 1;
            ++point_;
            return;
        }
        ++digits_[static_cast<std::size_t>(i)];
        count_ = i + 1;
    }
    trim();
}

std::string Decimal::integer_digits() const {
    std::string digits;
    if (count_ == 0) return digits;
    for (int i = 0; i < point_; ++i) digits += digit(i);
    return digits;
}

std::string Decimal::fraction_digits(int decimals) const {
    std::string digits;
    for (int i = 0; i < decimals; ++i) digits += digit(point_ + i);
    return digits;
}

}  // namespace kestrune::number_format
