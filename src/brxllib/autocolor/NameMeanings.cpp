#include "brxllib/autocolor/NameMeanings.h"

#include "automation/ResumeNext.h"
#include "excel/Workbook.h"
#include "formula/Lexer.h"
#include "formula/Listing.h"

namespace kestrune::brxllib {

Sources NameMeanings::sources_of_names(std::string_view formula) {
    Sources found;
    formula::Lexer lexer(formula);
    for (auto token = lexer.next(); token.kind != formula::TokenKind::end; token = lexer.next()) {
        // A name behind a sheet or a book says itself where it is.
        if (token.prefix != 0) continue;
        const std::string_view text = token.text(formula);
        if (token.kind == formula::TokenKind::name) found |= of_name(text);
        if (token.kind == formula::TokenKind::structured) found |= of_table(text.substr(0, text.find('[')));
    }
    return found;
}

Sources NameMeanings::of_table(std::string_view name) {
    // [@Column] is of the table that the formula stands in.
    if (name.empty()) return {};
    if (const auto known = tables_.find(name); known != tables_.end()) return known->second;
    const automation::Trace nobody;
    const automation::ResumeNext attempt(nobody);
    excel::ListObjects tables;
    const bool lists_tables = attempt.assign(tables, [&] { return sheet_.ListObjects(); });
    const bool own = attempt([&] { (void)tables.Item(name).Name(); });
    // Where tables are not listed, one is taken to be the sheet's own.
    return tables_.emplace(name, Sources{lists_tables && !own, false}).first->second;
}

Sources NameMeanings::of_name(std::string_view name) {
    if (const auto known = known_.find(name); known != known_.end()) return known->second;
    // Entered before it is followed, so that names in a circle come to an end.
    known_.emplace(name, Sources{});
    const std::string meaning = refers_to(name);
    const formula::Ingredients made_of = formula::ingredients(meaning, sheet_name_);
    Sources found{made_of.other_sheets, made_of.other_workbooks};
    if (made_of.names) found |= sources_of_names(meaning);
    known_.insert_or_assign(std::string(name), found);
    return found;
}

std::string NameMeanings::refers_to(std::string_view name) const {
    // That most formulas hold no name of the sheet's own is nothing to tell anybody.
    const automation::Trace nobody;
    const automation::ResumeNext attempt(nobody);
    std::string meaning;
    if (attempt.assign(meaning, [&] { return sheet_.Names().Item(name).RefersTo(); })) return meaning;
    attempt.assign(meaning, [&] { return sheet_.Parent().Names().Item(name).RefersTo(); });
    return meaning;
}

}  // namespace kestrune::brxllib
