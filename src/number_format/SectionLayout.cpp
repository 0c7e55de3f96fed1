#include "number_format/SectionLayout.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace kestrune::number_format {
namespace {

bool is_clock(Part part) {
    return part == Part::hour || part == Part::minute || part == Part::second || part == Part::am_pm ||
           part == Part::elapsed_hours || part == Part::elapsed_minutes || part == Part::elapsed_seconds;
}

bool is_day(Part part) {
    return part == Part::year || part == Part::buddhist_year || part == Part::month || part == Part::day;
}

bool has(const FormatSection& section, Part part) {
    return std::ranges::any_of(section.items, [&](const Item& item) { return item.part == part; });
}

void make_literal(Item& item) {
    switch (item.part) {
        case Part::raw_comma:
            item.text = ",";
            break;
        case Part::raw_point:
            item.text = ".";
            break;
        case Part::raw_slash:
            item.text = "/";
            break;
        case Part::percent:
            item.text = "%";
            break;
        default:
            return;
    }
    item.part = Part::literal;
}

void make_rest_literal(FormatSection& section) {
    for (Item& item : section.items)
        if (item.part == Part::raw_comma || item.part == Part::raw_point || item.part == Part::raw_slash)
            make_literal(item);
}

// "m" means minutes behind hours and in front of seconds.
void find_minutes(std::vector<Item>& items) {
    Part previous = Part::nothing;
    for (std::size_t i = 0; i < items.size(); ++i) {
        Item& item = items[i];
        if (item.part == Part::month && item.count <= 2) {
            auto next = std::find_if(items.begin() + static_cast<std::ptrdiff_t>(i) + 1, items.end(),
                                     [](const Item& other) { return is_day(other.part) || is_clock(other.part); });
            const bool before_seconds =
                next != items.end() && (next->part == Part::second || next->part == Part::elapsed_seconds);
            if (before_seconds || previous == Part::hour || previous == Part::elapsed_hours) item.part = Part::minute;
        }
        if ((is_day(item.part) || is_clock(item.part)) && item.part != Part::am_pm) previous = item.part;
    }
}

// Zeros behind the point behind the seconds are fractions of a second.
std::string find_second_fractions(FormatSection& section) {
    std::vector<Item>& items = section.items;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].part == Part::raw_digit) return "digits do not go with dates and times";
        if (items[i].part != Part::raw_point) continue;
        const bool behind_seconds =
            i > 0 && (items[i - 1].part == Part::second || items[i - 1].part == Part::elapsed_seconds);
        std::size_t zeros = i + 1;
        while (behind_seconds && zeros < items.size() && items[zeros].part == Part::raw_digit &&
               items[zeros].sign == '0')
            ++zeros;
        const auto count = static_cast<int>(zeros - i - 1);
        if (count == 0) continue;
        if (count > 3) return "seconds have at most three decimals";
        items[i].part = Part::second_fraction;
        items[i].count = count;
        section.second_decimals = std::max(section.second_decimals, count);
        items.erase(items.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                    items.begin() + static_cast<std::ptrdiff_t>(zeros));
    }
    return {};
}

std::string lay_out_date(FormatSection& section) {
    section.kind = SectionKind::date;
    if (has(section, Part::general) || has(section, Part::text) || has(section, Part::exponent_mark))
        return "numbers and texts do not go with dates and times";
    if (std::string fault = find_second_fractions(section); !fault.empty()) return fault;
    find_minutes(section.items);
    for (Item& item : section.items) {
        section.has_date |= is_day(item.part);
        section.has_time |= is_clock(item.part);
        section.twelve_hours |= item.part == Part::am_pm;
        if (item.part == Part::percent) make_literal(item);
    }
    make_rest_literal(section);
    return {};
}

// The slash of a fraction: digits in front of it, digits or a number behind it. Nothing but texts between.
std::size_t find_slash(const std::vector<Item>& items) {
    const auto is_gap = [](const Item& item) { return item.part == Part::literal || item.part == Part::fill; };
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].part != Part::raw_slash) continue;
        std::size_t before = i;
        while (before > 0 && is_gap(items[before - 1])) --before;
        if (before == 0 || items[before - 1].part != Part::raw_digit) continue;
        for (std::size_t after = i + 1; after < items.size(); ++after) {
            if (items[after].part == Part::raw_digit) return i;
            if (!is_gap(items[after])) break;
            const std::string& text = items[after].text;
            if (text.find_first_of("123456789") != std::string::npos) return i;
        }
    }
    return items.size();
}

// A number behind the slash; its zeros are placeholders to the reader: "?/100" holds "1", 0, 0.
std::string lay_out_denominator(FormatSection& section, std::size_t slash) {
    std::vector<Item>& items = section.items;
    std::size_t first = slash + 1;
    while (first < items.size() && items[first].part == Part::literal &&
           items[first].text.find_first_of("123456789") == std::string::npos)
        ++first;
    if (first >= items.size()) return "a fraction has no denominator";
    if (items[first].part == Part::raw_digit) {
        while (first < items.size() && items[first].part == Part::raw_digit)
            items[first++].part = Part::denominator_digit;
        return {};
    }
    const std::size_t start = items[first].text.find_first_of("123456789");
    std::string digits = items[first].text.substr(start);
    std::string rest;
    if (const auto end = digits.find_first_not_of("0123456789"); end != std::string::npos) {
        rest = digits.substr(end);
        digits.erase(end);
    }
    std::size_t behind = first + 1;
    while (rest.empty() && behind < items.size()) {
        if (items[behind].part == Part::raw_digit && items[behind].sign == '0')
            digits += '0';
        else if (items[behind].part == Part::literal && items[behind].text.find_first_of("123456789") == 0)
            digits += items[behind].text;
        else
            break;
        ++behind;
    }
    int number = 0;
    if (digits.size() > 7 ||
        std::from_chars(digits.data(), digits.data() + digits.size(), number).ptr != digits.data() + digits.size())
        return "a denominator has at most seven digits";
    items[first].text.erase(start);
    items.erase(items.begin() + static_cast<std::ptrdiff_t>(first) + 1,
                items.begin() + static_cast<std::ptrdiff_t>(behind));
    Item fixed{Part::denominator, '\0', number, {}};
    auto place = items.insert(items.begin() + static_cast<std::ptrdiff_t>(first) + 1, fixed);
    if (!rest.empty()) items.insert(place + 1, Item{Part::literal, '\0', 0, rest});
    return {};
}

