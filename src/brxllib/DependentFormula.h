#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "brxllib/Mentions.h"
#include "formula/Lexer.h"

namespace kestrune::brxllib {

// The cells whose dependents are looked for.
struct SearchedCells {
    OpenBooks& books;
    OpenBook* book = nullptr;
    std::string sheet;
    formula::Area area;
    std::optional<formula::Position> spill_anchor;  // of the spilled range that they are part of
};

// The first words of a formula that mean the searched cells.
struct Use {
    std::size_t offset = 0;  // bytes
    std::size_t length = 0;
    std::string through;  // the name or table that they are
};

// Tells which formulas of one sheet mean the searched cells. Made for a million formulas: most are told by their
// addresses alone, without allocating, and what prefixes and names mean is worked out once each.
class DependentFormula {
  public:
    // The cells must outlive it.
    DependentFormula(const SearchedCells& cells, OpenBook& book, std::string sheet);

    // The formula (with its "=") of the cell at a position.
    [[nodiscard]] std::optional<Use> find(std::string_view formula, formula::Position at);

  private:
    // What a name or a structured reference is known to mean, wherever it stands or only where it stood.
    struct Verdict {
        bool depends_on_site = false;
        std::optional<std::string> through;  // nothing when it does not mean the cells
    };

    [[nodiscard]] bool could_mean(std::string_view formula) const;
    [[nodiscard]] bool means_sheet(std::string_view prefix);
    [[nodiscard]] std::optional<std::string> means_cells(std::string_view words, formula::Position at);
    [[nodiscard]] bool token_means_cells(std::string_view formula, const formula::Token& token, formula::Position at,
                                         std::string& through);
    [[nodiscard]] const Mention* any_means_cells(const std::vector<Mention>& found) const;
    [[nodiscard]] bool book_has_indirect_words();

    const SearchedCells& cells_;
    OpenBook& book_;
    std::string sheet_;
    bool own_sheet_;     // formulas reach the cells without naming a sheet
    bool words_matter_;  // a name or table may mean the cells
    std::unordered_map<std::string, bool> prefixes_;
    std::unordered_map<std::string, Verdict> words_;
};

}  // namespace kestrune::brxllib
