#include "brxllib/autocolor/CellClass.h"

#include <algorithm>

#include "automation/Text.h"
#include "brxllib/autocolor/HardCodedNumbers.h"
#include "formula/Lexer.h"
#include "formula/Listing.h"

namespace kestrune::brxllib {
namespace {

// Functions whose answer depends on more than their arguments: the place, the time, chance, text that is an address.
constexpr auto looking_around = std::to_array<std::string_view>({
    "CELL",
    "COLUMN",
    "INDIRECT",
    "INFO",
    "NOW",
    "OFFSET",
    "RAND",
    "RANDARRAY",
    "RANDBETWEEN",
    "ROW",
    "SHEET",
    "SHEETS",
    "TODAY",
});

template <class Fits>
bool calls_function(std::string_view formula, Fits&& fits) {
    formula::Lexer lexer(formula);
    for (auto token = lexer.next(); token.kind != formula::TokenKind::end; token = lexer.next()) {
        if (token.kind == formula::TokenKind::function && fits(token.text(formula))) return true;
    }
    return false;
}

bool looks_around(std::string_view formula) {
    return calls_function(formula, [](std::string_view name) {
        return std::ranges::any_of(looking_around,
                                   [&](std::string_view known) { return automation::same_text(known, name); });
    });
}

bool calls_hyperlink(std::string_view formula) {
    return calls_function(formula, [](std::string_view name) { return automation::same_text(name, "HYPERLINK"); });
}

CellClass class_of_constants(std::string_view formula, const formula::Ingredients& made_of) {
    if (made_of.numbers) {
        return made_of.functions && looks_around(formula) ? CellClass::PartialInput : CellClass::Input;
    }
    if (made_of.functions) return CellClass::Formula;
    return made_of.texts ? CellClass::Text : CellClass::Input;
}

}  // namespace

CellClass class_of_constant(const automation::Value& value) {
    using Kind = automation::Value::Kind;
    switch (value.kind()) {
        case Kind::Empty:
            return CellClass::Empty;
        case Kind::Date:
            return CellClass::Date;
        case Kind::String:
            return CellClass::Text;
        default:
            return CellClass::Input;
    }
}

CellClass class_of_formula(std::string_view formula, NameMeanings& names, bool hyperlinks) {
    const formula::Ingredients made_of = formula::ingredients(formula, names.sheet_name());
    if (hyperlinks && made_of.functions && calls_hyperlink(formula)) return CellClass::Hyperlink;
    Sources sources{made_of.other_sheets, made_of.other_workbooks};
    if (made_of.names && !sources.other_workbooks) sources |= names.sources_of_names(formula);
    if (sources.other_workbooks) return CellClass::WorkbookLink;
    if (sources.other_sheets) return CellClass::SheetLink;
    if (!made_of.cells && !made_of.names && !made_of.lost_references) return class_of_constants(formula, made_of);
    return made_of.numbers && holds_hard_coded_number(formula) ? CellClass::PartialInput : CellClass::Formula;
}

std::optional<std::int32_t> color_of(CellClass cell, const AutoColorSettings& settings) {
    switch (cell) {
        case CellClass::Empty:
            return std::nullopt;
        case CellClass::Text:
            return settings.bAutoColorText ? std::optional(settings.InputColor) : std::nullopt;
        case CellClass::Date:
            return settings.bAutoColorDate ? std::optional(settings.InputColor) : std::nullopt;
        case CellClass::Input:
            return settings.InputColor;
        case CellClass::Formula:
            return settings.FormulaColor;
        case CellClass::PartialInput:
            return settings.PartialInputColor;
        case CellClass::SheetLink:
            return settings.WksLinkColor;
        case CellClass::WorkbookLink:
            return settings.WkbLinkColor;
        case CellClass::Hyperlink:
            return settings.HyperLinkColor;
    }
    return std::nullopt;
}

}  // namespace kestrune::brxllib
