#include "host/model/ConditionalMatch.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "formula/Characters.h"
#include "formula/Lexer.h"
#include "host/model/ConditionOperand.h"
#include "host/model/Workbook.h"

namespace kestrune::host {
namespace {

using formula::TokenKind;

enum class TextTest : std::uint8_t { Contains, NotContains, Begins, Ends };

struct TextRule {
    std::string_view type;
    TextTest test;
};
constexpr std::array<TextRule, 4> text_rules{{
    {"containsText", TextTest::Contains},
    {"notContainsText", TextTest::NotContains},
    {"beginsWith", TextTest::Begins},
    {"endsWith", TextTest::Ends},
}};

// How a cell's order against the rule's value must be; between and notBetween stand apart.
struct Comparison {
    std::string_view name;
    bool less, equal, greater;
};
constexpr std::array<Comparison, 6> comparisons{{
    {"lessThan", true, false, false},
    {"lessThanOrEqual", true, true, false},
    {"equal", false, true, false},
    {"notEqual", true, false, true},
    {"greaterThanOrEqual", false, true, true},
    {"greaterThan", false, false, true},
}};

std::string upper(std::string text) {
    std::ranges::transform(text, text.begin(), formula::to_upper);
    return text;
}

// Excel writes the wanted text into a formula: NOT(ISERROR(SEARCH("x",A1))), LEFT(A1,LEN("x"))="x". It is the text in
// it, else the reference that is not the cell itself: the first of a SEARCH, the last of the others.
std::string wanted_operand(std::string_view formula, TextTest test) {
    std::string first, last;
    formula::Lexer lexer(formula);
    for (auto token = lexer.next(); token.kind != TokenKind::end; token = lexer.next()) {
        if (token.kind == TokenKind::string) return std::string(token.text(formula));
        if (token.kind != TokenKind::reference) continue;
        last = token.text(formula);
        if (first.empty()) first = last;
    }
    return test == TextTest::Contains || test == TextTest::NotContains ? first : last;
}

std::optional<bool> text_holds(const CellContent& value, const std::string& wanted, TextTest test) {
    if (value.kind == CellKind::Error) return test == TextTest::NotContains;
    const std::string text = upper(text_of(value));
    const std::string part = upper(wanted);
    const bool searches = test == TextTest::Contains || test == TextTest::NotContains;
    if (searches && part.find_first_of("*?~") != std::string::npos) return std::nullopt;
    switch (test) {
        case TextTest::Contains:
            return text.find(part) != std::string::npos;
        case TextTest::NotContains:
            return text.find(part) == std::string::npos;
        case TextTest::Begins:
            return text.starts_with(part);
        case TextTest::Ends:
            return text.ends_with(part);
    }
    return std::nullopt;
}

std::optional<bool> comparison_holds(const CellContent& value, const std::string& name,
                                     const std::vector<CellContent>& bounds) {
    if (const bool between = name == "between"; between || name == "notBetween") {
        if (bounds.size() < 2) return std::nullopt;
        const auto order = compared(bounds[0], bounds[1]);
        const bool swapped = order && *order > 0;
        const auto low = compared(value, bounds[swapped ? 1 : 0]);
        const auto high = compared(value, bounds[swapped ? 0 : 1]);
        if (!low || !high) return false;
        return (*low >= 0 && *high <= 0) == between;
    }
    const auto comparison = std::ranges::find(comparisons, name, &Comparison::name);
    if (comparison == comparisons.end() || bounds.empty()) return std::nullopt;
    const auto order = compared(value, bounds[0]);
    if (!order) return false;
    return *order < 0 ? comparison->less : *order == 0 ? comparison->equal : comparison->greater;
}

// Equal for values that a duplicates rule takes for the same; empty for those it passes over.
std::string duplicate_key(const CellContent& content) {
    if (content.kind == CellKind::Blank) return {};
    return static_cast<char>('0' + static_cast<int>(content.kind)) + upper(text_of(content));
}

bool covers(const ConditionalFormat& format, Position at) {
    return std::ranges::any_of(format.areas, [&](const Area& area) { return area.contains(at); });
}

}  // namespace

ConditionalMatcher::ConditionalMatcher(Sheet& sheet) : sheet_(sheet) {
    for (const ConditionalFormat& format : sheet.conditional_formats())
        for (const ConditionalRule& rule : format.rules)
            rules_.push_back({&format, &rule, format.anchor(), std::nullopt});
    std::ranges::stable_sort(rules_, {}, [](const Rule& rule) { return rule.rule->priority; });
}

ConditionalMatch ConditionalMatcher::at(Position position) {
    ConditionalMatch match;
    const auto& differentials = sheet_.workbook().styles.differentials;
    for (Rule& rule : rules_) {
        if (!covers(*rule.format, position)) continue;
        const auto result = holds(rule, position);
        if (!result) match.complete = false;
        if (!result.value_or(false)) continue;
        const auto& differential = rule.rule->differential;
        if (differential && *differential < differentials.size())
            match.formats.push_back(&differentials[*differential]);
        if (rule.rule->stop_if_true) break;
    }
    return match;
}

std::optional<bool> ConditionalMatcher::holds(Rule& rule, Position at) {
    const std::string& type = rule.rule->type;
    const std::vector<std::string>& formulas = rule.rule->formulas;
    if (type == "expression")
        return formulas.empty() ? std::nullopt : condition_value(sheet_, formulas.front(), rule.anchor, at);
    if (type == "duplicateValues" || type == "uniqueValues") return duplicated(rule, at);

    const auto value = known_content(sheet_, at);
    if (!value) return std::nullopt;
    if (type == "containsErrors") return value->kind == CellKind::Error;
    if (type == "notContainsErrors") return value->kind != CellKind::Error;
    const bool blank = value->kind != CellKind::Error && text_of(*value).find_first_not_of(' ') == std::string::npos;
    if (type == "containsBlanks") return blank;
    if (type == "notContainsBlanks") return !blank;

    if (const auto text = std::ranges::find(text_rules, type, &TextRule::type); text != text_rules.end()) {
        if (formulas.empty()) return std::nullopt;
        const auto wanted = operand_value(sheet_, wanted_operand(formulas.front(), text->test), rule.anchor, at);
        if (!wanted) return std::nullopt;
        return text_holds(*value, text_of(*wanted), text->test);
    }
    if (type != "cellIs") return std::nullopt;
    std::vector<CellContent> bounds;
    for (const std::string& formula : formulas) {
        const auto bound = operand_value(sheet_, formula, rule.anchor, at);
        if (!bound) return std::nullopt;
        bounds.push_back(*bound);
    }
    return comparison_holds(*value, rule.rule->operator_name, bounds);
}

std::optional<bool> ConditionalMatcher::duplicated(Rule& rule, Position at) {
    if (!rule.counts) {
        rule.counts.emplace();
        for (const Area& area : rule.format->areas)
            sheet_.visit_cells(area, false, [&](Position place, const Cell&) {
                const std::string key = duplicate_key(sheet_.content_at(place));
                if (!key.empty()) ++(*rule.counts)[key];
            });
    }
    const auto value = known_content(sheet_, at);
    if (!value) return std::nullopt;
    const auto count = rule.counts->find(duplicate_key(*value));
    if (count == rule.counts->end()) return false;
    return (count->second > 1) == (rule.rule->type == "duplicateValues");
}

std::vector<const DifferentialFormat*> conditional_matches(Sheet& sheet, Position position) {
    return ConditionalMatcher(sheet).at(position).formats;
}

}  // namespace kestrune::host
