#include "number_format/NumberFormat.h"

#include <algorithm>
#include <cmath>

#include "number_format/FormatParser.h"
#include "number_format/GeneralText.h"
#include "number_format/SectionText.h"

namespace kestrune::number_format {
namespace {

constexpr int unknown_width = 8;

Rendered hashes(const RenderOptions& options) {
    Rendered result;
    result.text.assign(static_cast<std::size_t>(std::max(options.width.value_or(unknown_width), 1)), '#');
    result.overflow = true;
    return result;
}

int characters(std::string_view utf8) {
    return static_cast<int>(
        std::ranges::count_if(utf8, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

bool shows_text(const FormatSection& section) { return section.kind == SectionKind::text; }

}  // namespace

bool Condition::holds(double value) const {
    switch (op) {
        case Operator::less:
            return value < limit;
        case Operator::less_or_equal:
            return value <= limit;
        case Operator::equal:
            return value == limit;
        case Operator::not_equal:
            return value != limit;
        case Operator::greater_or_equal:
            return value >= limit;
        case Operator::greater:
            return value > limit;
    }
    return false;
}

bool Condition::only_negative() const {
    return (op == Operator::less && limit <= 0) ||
           ((op == Operator::less_or_equal || op == Operator::equal) && limit < 0);
}

bool Condition::all_positive() const {
    return (op == Operator::greater || op == Operator::greater_or_equal) && limit <= 0;
}

NumberFormat::NumberFormat(std::string_view code) {
    ParsedFormat parsed = parse_format(code);
    error_ = std::move(parsed.error);
    if (!error_.empty() || code.empty()) return;
    sections_ = std::move(parsed.sections);
    number_sections_ = sections_.size();
    // The fourth section is for texts, and so is an earlier last one that shows texts.
    if (sections_.size() == 4 || shows_text(sections_.back())) text_section_ = --number_sections_;
}

NumberFormat::Choice NumberFormat::choose(double value) const {
    if (number_sections_ == 0) return {nullptr, true, false};
    const FormatSection& first = sections_[0];
    const bool conditions = first.condition || (number_sections_ > 1 && sections_[1].condition);
    if (!conditions) {
        if (number_sections_ == 1) return {&first, true, false};
        if (value < 0) return {&sections_[1], false, false};
        return {number_sections_ > 2 && value == 0 ? &sections_[2] : &first, false, false};
    }
    const Condition positive{Condition::Operator::greater, 0};
    const Condition negative{Condition::Operator::less, 0};
    const Condition condition = first.condition.value_or(positive);
    if (condition.holds(value)) return {&first, !condition.only_negative(), false};
    if (number_sections_ == 1) return {nullptr, true, false};
    const FormatSection& second = sections_[1];
    if (number_sections_ == 2 && !second.condition) return {&second, !condition.all_positive(), false};
    const Condition other = second.condition.value_or(negative);
    if (other.holds(value)) return {&second, !other.only_negative(), false};
    if (number_sections_ == 2) return {nullptr, true, true};
    return {&sections_[2], true, false};
}

Rendered NumberFormat::render(double value, const RenderOptions& options) const {
    if (!std::isfinite(value)) return hashes(options);
    const Choice choice = choose(value);
    if (choice.overflow) return hashes(options);
    Rendered result;
    const int room = options.width.value_or(general_width + 1);
    if (choice.section == nullptr) {
        result.text = general_text(value, room);
        return result.text.empty() ? hashes(options) : result;
    }
    const FormatSection& section = *choice.section;
    result.colour = section.colour;
    SectionText out{result, section, choice.minus, room};
    const double shown = choice.minus ? value : std::fabs(value);
    // A single section drops the minus of a number that shows as zero; several keep it.
    const bool good = section.kind == SectionKind::date ? out.append_date(shown, options.date1904)
                                                        : out.append_number(shown, sections_.size() == 1);
    const bool fits = !options.width || characters(result.text) <= *options.width;
    if (good && fits) return result;
    Rendered overflow = hashes(options);
    overflow.colour = result.colour;
    return overflow;
}

Rendered NumberFormat::render_text(std::string_view value) const {
    Rendered result;
    if (!text_section_) {
        result.text = value;
        return result;
    }
    const FormatSection& section = sections_[*text_section_];
    result.colour = section.colour;
    for (const Item& item : section.items) {
        switch (item.part) {
            case Part::text:
            case Part::general:
                result.text += value;
                break;
            case Part::literal:
                result.text += item.text;
                break;
            case Part::percent:
                result.text += '%';
                break;
            case Part::fill:
                result.fill = item.text;
                result.fill_at = result.text.size();
                break;
            default:
                break;
        }
    }
    return result;
}

Rendered NumberFormat::render_boolean(bool value) const {
    Rendered result;
    result.text = value ? "TRUE" : "FALSE";
    return result;
}

FormatKind NumberFormat::kind() const {
    if (sections_.empty()) return FormatKind::general;
    const FormatSection& first = sections_.front();
    switch (first.kind) {
        case SectionKind::general:
            return FormatKind::general;
        case SectionKind::text:
            return FormatKind::text;
        case SectionKind::date:
            return first.has_date ? FormatKind::date : FormatKind::time;
        case SectionKind::scientific:
            return FormatKind::scientific;
        case SectionKind::fraction:
            return FormatKind::fraction;
        case SectionKind::literal:
        case SectionKind::number:
            break;
    }
    const bool percent = std::ranges::any_of(first.items, [](const Item& item) { return item.part == Part::percent; });
    return percent ? FormatKind::percent : first.currency ? FormatKind::currency : FormatKind::number;
}

bool NumberFormat::is_date_or_time() const { return kind() == FormatKind::date || kind() == FormatKind::time; }

bool is_valid_format(std::string_view code) { return parse_format(code).error.empty(); }

}  // namespace kestrune::number_format
