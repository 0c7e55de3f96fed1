#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "brxllib/OpenBook.h"
#include "formula/Reference.h"

namespace kestrune::brxllib {

// Where a formula stands.
struct Site {
    OpenBook* book = nullptr;
    std::string sheet;
    formula::Position at;
};

// Cells that a formula speaks of.
struct Target {
    OpenBook* book = nullptr;  // null when their workbook is not open
    std::string workbook;      // the file's name
    std::string folder;        // of the file; empty when it was never saved, or the formula does not tell
    std::string sheet;         // "Jan:Mar" for several sheets of a closed workbook; empty for a name of one
    std::string address;       // "$A$1:$B$2", "$A$1#"; a name of a closed workbook
    std::optional<formula::Area> area;
    std::string through;  // the defined name or the table that stands for them, where the formula has no address
};

// A target, and where the formula's text speaks of it. A name or several sheets at once give several mentions.
struct Mention {
    std::size_t offset = 0;  // bytes
    std::size_t length = 0;
    Target target;
};

// The cells that a formula speaks of, in the order of its text: by address, through names (and the names in those),
// through tables, on other sheets, through several sheets, in other workbooks, open or closed. Two references with ":"
// between them are one. Lost references, and names that stand for no cells, are none.
[[nodiscard]] std::vector<Mention> mentions(OpenBooks& books, std::string_view formula, const Site& site,
                                            formula::Notation notation = formula::Notation::a1);

}  // namespace kestrune::brxllib
