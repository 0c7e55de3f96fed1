#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "formula/FormulaCheck.h"
#include "formula/Lexer.h"
#include "formula/TokenLetters.h"
#include "fuzz/targets.h"

namespace kestrune::formula {
namespace {

// A line of intricate.txt is a notation, the tokens in the letters of TokenLetters.h, and a formula in which ␤ stands
// for a line break.
TEST(Intricate, FormulasAreUnderstoodAsExcelDoes) {
    std::ifstream file(KESTRUNE_SOURCE_DIR "/tests/formula/intricate.txt");
    int formulas = 0;
    for (std::string line; std::getline(file, line);) {
        const std::size_t first = line.find('\t');
        const std::size_t second = line.find('\t', first + 1);
        ASSERT_NE(second, std::string::npos) << line;
        const Notation notation = line.starts_with("R1C1") ? Notation::r1c1 : Notation::a1;
        std::string formula = line.substr(second + 1);
        constexpr std::string_view line_break = "␤";
        for (std::size_t at; (at = formula.find(line_break)) != std::string::npos;) {
            formula.replace(at, line_break.size(), "\n");
        }
        EXPECT_EQ(token_letters(formula, notation), line.substr(first + 1, second - first - 1)) << formula;
        const auto error = check_formula(formula, notation);
        EXPECT_FALSE(error) << formula << ": " << error->message << " at " << error->offset;
        EXPECT_NO_THROW(fuzz::formula(formula));
        ++formulas;
    }
    EXPECT_GT(formulas, 90);
}

}  // namespace
}  // namespace kestrune::formula
