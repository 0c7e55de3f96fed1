#include "brvblib/TypedDate.h"

#include <array>
#include <charconv>
#include <vector>

#include "automation/Text.h"
#include "brvblib/Calendar.h"

namespace kestrune::brvblib {
namespace {

using automation::lower;
using automation::same_text;
using std::chrono::day;
using std::chrono::month;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr std::array<std::string_view, 12> months{"January",   "February", "March",    "April",
                                                  "May",       "June",     "July",     "August",
                                                  "September", "October",  "November", "December"};

// A number, a word, or a character that parts them.
struct Piece {
    enum class Kind { Number, Word, Mark } kind;
    std::string_view text;
    int number = 0;  // of a number; of a month's name its place from 1 on, else 0
};

bool is_digit(char c) { return c >= '0' && c <= '9'; }
bool is_letter(char c) { return lower(c) >= 'a' && lower(c) <= 'z'; }

// The month that a word names: the whole name or the first three letters.
int month_named(std::string_view word) {
    for (std::size_t i = 0; i < months.size(); ++i) {
        if (same_text(word, months[i]) || same_text(word, months[i].substr(0, 3))) return static_cast<int>(i) + 1;
    }
    return same_text(word, "Sept") ? 9 : 0;
}

// Nothing for a text with other characters, or a number of more than four digits.
std::optional<std::vector<Piece>> pieces_of(std::string_view text) {
    std::vector<Piece> pieces;
    for (std::size_t i = 0; i < text.size();) {
        std::size_t end = i + 1;
        if (text[i] == ' ') {
            ++i;
            continue;
        }
        if (is_digit(text[i])) {
            while (end < text.size() && is_digit(text[end])) ++end;
            if (end - i > 4) return std::nullopt;
            Piece piece{Piece::Kind::Number, text.substr(i, end - i)};
            std::from_chars(text.data() + i, text.data() + end, piece.number);
            pieces.push_back(piece);
        } else if (is_letter(text[i])) {
            while (end < text.size() && is_letter(text[end])) ++end;
            const std::string_view word = text.substr(i, end - i);
            pieces.push_back({Piece::Kind::Word, word, month_named(word)});
        } else if (std::string_view("/-,:.").find(text[i]) != std::string_view::npos) {
            pieces.push_back({Piece::Kind::Mark, text.substr(i, 1)});
        } else {
            return std::nullopt;
        }
        i = end;
    }
    return pieces;
}

class Reader {
  public:
    Reader(std::vector<Piece> pieces, int this_year) : pieces_(std::move(pieces)), this_year_(this_year) {}

    std::optional<automation::Date> read() {
        Moment moment;
        const bool has_date = read_date(moment);
        const std::size_t behind_date = at_;
        const bool has_time = read_time(moment);
        if (!has_time) at_ = behind_date;
        if (at_ != pieces_.size() || (!has_date && !has_time)) return std::nullopt;
        if (!has_date) moment.day = std::chrono::sys_days(year{1899} / 12 / 30);
        return date_of(moment);
    }

  private:
    [[nodiscard]] const Piece* piece(std::size_t ahead) const {
        return at_ + ahead < pieces_.size() ? &pieces_[at_ + ahead] : nullptr;
    }
    [[nodiscard]] bool is_number(std::size_t ahead) const {
        return piece(ahead) && piece(ahead)->kind == Piece::Kind::Number;
    }
    [[nodiscard]] bool is_month(std::size_t ahead) const {
        return piece(ahead) && piece(ahead)->kind == Piece::Kind::Word && piece(ahead)->number > 0;
    }
    [[nodiscard]] bool is_mark(std::size_t ahead, std::string_view marks) const {
        return piece(ahead) && piece(ahead)->kind == Piece::Kind::Mark &&
               marks.find(piece(ahead)->text) != std::string_view::npos;
    }
    void skip_mark(std::string_view marks) {
        if (is_mark(0, marks)) ++at_;
    }

