#include "automation/Conversion.h"
#include "brxllib/Links.h"
#include "brxllib/Mentions.h"
#include "brxllib/Utf16.h"
#include "excel/Worksheet.h"

namespace kestrune::brxllib {

std::vector<Link> precedents(const excel::Application& application, const excel::Range& range) {
    const excel::Range cell = range.Cells(1, 1);
    const automation::Value has_formula = cell.HasFormula();
    if (!has_formula.is(automation::Value::Kind::Boolean) || !automation::to_boolean(has_formula)) return {};
    const std::string formula = automation::to_text(cell.Formula());
    const excel::Worksheet sheet = cell.Worksheet();
    OpenBooks books(application);
    Site site;
    site.book = books.find(sheet.Parent().Name());
    site.sheet = sheet.Name();
    site.at = {cell.Row(), cell.Column()};
    if (!site.book) return {};
    std::vector<Link> links;
    for (Mention& mention : mentions(books, formula, site)) {
        Link link;
        link.text = formula.substr(mention.offset, mention.length);
        link.workbook = std::move(mention.target.workbook);
        link.folder = std::move(mention.target.folder);
        link.sheet = std::move(mention.target.sheet);
        link.address = std::move(mention.target.address);
        link.through = std::move(mention.target.through);
        link.position = utf16_length(std::string_view(formula).substr(0, mention.offset)) + 1;
        link.length = utf16_length(link.text);
        link.formula = formula;
        links.push_back(std::move(link));
    }
    return links;
}

}  // namespace kestrune::brxllib
