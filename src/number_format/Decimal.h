#pragma once

#include <array>
#include <string>

namespace kestrune::number_format {

// A number as Excel sees it when it shows it: at most 15 decimal digits. It is 0.d1d2d3... times 10 to the power
// `point`.
class Decimal {
  public:
    explicit Decimal(double value);

    [[nodiscard]] bool negative() const { return negative_; }
    [[nodiscard]] bool zero() const { return count_ == 0; }
    [[nodiscard]] int point() const { return point_; }  // digits in front of the decimal point when positive
    [[nodiscard]] int count() const { return count_; }  // digits without trailing zeros

    void scale(int powers_of_ten) { point_ += powers_of_ten; }

    // Keeps this many digits behind the decimal point; halves go away from zero.
    void round(int decimals);

    // The digits in front of the decimal point, without leading zeros: nothing when the number is below 1.
    [[nodiscard]] std::string integer_digits() const;
    // The first digits behind the decimal point.
    [[nodiscard]] std::string fraction_digits(int decimals) const;

  private:
    [[nodiscard]] char digit(int index) const {
        return index >= 0 && index < count_ ? digits_[static_cast<std::size_t>(index)] : '0';
    }
    void trim();

    std::array<char, 20> digits_{};
    int count_ = 0;
    int point_ = 0;
    bool negative_ = false;
};

}  // namespace kestrune::number_format
