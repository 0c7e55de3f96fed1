#include <fmt/format.h>

#include <cmath>

#include "number_format/GeneralText.h"
#include "number_format/SectionText.h"

namespace kestrune::number_format {

void DigitRow::append_separator(std::string& out, int behind, char sign) const {
    if (grouped_ && behind > 0 && behind % 3 == 0) out += sign;
}

void DigitRow::append(std::string& out, char placeholder) {
    const int count = static_cast<int>(digits_.size());
    if (!started_) {
        started_ = true;
        for (int behind = count - 1; behind >= left_; --behind) {
            out += digits_[static_cast<std::size_t>(count - 1 - behind)];
            append_separator(out, behind, ',');
        }
    }
    --left_;  // now also how many digits stand behind this one
    if (left_ < count) {
        out += digits_[static_cast<std::size_t>(count - 1 - left_)];
        append_separator(out, left_, ',');
    } else if (placeholder != '#') {
        out += placeholder == '0' ? '0' : ' ';
        append_separator(out, left_, placeholder == '0' ? ',' : ' ');
    }
}

// Literals, fills and signs; false for what each kind of number writes itself.
bool SectionText::append_common(const Item& item) {
    switch (item.part) {
        case Part::literal:
            result_.text += item.text;
            return true;
        case Part::percent:
            result_.text += '%';
            return true;
        case Part::fill:
            result_.fill = item.text;
            result_.fill_at = result_.text.size();
            return true;
        default:
            return false;
    }
}

bool SectionText::append_number(double value, bool bare_zero) {
    Decimal number(value);
    if (section_.kind != SectionKind::scientific) number.scale(section_.power);
    const bool plain = section_.kind == SectionKind::number;
    if (plain) number.round(section_.decimals);
    if (minus_ && value < 0 && !(plain && bare_zero && number.zero())) result_.text += '-';
    switch (section_.kind) {
        case SectionKind::text:
        case SectionKind::general:
            return append_general(number, value);
        case SectionKind::scientific:
            append_scientific(number);
            return true;
        case SectionKind::fraction:
            append_fraction(std::fabs(value) * std::pow(10.0, section_.power));
            return true;
        default:
            append_digits(number.integer_digits(), number.fraction_digits(section_.decimals), {});
            return true;
    }
}

bool SectionText::append_general(const Decimal& number, double value) {
    const int taken = value < 0 && minus_ ? 1 : 0;
    for (const Item& item : section_.items) {
        if (item.part == Part::general || item.part == Part::text) {
            const std::string text =
                number.zero() ? "0" : general_text(std::fabs(value) * std::pow(10.0, section_.power), room_ - taken);
            if (text.empty()) return false;
            result_.text += text;
        } else {
            append_common(item);
        }
    }
    return true;
}

void SectionText::append_digits(const std::string& integer, const std::string& fraction, const std::string& exponent) {
    DigitRow whole(integer, section_.integer_digits, section_.grouped);
    DigitRow power(exponent, section_.exponent_digits, false);
    // Digits up to the last one that is not zero are always shown.
    const std::size_t last = fraction.find_last_not_of('0');
    const std::size_t significant = last == std::string::npos ? 0 : last + 1;
    std::size_t forced = 0;  // and those up to the last 0 placeholder
    std::size_t at = 0;
    for (const Item& item : section_.items)
        if (item.part == Part::fraction_digit && (++at, item.sign == '0')) forced = at;
    at = 0;
    for (const Item& item : section_.items) {
        switch (item.part) {
            case Part::integer_digit:
                whole.append(result_.text, item.sign);
                break;
            case Part::decimal_point:
                if (section_.integer_digits == 0) result_.text += integer;
                result_.text += '.';
                break;
            case Part::fraction_digit:
                if (at < significant || at < forced)
                    result_.text += fraction[at];
                else if (item.sign == '?')
                    result_.text += ' ';
                ++at;
                break;
            case Part::exponent_digit:
                power.append(result_.text, item.sign);
                break;
            case Part::exponent_mark:
                result_.text += 'E';
                if (exponent.starts_with('-'))
                    result_.text += '-';
                else if (item.sign == '+')
                    result_.text += '+';
                if (exponent.starts_with('-'))
                    power = DigitRow(std::string_view(exponent).substr(1), section_.exponent_digits, false);
                break;
            default:
                append_common(item);
                break;
        }
    }
}

// The exponent is a multiple of the number of digits in front of the point: 12.3E+3 with ##0.0E+0.
void SectionText::append_scientific(Decimal number) {
    number.scale(section_.power);
    const int step = std::max(section_.integer_digits, 1);
    int exponent = 0;
    if (!number.zero()) {
        exponent = number.point() - (section_.integer_digits == 0 ? 0 : 1);
        exponent = static_cast<int>(std::floor(static_cast<double>(exponent) / step)) * step;
    }
    Decimal mantissa = number;
    mantissa.scale(-exponent);
    mantissa.round(section_.decimals);
    if (mantissa.point() > section_.integer_digits && !mantissa.zero()) {
        exponent += step;
        mantissa = number;
        mantissa.scale(-exponent);
        mantissa.round(section_.decimals);
    }
    const std::string power = exponent == 0 ? std::string() : fmt::format("{}", exponent);
    append_digits(mantissa.integer_digits(), mantissa.fraction_digits(section_.decimals), power);
}

}  // namespace kestrune::number_format
