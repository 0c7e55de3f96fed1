#include "cli/diff/DiffCommand.h"

#include <fmt/format.h>

#include <cstdio>
#include <map>
#include <nlohmann/json.hpp>

#include "cli/diff/Change.h"
#include "cli/diff/FormatFacts.h"
#include "cli/diff/SheetDiff.h"
#include "formula/SheetName.h"
#include "host/xlsx/WorkbookFile.h"

namespace kestrune::cli {
namespace {

std::string quoted(const std::string& text) { return text.empty() ? "(none)" : text; }

// Changes as lines or as a JSON array, written as they are found.
class ChangeWriter {
  public:
    explicit ChangeWriter(bool json) : json_(json) {
        if (json_) fmt::print("[");
    }
    void write(const Change& change) {
        if (json_) {
            const nlohmann::ordered_json object{{"place", change.place},
                                                {"property", change.property},
                                                {"before", change.before},
                                                {"after", change.after}};
            fmt::print("{}\n{}", changes_ ? "," : "",
                       object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace));
        } else {
            fmt::print("{} {}: {} -> {}\n", change.place, change.property, quoted(change.before), quoted(change.after));
        }
        ++changes_;
    }
    void finish() const {
        if (json_) fmt::print("{}]\n", changes_ ? "\n" : "");
    }
    [[nodiscard]] std::int64_t changes() const { return changes_; }

  private:
    bool json_;
    std::int64_t changes_ = 0;
};

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

void diff(const DiffOptions& options) {
    const auto before_file = host::WorkbookFile::open(options.before);
    const auto after_file = host::WorkbookFile::open(options.after);
    host::Workbook& before = before_file->workbook();
    host::Workbook& after = after_file->workbook();
    FormatFactsOf before_facts(before), after_facts(after);
    ChangeWriter writer(options.json);
    const ChangeSink tell = [&](const Change& change) { writer.write(change); };

    compare_names(before, after, tell);
    std::int64_t cells = 0;
    for (const auto& sheet : before.sheets()) {
        host::Sheet* now = after.sheet(sheet->name());
        if (!now) {
            tell({formula::quoted_sheet(sheet->name()), "Worksheet", sheet->name(), ""});
            continue;
        }
        SheetDiff sheet_diff(*sheet, *now, before_facts, after_facts, options.json, tell);
        sheet_diff.run();
        cells += sheet_diff.cells();
    }
    for (const auto& sheet : after.sheets()) {
        if (!before.sheet(sheet->name())) tell({formula::quoted_sheet(sheet->name()), "Worksheet", "", sheet->name()});
    }
    writer.finish();
    fmt::print(stderr, "{} cell{} differ{}\n", cells, cells == 1 ? "" : "s", cells == 1 ? "s" : "");
}

}  // namespace kestrune::cli
