#include <utility>

#include "automation/Text.h"
#include "brxllib/DependentFormula.h"
#include "brxllib/FormulaScan.h"
#include "brxllib/Links.h"
#include "excel/Worksheet.h"

namespace kestrune::brxllib {

std::vector<Link> dependents(const excel::Application& application, const excel::Range& range) {
    const excel::Worksheet sheet = range.Worksheet();
    OpenBooks books(application);
    SearchedCells cells{books, books.find(sheet.Parent().Name()), sheet.Name(), area_of(range), {}};
    if (!cells.book) return {};
    cells.spill_anchor = spill_anchor(range.Cells(1, 1));
    std::vector<Link> links;
    const auto look_through = [&](OpenBook& book, const std::string& name) {
        DependentFormula formulas(cells, book, name);
        scan_formulas(book.workbook().Worksheets().Item(name), [&](const ScannedFormula& scanned) {
            auto use = formulas.find(scanned.text, scanned.at);
            if (!use || !scanned.is_formula()) return;
            links.push_back(link_to_formula(book, name, scanned.at, scanned.text, use->offset, use->length,
                                            std::move(use->through)));
        });
    };
    look_through(*cells.book, cells.sheet);
    for (const std::string& other : cells.book->sheets()) {
        if (!automation::same_text(other, cells.sheet)) look_through(*cells.book, other);
    }
    for (OpenBook& book : books.all()) {
        if (&book == cells.book) continue;
        for (const std::string& other : book.sheets()) look_through(book, other);
    }
    return links;
}

}  // namespace kestrune::brxllib
