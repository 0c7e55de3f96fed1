#include "brxllib/DependentFormula.h"

#include <algorithm>
#include <utility>

#include "automation/Text.h"

namespace kestrune::brxllib {
namespace {

using automation::same_text;
using formula::Area;
using formula::Lexer;
using formula::Notation;
using formula::Position;
using formula::Token;
using formula::TokenKind;

bool has_relative_coordinates(const formula::Reference& reference) {
    return (reference.has_rows() && !(reference.first_row.absolute && reference.last_row.absolute)) ||
           (reference.has_columns() && !(reference.first_column.absolute && reference.last_column.absolute));
}

bool means_own_row(std::string_view structured) {
    const std::size_t bracket = structured.find('[');
    return bracket == 0 || structured.find("[@") != std::string_view::npos ||
           structured.find("#This Row") != std::string_view::npos ||
           structured.find("#this row") != std::string_view::npos;
}

// Whether what a name stands for moves with the cell that uses it: by relative references, by an own row, or by names
// that do.
bool moves(OpenBook& book, std::string_view sheet, std::string_view name, int depth = 0) {
    const DefinedName* defined = book.find_name(sheet, name);
    if (!defined) return false;
    if (depth > 32) return true;
    Lexer lexer(defined->refers_to, Notation::r1c1);
    for (Token token = lexer.next(); token.kind != TokenKind::end; token = lexer.next()) {
        const std::string_view text =
            std::string_view(defined->refers_to).substr(token.body(), token.end() - token.body());
        if (token.kind == TokenKind::reference && has_relative_coordinates(token.reference)) return true;
        if (token.kind == TokenKind::structured && means_own_row(text)) return true;
        if (token.kind == TokenKind::name && moves(book, defined->sheet, text, depth + 1)) return true;
    }
    return false;
}

Area bounding(const Area& a, const Area& b) {
    return {std::min(a.first_row, b.first_row), std::min(a.first_column, b.first_column),
            std::max(a.last_row, b.last_row), std::max(a.last_column, b.last_column)};
}

}  // namespace

DependentFormula::DependentFormula(const SearchedCells& cells, OpenBook& book, std::string sheet)
    : cells_(cells),
      book_(book),
      sheet_(std::move(sheet)),
      own_sheet_(&book == cells.book && same_text(sheet_, cells.sheet)),
      words_matter_(book_has_indirect_words()) {}

// Whether a name of this workbook may mean the cells, or a table of theirs. Names of other workbooks come with a "!".
bool DependentFormula::book_has_indirect_words() {
    const bool by_name = std::ranges::any_of(book_.names(), [&](const DefinedName& name) {
        const Site site{&book_, name.sheet.empty() ? sheet_ : name.sheet, {}};
        return moves(book_, site.sheet, name.name) ||
               any_means_cells(mentions(cells_.books, name.refers_to, site, Notation::r1c1));
    });
    if (by_name || &book_ != cells_.book) return by_name;
    return std::ranges::any_of(book_.tables(), [&](const Table& table) {
        return same_text(table.sheet, cells_.sheet) && table.all.intersection(cells_.area);
    });
}

const Mention* DependentFormula::any_means_cells(const std::vector<Mention>& found) const {
    const auto mention = std::ranges::find_if(found, [&](const Mention& candidate) {
        return candidate.target.book == cells_.book && same_text(candidate.target.sheet, cells_.sheet) &&
               candidate.target.area && candidate.target.area->intersection(cells_.area);
    });
    return mention == found.end() ? nullptr : &*mention;
}

// A look at the bytes of formulas that have to name a sheet.
bool DependentFormula::could_mean(std::string_view formula) const {
    return own_sheet_ || words_matter_ || formula.find('!') != std::string_view::npos;
}

bool DependentFormula::means_sheet(std::string_view prefix) {
    if (prefix.empty()) return own_sheet_;
    const auto known = prefixes_.find(std::string(prefix));
    if (known != prefixes_.end()) return known->second;
    const std::string cell = "=" + std::string(prefix) + "A1";
    const auto found = mentions(cells_.books, cell, {&book_, sheet_, {}});
    const bool means = std::ranges::any_of(found, [&](const Mention& mention) {
        return mention.target.book == cells_.book && same_text(mention.target.sheet, cells_.sheet);
    });
    prefixes_.emplace(prefix, means);
    return means;
}

// Whether a name or a structured reference means the cells, seen from a position: if so, what it goes through.
std::optional<std::string> DependentFormula::means_cells(std::string_view words, Position at) {
    const std::string formula = "=" + std::string(words);
    const auto found = mentions(cells_.books, formula, {&book_, sheet_, at});
    const Mention* mention = any_means_cells(found);
    if (!mention) return std::nullopt;
    return mention->target.through;
}

bool DependentFormula::token_means_cells(std::string_view formula, const Token& token, Position at,
                                         std::string& through) {
    const std::string_view words = token.text(formula);
    auto known = words_.find(std::string(words));
    if (known == words_.end()) {
        const bool site = token.kind == TokenKind::structured ? means_own_row(words.substr(token.prefix))
                                                              : moves(book_, sheet_, words.substr(token.prefix));
        Verdict verdict;
        verdict.depends_on_site = site;
        if (!site) verdict.through = means_cells(words, at);
        known = words_.emplace(words, std::move(verdict)).first;
    }
    const auto means = known->second.depends_on_site ? means_cells(words, at) : known->second.through;
    if (means) through = *means;
    return means.has_value();
}

std::optional<Use> DependentFormula::find(std::string_view formula, Position at) {
    if (!could_mean(formula)) return std::nullopt;
    Lexer lexer(formula);
    // The reference in front of a ":" or a "#", when it is on the cells' sheet.
    // Not an optional: GCC 12 takes one in this loop for uninitialised when it optimises.
    Area last;
    bool has_last = false;
    std::size_t last_offset = 0;
    bool joins = false;
    for (Token token = lexer.next(); token.kind != TokenKind::end; token = lexer.next()) {
        switch (token.kind) {
            case TokenKind::whitespace:
                continue;
            case TokenKind::range:
                joins = has_last;
                continue;
            case TokenKind::postfix:
                if (has_last && cells_.spill_anchor && last.single_cell() && last.contains(*cells_.spill_anchor))
                    return Use{last_offset, token.end() - last_offset, {}};
                continue;
            case TokenKind::reference: {
                if (!means_sheet(token.sheet(formula))) break;
                Area area = formula::area_of(token.reference);
                std::size_t offset = token.offset;
                if (joins) {
                    area = bounding(last, area);
                    offset = last_offset;
                }
                if (area.intersection(cells_.area)) return Use{offset, token.end() - offset, {}};
                joins = false;
                last = area;
                has_last = true;
                last_offset = offset;
                continue;
            }
            case TokenKind::name:
            case TokenKind::structured: {
                Use use{token.offset, token.length, {}};
                if ((words_matter_ || token.prefix > 0) && token_means_cells(formula, token, at, use.through))
                    return use;
                break;
            }
            default:
                break;
        }
        has_last = false;
        joins = false;
    }
    return std::nullopt;
}

}  // namespace kestrune::brxllib
