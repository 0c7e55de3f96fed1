#include "number_format/GeneralText.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

#include "number_format/Decimal.h"

namespace kestrune::number_format {
namespace {

void append_trimmed(std::string& out, std::string_view fraction) {
    const auto last = fraction.find_last_not_of('0');
    if (last == std::string_view::npos) return;
    out += '.';
    out += fraction.substr(0, last + 1);
}

std::string plain(Decimal number, int decimals) {
    number.round(decimals);
    std::string text = number.integer_digits();
    if (text.empty()) text = "0";
    append_trimmed(text, number.fraction_digits(decimals));
    return text;
}

// Scientific with at most `decimals` digits behind the point: 1.5E+20.
std::string scientific(Decimal number, int decimals) {
    int exponent = number.point() - 1;
    number.scale(-exponent);
    number.round(decimals);
    if (number.point() > 1) {
        number.scale(-1);
        ++exponent;
    }
    std::string text = number.integer_digits();
    append_trimmed(text, number.fraction_digits(decimals));
    text += fmt::format("E{}{:02}", exponent < 0 ? '-' : '+', exponent < 0 ? -exponent : exponent);
    return text;
}

std::string fitting_scientific(const Decimal& number, int width) {
    for (int decimals = 5; decimals >= 0; --decimals) {
        std::string text = scientific(number, decimals);
        if (static_cast<int>(text.size()) <= width) return text;
    }
    return {};
}

}  // namespace

std::string general_text(double value, int width) {
    const Decimal number(value);
    if (number.zero()) return width >= 1 ? "0" : "";
    const std::string sign = number.negative() ? "-" : "";
    width = std::min(width - static_cast<int>(sign.size()), general_width);
    const int integer_width = std::max(number.point(), 1);
    std::string text;
    if (integer_width <= width) {
        text = plain(number, std::max(width - integer_width - 1, 0));
        // Below 0.0001 a number that would lose digits goes scientific, if that fits.
        const bool small = number.point() < -3;
        if (small && number.count() - number.point() > width - 2) {
            const std::string short_form = fitting_scientific(number, width);
            if (!short_form.empty()) text = short_form;
        }
        if (static_cast<int>(text.size()) > width) text.clear();  // 9.9 rounds to two digits
    }
    if (text.empty()) text = fitting_scientific(number, width);
    return text.empty() ? text : sign + text;
}

std::string full_number_text(double value) {
    constexpr int longest = 21;
    const Decimal number(value);
    if (number.zero()) return "0";
    const int decimals = std::max(number.count() - number.point(), 0);
    const int length = std::max(number.point(), 1) + (decimals > 0 ? decimals + 1 : 0);
    std::string text = length <= longest ? plain(number, decimals) : scientific(number, number.count() - 1);
    return number.negative() ? "-" + text : text;
}

}  // namespace kestrune::number_format
