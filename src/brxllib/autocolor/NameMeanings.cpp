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
        if (token.kind == formula::TokenKind::name && token.prefix == 0) found |= of_name(token.text(formula));
    }
    return found;
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
