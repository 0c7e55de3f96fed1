#include "brvblib/NumberFormatSection.h"

#include "automation/Text.h"

namespace kestrune::brvblib {
namespace {

constexpr std::string_view general = "General";
constexpr auto npos = NumberFormatSection::npos;

bool is_digit(char c) { return c == '0' || c == '#' || c == '?'; }

// "[h]", "[mm]", "[s]": time that runs on past a day, an hour, a minute.
bool is_elapsed(std::string_view brackets) {
    if (brackets.empty()) return false;
    const char unit = automation::lower(brackets.front());
    if (unit != 'h' && unit != 'm' && unit != 's') return false;
    for (const char c : brackets) {
        if (automation::lower(c) != unit) return false;
    }
    return true;
}

class Reader {
  public:
    explicit Reader(std::string_view section) : text_(section) {}

    NumberFormatSection read() {
        for (std::size_t i = 0; i < text_.size();) i = step(i);
        const bool numeric = found_.first_digit != npos && !date_ && !fraction_;
        if (found_.general != npos && !date_) {
            found_.kind = NumberFormatSection::Kind::General;
        } else if (numeric && only_spaces_) {
            // "-"??: the question marks keep a dash in line with figures.
            found_.kind = NumberFormatSection::Kind::Other;
        } else if (numeric) {
            found_.kind = exponent_ ? NumberFormatSection::Kind::Scientific : NumberFormatSection::Kind::Number;
            found_.scale_before_point = found_.point == npos ? 0 : commas_behind(found_.last_whole);
            found_.scale_behind = commas_behind(found_.decimals > 0 ? found_.last_decimal : found_.last_whole);
            if (found_.point != npos && found_.decimals == 0) found_.scale_behind = commas_behind(found_.point);
        }
        return found_;
    }

  private:
    // Reads what stands at a place; where the next thing stands.
    std::size_t step(std::size_t i) {
        const char c = text_[i];
        if (c == '"') return past(text_.find('"', i + 1));
        if (c == '\\' || c == '_' || c == '*') return i + 2;
        if (c == '[') {
            const std::size_t end = text_.find(']', i + 1);
            if (is_elapsed(text_.substr(i + 1, end == npos ? npos : end - i - 1))) date_ = true;
            return past(end);
        }
        if (automation::same_text(text_.substr(i, general.size()), general)) {
            found_.general = i;
            return i + general.size();
        }
        if (is_digit(c)) {
            digit(i);
        } else if (c == '.' && found_.point == npos && !exponent_) {
            found_.point = i;
            only_spaces_ = false;
        } else if (c == '%') {
            found_.percent = true;
        } else if (c == '/') {
            fraction_ = true;
        } else if ((c == 'E' || c == 'e') && i + 1 < text_.size() && (text_[i + 1] == '+' || text_[i + 1] == '-')) {
            exponent_ = true;
            return i + 2;
        } else if (std::string_view("dmyhsegb").find(automation::lower(c)) != npos) {
            date_ = true;
        }
        return i + 1;
    }

    void digit(std::size_t i) {
        if (exponent_) return;
        if (found_.first_digit == npos) found_.first_digit = i;
        if (text_[i] != '?') only_spaces_ = false;
        if (found_.point == npos) {
            found_.last_whole = i;
        } else {
            found_.last_decimal = i;
            ++found_.decimals;
        }
    }

    [[nodiscard]] std::size_t past(std::size_t end) const { return end == npos ? text_.size() : end + 1; }

    [[nodiscard]] std::size_t commas_behind(std::size_t place) const {
        if (place == npos) return 0;
        const std::size_t end = text_.find_first_not_of(',', place + 1);
        return (end == npos ? text_.size() : end) - place - 1;
    }

    std::string_view text_;
    NumberFormatSection found_;
    bool date_ = false;
    bool fraction_ = false;
    bool exponent_ = false;
    bool only_spaces_ = true;
};

}  // namespace

NumberFormatSection read_number_format_section(std::string_view section) { return Reader(section).read(); }

}  // namespace kestrune::brvblib
