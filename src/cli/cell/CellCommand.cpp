#include "cli/cell/CellCommand.h"

#include <fmt/format.h>

#include <cstdio>

#include "cli/Failure.h"
#include "cli/OpenWorkbook.h"
#include "cli/cell/CellFacts.h"
#include "cli/run/Select.h"

namespace kestrune::cli {
namespace {

using nlohmann::ordered_json;

// More cells than this are a slip: every fact of each is asked for.
constexpr double most_cells = 100'000;

// One fact a line: "Model!$C$7 Font.Bold true".
void print_flat(const std::string& prefix, const ordered_json& facts) {
    for (const auto& [name, fact] : facts.items()) {
        const std::string path = fmt::format("{}{}{}", prefix, prefix.ends_with(' ') ? "" : ".", name);
        if (fact.is_structured() && !fact.empty()) {
            print_flat(path, fact);
        } else {
            fmt::print("{} {}\n", path, fact.is_string() ? fact.get<std::string>() : fact.dump());
        }
    }
}

// Prints cells as they are read, so that the memory for many does not grow.
class Printer {
  public:
    explicit Printer(bool json) : json_(json) {
        if (json_) fmt::print("[");
    }
    void print(const excel::Range& cell) {
        ordered_json facts = cell_facts(cell);
        if (json_) {
            fmt::print("{}\n{}", first_ ? "" : ",", facts.dump(-1, ' ', false, ordered_json::error_handler_t::replace));
        } else {
            const auto address = facts["Address"].get<std::string>();
            facts.erase("Address");
            print_flat(address + " ", facts);
        }
        first_ = false;
    }
    void finish() const {
        if (json_) fmt::print("\n]\n");
    }

  private:
    bool json_;
    bool first_ = true;
};

}  // namespace

void describe_cells(const std::string& workbook, const std::vector<std::string>& references, bool json) {
    OpenWorkbook book(workbook);
    std::vector<excel::Range> ranges;
    double cells = 0;
    for (const std::string& reference : references) {
        ranges.push_back(find_cells(book, reference.starts_with('@') ? reference.substr(1) : reference));
        cells += ranges.back().CountLarge();
    }
    if (cells > most_cells) {
        throw Failure(fmt::format("{}: {:.0f} cells are more than the {:.0f} that can be described at once", workbook,
                                  cells, most_cells));
    }
    Printer printer(json);
    for (const excel::Range& range : ranges) {
        const excel::Areas areas = range.Areas();
        const std::int32_t area_count = areas.Count();
        for (std::int32_t i = 1; i <= area_count; ++i) {
            const excel::Range area = areas.Item(i);
            const std::int32_t rows = area.Rows().Count();
            const std::int32_t columns = area.Columns().Count();
            for (std::int32_t row = 1; row <= rows; ++row) {
                for (std::int32_t column = 1; column <= columns; ++column) printer.print(area.Cells(row, column));
            }
        }
    }
    printer.finish();
}

}  // namespace kestrune::cli
