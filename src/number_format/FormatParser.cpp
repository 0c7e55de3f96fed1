#include "number_format/FormatParser.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <utility>

#include "number_format/SectionLayout.h"

namespace kestrune::number_format {
namespace {

constexpr std::size_t longest_code = 255;  // characters

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool equal_ignoring_case(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (lower(a[i]) != lower(b[i])) return false;
    return true;
}

bool is_continuation(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

constexpr std::array<std::pair<std::string_view, int>, 8> colour_names{
    {{"black", 1}, {"white", 2}, {"red", 3}, {"green", 4}, {"blue", 5}, {"yellow", 6}, {"magenta", 7}, {"cyan", 8}}};

constexpr std::array<std::pair<std::string_view, Condition::Operator>, 6> operators{
    {{"<=", Condition::Operator::less_or_equal},
     {"<>", Condition::Operator::not_equal},
     {">=", Condition::Operator::greater_or_equal},
     {"<", Condition::Operator::less},
     {">", Condition::Operator::greater},
     {"=", Condition::Operator::equal}}};

constexpr std::array<std::string_view, 4> currency_signs{"$", "€", "£", "¥"};

// The system's own long date and time, as an English Windows has them.
constexpr std::uint32_t system_long_date = 0xF800;
constexpr std::uint32_t system_time = 0xF400;

class Reader {
  public:
    explicit Reader(std::string_view code) : code_(code) {}

    ParsedFormat read() {
        std::size_t characters = 0;
        for (const char c : code_) characters += is_continuation(c) ? 0U : 1U;
        if (characters > longest_code) fail(fmt::format("it is longer than {} characters", longest_code));
        sections_.emplace_back();
        while (at_ < code_.size() && error_.empty()) take();
        for (std::size_t i = 0; i < sections_.size() && error_.empty(); ++i) {
            if (i >= 2 && sections_[i].condition) fail("only the first two sections may have a condition");
            if (std::string fault = lay_out(sections_[i]); !fault.empty()) fail(std::move(fault));
        }
        return {std::move(sections_), std::move(error_)};
    }

  private:
    FormatSection& section() { return sections_.back(); }
    void add(Part part, int count = 0, char sign = '\0') { section().items.push_back({part, sign, count, {}}); }
    void fail(std::string why) {
        if (error_.empty()) error_ = std::move(why);
    }

    void add_literal(std::string_view text) {
        auto& items = section().items;
        if (items.empty() || items.back().part != Part::literal) add(Part::literal);
        items.back().text += text;
    }

    // One character of UTF-8.
    std::string_view take_character() {
        const std::size_t start = at_;
        if (at_ < code_.size()) ++at_;
        while (at_ < code_.size() && is_continuation(code_[at_])) ++at_;
        return code_.substr(start, at_ - start);
    }

    // How often the letter stands here in a row, in either case.
    int take_run(char letter) {
        int count = 0;
        while (at_ < code_.size() && lower(code_[at_]) == letter) {
            ++at_;
            ++count;
        }
        return count;
    }

    bool take_word(std::string_view word) {
        if (!equal_ignoring_case(code_.substr(at_, word.size()), word)) return false;
        at_ += word.size();
        return true;
    }

    void take() {
        const char c = code_[at_];
        switch (c) {
            case ';':
                if (sections_.size() == 4) return fail("it has more than four sections");
                sections_.emplace_back();
                ++at_;
                return;
            case '"':
                return take_quoted();
            case '[':
                return take_bracket();
            case '\\':
            case '_':
            case '*':
                return take_escape(c);
            case '0':
            case '#':
            case '?':
                ++at_;
                return add(Part::raw_digit, 0, c);
            case '.':
                ++at_;
                return add(Part::raw_point);
            case ',':
                ++at_;
                return add(Part::raw_comma);
            case '/':
                ++at_;
                return add(Part::raw_slash);
            case '%':
                ++at_;
                return add(Part::percent);
            case '@':
                ++at_;
                return add(Part::text);
            default:
                break;
        }
        if (take_letters(lower(c))) return;
        const std::string_view character = take_character();
        for (const auto sign : currency_signs) section().currency |= character == sign;
        add_literal(character);
    }

    bool take_letters(char letter) {
        const std::size_t start = at_;
        switch (letter) {
            case 'g':
                if (take_word("General"))
                    add(Part::general);
                else
                    add(Part::nothing, take_run('g'));
                return true;
            case 'a':
                for (const std::string_view form : {"AM/PM", "A/P"}) {
                    if (!take_word(form)) continue;
                    add(Part::am_pm);
                    section().items.back().text = code_.substr(start, form.size());
                    return true;
                }
                if (const int run = take_run('a'); run >= 3) {
                    add(Part::day, run);  // weekdays, as East Asian codes spell them
                    return true;
                }
                at_ = start;
                return false;
            case 'e': {
                const char sign = at_ + 1 < code_.size() ? code_[at_ + 1] : '\0';
                if (sign == '+' || sign == '-') {
                    at_ += 2;
                    add(Part::exponent_mark, 0, sign);
                } else {
                    take_run('e');
                    add(Part::year, 4);
                }
                return true;
            }
            case 'y':
                add(Part::year, take_run('y'));
                return true;
            case 'b':
                add(Part::buddhist_year, take_run('b'));
                return true;
            case 'm':
                add(Part::month, take_run('m'));
                return true;
            case 'd':
                add(Part::day, take_run('d'));
                return true;
            case 'h':
                add(Part::hour, take_run('h'));
                return true;
            case 's':
                add(Part::second, take_run('s'));
                return true;
            default:
                return false;
        }
    }

    void take_quoted() {
        const std::size_t end = code_.find('"', at_ + 1);
        if (end == std::string_view::npos) return fail("a text is not closed with a quote");
        const std::string_view text = code_.substr(at_ + 1, end - at_ - 1);
        for (const auto sign : currency_signs) section().currency |= text.find(sign) != std::string_view::npos;
        add_literal(text);
        at_ = end + 1;
    }

    void take_escape(char kind) {
        ++at_;
        if (at_ >= code_.size()) return fail(fmt::format("nothing follows the last '{}'", kind));
        const std::string_view character = take_character();
        if (kind == '\\') {
            for (const auto sign : currency_signs) section().currency |= character == sign;
            return add_literal(character);
        }
        if (kind == '_') return add_literal(" ");
        add(Part::fill);
        section().items.back().text = character;
    }

    void take_bracket() {
        const std::size_t end = code_.find(']', at_);
        if (end == std::string_view::npos) return fail("'[' is not closed");
        const std::string_view text = code_.substr(at_ + 1, end - at_ - 1);
        at_ = end + 1;
        if (!text.empty() && text.front() == '$') return take_currency(text.substr(1));
        if (take_elapsed(text) || take_colour(text) || take_condition(text)) return;
        if (equal_ignoring_case(text.substr(0, 5), "DBNum")) return;  // East Asian digits
        fail(fmt::format("\"[{}]\" means nothing", text));
    }

    // [$€-407]: a currency sign and a language; either may be missing.
    void take_currency(std::string_view text) {
        const std::size_t dash = text.rfind('-');
        const std::string_view sign = text.substr(0, dash);
        if (!sign.empty()) {
            add_literal(sign);
            section().currency = true;
        }
        if (dash == std::string_view::npos) return;
        const std::string_view place = text.substr(dash + 1);
        std::uint32_t language = 0;
        if (text == "-x-sysdate")
            language = system_long_date;
        else if (text == "-x-systime")
            language = system_time;
        else
            std::from_chars(place.data(), place.data() + place.size(), language, 16);
        if (language == system_long_date || language == system_time) {
            const std::string_view rest = code_.substr(at_);
            std::size_t end = 0;
            for (bool quoted = false; end < rest.size() && (quoted || rest[end] != ';'); ++end)
                if (rest[end] == '"') quoted = !quoted;
            at_ += end;
            const auto own = parse_format(language == system_long_date ? "dddd, mmmm d, yyyy" : "h:mm:ss AM/PM");
            section().items = own.sections.front().items;
            return;
        }
        // The low half is the language; above it stand the calendar and the digits.
        if (language != 0) section().language = language & 0xFFFFU;
    }

    bool take_elapsed(std::string_view text) {
        if (text.empty()) return false;
        const char letter = lower(text.front());
        for (const char c : text)
            if (lower(c) != letter) return false;
        const int count = static_cast<int>(text.size());
        switch (letter) {
            case 'h':
                add(Part::elapsed_hours, count);
                return true;
            case 'm':
                add(Part::elapsed_minutes, count);
                return true;
            case 's':
                add(Part::elapsed_seconds, count);
                return true;
            default:
                return false;
        }
    }

    bool take_colour(std::string_view text) {
        for (const auto& [name, index] : colour_names) {
            if (!equal_ignoring_case(text, name)) continue;
            section().colour = index;
            return true;
        }
        if (!equal_ignoring_case(text.substr(0, 5), "color")) return false;
        text.remove_prefix(5);
        while (text.starts_with(' ')) text.remove_prefix(1);
        int index = 0;
        const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), index);
        if (fault != std::errc{} || end != text.data() + text.size() || index < 1 || index > 56) return false;
        section().colour = index;
        return true;
    }

    bool take_condition(std::string_view text) {
        for (const auto& [sign, op] : operators) {
            if (!text.starts_with(sign)) continue;
            text.remove_prefix(sign.size());
            while (text.starts_with(' ')) text.remove_prefix(1);
            double limit = 0;
            const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), limit);
            if (fault != std::errc{} || end != text.data() + text.size()) return false;
            section().condition = Condition{op, limit};
            return true;
        }
        return false;
    }

    std::string_view code_;
    std::size_t at_ = 0;
    std::vector<FormatSection> sections_;
    std::string error_;
};

}  // namespace

ParsedFormat parse_format(std::string_view code) { return Reader(code).read(); }

}  // namespace kestrune::number_format
