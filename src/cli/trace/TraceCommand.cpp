#include "cli/trace/TraceCommand.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "automation/Text.h"
#include "cli/Failure.h"
#include "cli/OpenWorkbook.h"
#include "cli/run/Select.h"
#include "cli/trace/LinkTree.h"
#include "formula/SheetName.h"

namespace kestrune::cli {
namespace {

using nlohmann::ordered_json;

// "Inputs!B2:C5"; with the workbook where it is another one: "'[Rates.xlsx]FX'!A1", or "Rates.xlsx!Euro" for a name.
std::string place_text(const brxllib::Link& link, const std::string& workbook) {
    std::string address = link.address;
    std::erase(address, '$');
    if (automation::same_text(link.workbook, workbook)) {
        return fmt::format("{}!{}", formula::quoted_sheet(link.sheet), address);
    }
    const std::string sheet = link.sheet.empty() ? link.workbook : fmt::format("[{}]{}", link.workbook, link.sheet);
    return fmt::format("{}!{}", formula::quoted_sheet(sheet), address);
}

void print_text(const std::vector<TreeLine>& tree, Towards towards) {
    for (const TreeLine& line : tree) {
        std::string text(static_cast<std::size_t>(line.level) * 2, ' ');
        text += place_text(line.link, tree.front().link.workbook);
        const std::string& through = line.link.through;
        if (!through.empty() && towards == Towards::precedents) text += fmt::format(" ({})", through);
        if (!line.formula.empty()) text += ": " + line.formula;
        if (!through.empty() && towards == Towards::dependents) text += fmt::format(" [through {}]", through);
        if (!line.open) text += " [not open]";
        if (line.circular) text += " [circular]";
        if (line.repeated) text += " [followed elsewhere]";
        std::ranges::replace_if(
            text, [](char c) { return c == '\n' || c == '\r'; }, ' ');
        fmt::print("{}\n", text);
    }
}

void print_json(const std::vector<TreeLine>& tree) {
    const char* before = "[\n";
    for (const TreeLine& line : tree) {
        const ordered_json object{{"level", line.level},
                                  {"workbook", line.link.workbook},
                                  {"folder", line.link.folder},
                                  {"sheet", line.link.sheet},
                                  {"address", line.link.address},
                                  {"formula", line.formula.empty() ? ordered_json() : ordered_json(line.formula)},
                                  {"text", line.link.text},
                                  {"position", line.link.text.empty() ? 0 : line.link.position},
                                  {"length", line.link.length},
                                  {"through", line.link.through},
                                  {"open", line.open},
                                  {"circular", line.circular},
                                  {"repeated", line.repeated}};
        fmt::print("{}{}", before, object.dump(-1, ' ', false, ordered_json::error_handler_t::replace));
        before = ",\n";
    }
    fmt::print("\n]\n");
}

}  // namespace

void trace(const TraceOptions& options) {
    OpenWorkbook book(options.workbook);
    const excel::Range cell = find_cells(book, options.cell.starts_with('@') ? options.cell.substr(1) : options.cell);
    if (const double cells = cell.CountLarge(); cells > 1) {
        throw Failure(fmt::format("{}: '{}' stands for {:.0f} cells; one can be traced at a time", options.workbook,
                                  options.cell, cells));
    }
    const Towards towards = options.dependents ? Towards::dependents : Towards::precedents;
    const std::vector<TreeLine> tree = link_tree(book.application(), cell, towards, options.depth);
    options.json ? print_json(tree) : print_text(tree, towards);
    const std::size_t places = tree.size() - 1;
    fmt::print(stderr, "{} {}{}\n", places, towards == Towards::dependents ? "dependent" : "precedent",
               places == 1 ? "" : "s");
}

}  // namespace kestrune::cli