    [[nodiscard]] static int year_of(const Piece& piece) {
        if (piece.text.size() > 2) return piece.number;
        return piece.number < 30 ? 2000 + piece.number : 1900 + piece.number;
    }

    static bool take(Moment& moment, int y, int m, int d) {
        const year_month_day date{year(y), month(static_cast<unsigned>(m)), day(static_cast<unsigned>(d))};
        if (y < 100 || y > 9999 || !date.ok()) return false;
        moment.day = date;
        return true;
    }

    bool read_date(Moment& moment) {
        if (is_month(0)) return read_named(moment, true);
        if (is_number(0) && (is_month(1) || (is_mark(1, "-/") && is_month(2)))) return read_named(moment, false);
        if (!is_number(0) || !is_mark(1, "/-.") || !is_number(2)) return false;
        const std::string_view mark = pieces_[at_ + 1].text;
        const Piece first = pieces_[at_];
        const Piece second = pieces_[at_ + 2];
        const bool three = is_mark(3, mark) && is_number(4);
        if (mark == "." && !three) return false;  // a number with decimals
        const Piece third = three ? pieces_[at_ + 4] : Piece{};
        at_ += three ? 5 : 3;
        if (first.text.size() > 2) return three && take(moment, first.number, second.number, third.number);
        if (!three && second.text.size() > 2) return take(moment, second.number, first.number, 1);
        const int y = three ? year_of(third) : this_year_;
        return take(moment, y, first.number, second.number) || take(moment, y, second.number, first.number);
    }

    // "31-Jan-26", "31 January 2026", "January 31, 2026", "Jan 2026", "Jan 31".
    bool read_named(Moment& moment, bool month_first) {
        int d = 0;
        if (!month_first) {
            d = pieces_[at_++].number;
            skip_mark("-/");
        }
        const int m = pieces_[at_++].number;
        skip_mark(".");
        if (month_first && (is_number(0) || (is_mark(0, "-/") && is_number(1)))) {
            skip_mark("-/");
            const Piece next = pieces_[at_++];
            // A number that no month has days for is a year, as is one of four digits.
            if (next.text.size() > 2 || next.number > 31 || next.number == 0) return take(moment, year_of(next), m, 1);
            d = next.number;
        }
        if (d == 0) return false;
        const bool has_year = is_number(0) || (is_mark(0, ",-/") && is_number(1));
        // What stands before a colon is an hour.
        if (!has_year || is_mark(is_number(0) ? 1 : 2, ":")) return take(moment, this_year_, m, d);
        skip_mark(",-/");
        return take(moment, year_of(pieces_[at_++]), m, d);
    }

    bool read_time(Moment& moment) {
        if (!is_number(0)) return false;
        int part[3] = {pieces_[at_++].number, 0, 0};
        int parts = 1;
        while (parts < 3 && is_mark(0, ":") && is_number(1)) {
            part[parts++] = pieces_[at_ + 1].number;
            at_ += 2;
        }
        if (part[1] > 59 || part[2] > 59) return false;
        if (const Piece* half = piece(0); half && half->kind == Piece::Kind::Word) {
            const bool afternoon = same_text(half->text, "PM") || same_text(half->text, "P");
            if (!afternoon && !same_text(half->text, "AM") && !same_text(half->text, "A")) return false;
            if (part[0] < 1 || part[0] > 12) return false;
            part[0] = part[0] % 12 + (afternoon ? 12 : 0);
            ++at_;
        } else if (parts == 1 || part[0] > 23) {
            return false;
        }
        moment.milliseconds = 1000LL * (part[0] * 3600 + part[1] * 60 + part[2]);
        return true;
    }

    std::vector<Piece> pieces_;
    std::size_t at_ = 0;
    int this_year_;
};

}  // namespace

std::optional<automation::Date> typed_date(std::string_view text, automation::Date today) {
    auto pieces = pieces_of(automation::trimmed(text));
    if (!pieces) return std::nullopt;
    return Reader(std::move(*pieces), static_cast<int>(year_month_day(moment_of(today).day).year())).read();
}

}  // namespace kestrune::brvblib
