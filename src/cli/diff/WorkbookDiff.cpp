#include "cli/diff/WorkbookDiff.h"

#include <fmt/format.h>

#include <map>

#include "cli/diff/FormatFacts.h"
#include "cli/diff/SheetDiff.h"
#include "formula/SheetName.h"

namespace kestrune::cli {
namespace {

void compare_names(const host::Workbook& before, const host::Workbook& after, const ChangeSink& tell) {
    const auto names_of = [](const host::Workbook& book) {
        std::map<std::string, std::string> names;
        for (const host::DefinedName& name : book.names) {
            std::string full = name.name;
            if (name.sheet && *name.sheet >= 0 && static_cast<std::size_t>(*name.sheet) < book.sheets().size()) {
                full = fmt::format("{}!{}",
                                   formula::quoted_sheet(book.sheets()[static_cast<std::size_t>(*name.sheet)]->name()),
                                   name.name);
            }
            names[full] = "=" + name.refers_to;
        }
        return names;
    };
    const auto a = names_of(before), b = names_of(after);
    for (const auto& [name, refers_to] : a) {
        const auto now = b.find(name);
        if (now == b.end())
            tell({name, "Name.RefersTo", refers_to, ""});
        else if (now->second != refers_to)
            tell({name, "Name.RefersTo", refers_to, now->second});
    }
    for (const auto& [name, refers_to] : b) {
        if (!a.contains(name)) tell({name, "Name.RefersTo", "", refers_to});
    }
}

}  // namespace

std::int64_t compare(host::Workbook& before, host::Workbook& after, bool each_cell, const ChangeSink& tell) {
    FormatFactsOf before_facts(before), after_facts(after);
    compare_names(before, after, tell);
    std::int64_t cells = 0;
    for (const auto& sheet : before.sheets()) {
        host::Sheet* now = after.sheet(sheet->name());
        if (!now) {
            tell({formula::quoted_sheet(sheet->name()), "Worksheet", sheet->name(), ""});
            continue;
        }
        SheetDiff sheet_diff(*sheet, *now, before_facts, after_facts, each_cell, tell);
        sheet_diff.run();
        cells += sheet_diff.cells();
    }
    for (const auto& sheet : after.sheets()) {
        if (!before.sheet(sheet->name())) tell({formula::quoted_sheet(sheet->name()), "Worksheet", "", sheet->name()});
    }
    return cells;
}

}  // namespace kestrune::cli