std::string lay_out_fraction(FormatSection& section, std::size_t slash) {
    section.kind = SectionKind::fraction;
    std::vector<Item>& items = section.items;
    items[slash].part = Part::slash;
    std::size_t numerator = slash;
    while (items[numerator - 1].part != Part::raw_digit) --numerator;
    while (numerator > 0 && items[numerator - 1].part == Part::raw_digit)
        items[--numerator].part = Part::numerator_digit;
    if (std::string fault = lay_out_denominator(section, slash); !fault.empty()) return fault;
    for (Item& item : items) {
        if (item.part == Part::raw_digit) {
            if (&item > &items[slash]) return "a fraction has digits behind its denominator";
            item.part = Part::integer_digit;
            ++section.integer_digits;
        }
        if (item.part == Part::raw_comma) {
            item.part = Part::nothing;
            section.grouped = true;
        }
        if (item.part == Part::percent) section.power += 2;
        if (item.part == Part::exponent_mark) return "a fraction has no exponent";
    }
    make_rest_literal(section);
    return {};
}

void lay_out_commas(FormatSection& section) {
    std::vector<Item>& items = section.items;
    const auto is_digit = [](const Item& item) {
        return item.part == Part::integer_digit || item.part == Part::fraction_digit;
    };
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].part != Part::raw_comma) continue;
        const auto here = items.begin() + static_cast<std::ptrdiff_t>(i);
        const bool digits_before = std::any_of(items.begin(), here, is_digit);
        if (!digits_before) {
            make_literal(items[i]);
            continue;
        }
        // Behind the last digit of its side a comma divides by a thousand; between digits it groups.
        bool digits_behind = false;
        for (auto next = here + 1; next != items.end() && next->part != Part::decimal_point; ++next)
            digits_behind |= is_digit(*next);
        if (digits_behind)
            section.grouped = true;
        else
            section.power -= 3;
        items[i].part = Part::nothing;
    }
}

std::string lay_out_number(FormatSection& section) {
    section.kind = has(section, Part::raw_digit) ? SectionKind::number : SectionKind::literal;
    bool point = false;
    bool exponent = false;
    for (Item& item : section.items) {
        switch (item.part) {
            case Part::raw_digit:
                item.part = exponent ? Part::exponent_digit : point ? Part::fraction_digit : Part::integer_digit;
                ++(exponent ? section.exponent_digits : point ? section.decimals : section.integer_digits);
                break;
            case Part::raw_point:
                if (point || exponent) {
                    make_literal(item);
                } else {
                    item.part = Part::decimal_point;
                    point = true;
                }
                break;
            case Part::percent:
                section.power += 2;
                break;
            case Part::exponent_mark:
                if (exponent || section.integer_digits + section.decimals == 0)
                    return "an exponent needs digits in front of it";
                exponent = true;
                break;
            default:
                break;
        }
    }
    if (exponent && section.exponent_digits == 0) return "an exponent needs digits";
    if (exponent) section.kind = SectionKind::scientific;
    lay_out_commas(section);
    make_rest_literal(section);
    return {};
}

std::string lay_out_kind(FormatSection& section) {
    const bool date =
        std::ranges::any_of(section.items, [](const Item& item) { return is_day(item.part) || is_clock(item.part); });
    if (date) return lay_out_date(section);
    if (has(section, Part::nothing)) return "an era stands alone";
    const bool digits = has(section, Part::raw_digit);
    if (has(section, Part::text)) {
        if (digits || has(section, Part::general)) return "numbers do not go with texts";
        section.kind = SectionKind::text;
        make_rest_literal(section);
        return {};
    }
    if (has(section, Part::general)) {
        if (digits || has(section, Part::exponent_mark)) return "digits do not go with General";
        section.kind = SectionKind::general;
        for (const Item& item : section.items)
            if (item.part == Part::percent) section.power += 2;
        make_rest_literal(section);
        return {};
    }
    if (const std::size_t slash = find_slash(section.items); slash < section.items.size())
        return lay_out_fraction(section, slash);
    return lay_out_number(section);
}

// Drops what shows nothing and joins texts that stand side by side.
void tidy(std::vector<Item>& items) {
    std::vector<Item> joined;
    for (Item& item : items) {
        if (item.part == Part::nothing) continue;
        if (item.part == Part::literal && !joined.empty() && joined.back().part == Part::literal)
            joined.back().text += item.text;
        else
            joined.push_back(std::move(item));
    }
    items = std::move(joined);
}

}  // namespace

std::string lay_out(FormatSection& section) {
    std::string fault = lay_out_kind(section);
    tidy(section.items);
    return fault;
}

}  // namespace kestrune::number_format
