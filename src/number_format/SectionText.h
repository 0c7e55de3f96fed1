#pragma once

#include <string>
#include <string_view>

#include "number_format/Decimal.h"
#include "number_format/FormatSection.h"
#include "number_format/NumberFormat.h"

namespace kestrune::number_format {

// Writes one number through one section of a format.
class SectionText {
  public:
    // `minus` says whether a negative number gets a sign; `room` is the width General has, in characters.
    SectionText(Rendered& result, const FormatSection& section, bool minus, int room)
        : result_(result), section_(section), minus_(minus), room_(room) {}

    // Numbers of every kind but dates. `bare_zero`: no minus in front of nothing but zeros. False when General does not
    // fit.
    bool append_number(double value, bool bare_zero);
    // False when the number is no date.
    bool append_date(double value, bool date1904);

  private:
    void append_digits(const std::string& integer, const std::string& fraction, const std::string& exponent);
    void append_scientific(Decimal number);
    void append_fraction(double size);
    bool append_general(const Decimal& number, double value);
    bool append_common(const Item& item);

    Rendered& result_;
    const FormatSection& section_;
    bool minus_;
    int room_;
};

// Digits right-aligned over a row of placeholders, written one placeholder at a time. More digits than placeholders
// come with the first one.
class DigitRow {
  public:
    DigitRow(std::string_view digits, int placeholders, bool grouped)
        : digits_(digits), left_(placeholders), grouped_(grouped) {}

    // The digits of the next placeholder, with the separator that belongs behind them.
    void append(std::string& out, char placeholder);

  private:
    void append_separator(std::string& out, int behind, char sign) const;

    std::string_view digits_;
    int left_;
    bool grouped_;
    bool started_ = false;
};

}  // namespace kestrune::number_format
