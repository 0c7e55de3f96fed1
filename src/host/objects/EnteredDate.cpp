#include <array>
#include <charconv>
#include <chrono>
#include <ctime>
#include <vector>

#include "automation/Text.h"
#include "host/objects/EnteredNumber.h"
#include "number_format/Calendar.h"

namespace kestrune::host {

using number_format::serial_from_date;
namespace {

constexpr std::array<std::string_view, 12> months = {"january",   "february", "march",    "april",
                                                     "may",       "june",     "july",     "august",
                                                     "september", "october",  "november", "december"};

bool digit(char c) { return c >= '0' && c <= '9'; }
bool letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

std::int32_t this_year() {
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    const std::tm* local = std::localtime(&now);
    return local ? local->tm_year + 1900 : 1970;
}

// Two digits stand for 1930 to 2029.
std::int32_t full_year(std::int32_t year, std::size_t digits) {
    if (digits > 2) return year;
    return year + (year < 30 ? 2000 : 1900);
}

// A word or a number of a date, and what stood in front of it.
struct Piece {
    std::string_view text;
    std::string_view separator;
    std::int32_t number = -1;  // -1: a word
    std::int32_t month = 0;    // of a word
};

// A month's name, whole or cut to three letters or more.
std::int32_t month_of(std::string_view word) {
    if (word.size() < 3) return 0;
    for (std::size_t i = 0; i < months.size(); ++i) {
        if (automation::same_text(months[i].substr(0, word.size()), word)) return static_cast<std::int32_t>(i) + 1;
    }
    return 0;
}

std::optional<std::vector<Piece>> pieces_of(std::string_view text) {
    std::vector<Piece> pieces;
    std::size_t at = 0;
    while (at < text.size()) {
        Piece piece;
        const std::size_t begin = at;
        while (at < text.size() && !digit(text[at]) && !letter(text[at])) ++at;
        piece.separator = automation::trimmed(text.substr(begin, at - begin));
        const std::size_t word = at;
        if (at < text.size() && digit(text[at])) {
            while (at < text.size() && digit(text[at])) ++at;
            piece.text = text.substr(word, at - word);
            if (piece.text.size() > 4) return std::nullopt;
            std::from_chars(piece.text.data(), piece.text.data() + piece.text.size(), piece.number);
        } else {
            while (at < text.size() && letter(text[at])) ++at;
            piece.text = text.substr(word, at - word);
            piece.month = month_of(piece.text);
            if (piece.month == 0) return std::nullopt;
        }
        if (pieces.empty() ? begin != word : piece.separator.size() > 1) return std::nullopt;
        pieces.push_back(piece);
    }
    return pieces;
}

struct Day {
    std::int32_t year = 0;
    std::int32_t month = 0;
    std::int32_t day = 0;
    std::string_view format;
};

constexpr std::string_view numeric_date = "m/d/yyyy";
constexpr std::string_view day_month_year = "d-mmm-yy";
constexpr std::string_view day_month = "d-mmm";
constexpr std::string_view month_year = "mmm-yy";

// Numbers parted by "/" or "-": month, day, year, or with four digits first the year in front.
std::optional<Day> numeric_day(const std::vector<Piece>& pieces) {
    for (std::size_t i = 1; i < pieces.size(); ++i) {
        if (pieces[i].separator != "/" && pieces[i].separator != "-") return std::nullopt;
    }
    const auto number = [&](std::size_t i) { return pieces[i].number; };
    const auto year = [&](std::size_t i) { return full_year(number(i), pieces[i].text.size()); };
    if (pieces.size() == 3) {
        if (pieces[0].text.size() == 4) return Day{number(0), number(1), number(2), numeric_date};
        return Day{year(2), number(0), number(1), numeric_date};
    }
    if (pieces.size() != 2) return std::nullopt;
    if (pieces[0].text.size() == 4) return Day{number(0), number(1), 1, month_year};
    if (pieces[1].text.size() <= 2 && number(1) >= 1 && number(1) <= 31) {
        return Day{this_year(), number(0), number(1), day_month};
    }
    return Day{year(1), number(0), 1, month_year};
}

// A month's name among up to two numbers: 31-Jan-24, Jan 31, 2024, 31 Jan, Jan-24.
std::optional<Day> worded_day(const std::vector<Piece>& pieces) {
    for (std::size_t i = 1; i < pieces.size(); ++i) {
        const std::string_view separator = pieces[i].separator;
        const bool comma = separator == "," && i == pieces.size() - 1;
        if (!separator.empty() && separator != "-" && separator != "/" && !comma) return std::nullopt;
    }
    const auto year = [&](std::size_t i) { return full_year(pieces[i].number, pieces[i].text.size()); };
    if (pieces.size() == 3) {
        if (pieces[1].month > 0 && pieces[0].number >= 0 && pieces[2].number >= 0) {
            return Day{year(2), pieces[1].month, pieces[0].number, day_month_year};
        }
        if (pieces[0].month > 0 && pieces[1].number >= 0 && pieces[2].number >= 0) {
            return Day{year(2), pieces[0].month, pieces[1].number, day_month_year};
        }
        return std::nullopt;
    }
    if (pieces.size() != 2) return std::nullopt;
    if (pieces[1].month > 0 && pieces[0].number >= 0) {
        return Day{this_year(), pieces[1].month, pieces[0].number, day_month};
    }
    if (pieces[0].month > 0 && pieces[1].number >= 0) {
        const bool a_day = pieces[1].text.size() <= 2 && pieces[1].number >= 1 && pieces[1].number <= 31;
        if (a_day && pieces[1].separator != "-") return Day{this_year(), pieces[0].month, pieces[1].number, day_month};
        if (a_day) return Day{this_year(), pieces[0].month, pieces[1].number, day_month};
        return Day{year(1), pieces[0].month, 1, month_year};
    }
    return std::nullopt;
}

std::optional<EnteredNumber> entered_day(std::string_view text, bool date1904) {
    const auto pieces = pieces_of(text);
    if (!pieces || pieces->size() < 2) return std::nullopt;
    bool worded = false;
    for (const Piece& piece : *pieces) worded = worded || piece.month > 0;
    const auto day = worded ? worded_day(*pieces) : numeric_day(*pieces);
    if (!day || day->day < 1) return std::nullopt;
    const auto serial = serial_from_date({day->year, day->month, day->day, 0}, date1904);
    if (!serial) return std::nullopt;
    return EnteredNumber{static_cast<double>(*serial), day->format};
}

// Hours and minutes, seconds or not, AM or PM or neither; as a fraction of a day.
std::optional<EnteredNumber> entered_time(std::string_view text) {
    bool twelve_hours = false;
    bool afternoon = false;
    for (const std::string_view mark : {" AM", " PM", " A", " P"}) {
        if (text.size() <= mark.size() || !automation::same_text(text.substr(text.size() - mark.size()), mark))
            continue;
        twelve_hours = true;
        afternoon = mark[1] == 'P';
        text = automation::trimmed(text.substr(0, text.size() - mark.size()));
        break;
    }
    std::array<double, 3> parts{};
    std::size_t count = 0;
    while (count < parts.size()) {
        const std::size_t colon = text.find(':');
        const std::string_view part = text.substr(0, colon);
        if (part.empty() || !digit(part.front())) return std::nullopt;
        const auto [end, failure] =
            std::from_chars(part.data(), part.data() + part.size(), parts[count], std::chars_format::fixed);
        if (failure != std::errc{} || end != part.data() + part.size()) return std::nullopt;
        const bool fraction = part.find('.') != std::string_view::npos;
        if (fraction && count < 2) return std::nullopt;
        ++count;
        if (colon == std::string_view::npos) {
            text = {};
            break;
        }
        text = text.substr(colon + 1);
    }
    if (!text.empty() || (count < 2 && !twelve_hours)) return std::nullopt;
    auto [hours, minutes, seconds] = parts;
    if (minutes >= 60 || seconds >= 60 || hours >= 10000) return std::nullopt;
    if (twelve_hours) {
        if (hours > 12 || hours < 0) return std::nullopt;
        if (hours == 12) hours = 0;
        if (afternoon) hours += 12;
    }
    const double value = (hours * 3600 + minutes * 60 + seconds) / 86400;
    if (twelve_hours) return EnteredNumber{value, count == 3 ? "h:mm:ss AM/PM" : "h:mm AM/PM"};
    if (hours >= 24) return EnteredNumber{value, "[h]:mm:ss"};
    return EnteredNumber{value, count == 3 ? "h:mm:ss" : "h:mm"};
}

}  // namespace

std::optional<EnteredNumber> entered_date(std::string_view text, bool date1904) {
    text = automation::trimmed(text);
    if (text.empty() || (!digit(text.front()) && !letter(text.front()))) return std::nullopt;
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) {
        if (auto day = entered_day(text, date1904)) return day;
        return entered_time(text);
    }
    // The time begins behind the last blank in front of its first colon.
    const std::size_t blank = text.substr(0, colon).rfind(' ');
    if (blank == std::string_view::npos) return entered_time(text);
    const auto day = entered_day(automation::trimmed(text.substr(0, blank)), date1904);
    const auto time = entered_time(automation::trimmed(text.substr(blank)));
    if (!day || !time || time->value >= 1) return std::nullopt;
    return EnteredNumber{day->value + time->value, "m/d/yyyy h:mm"};
}

}  // namespace kestrune::host
