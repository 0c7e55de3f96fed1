#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <map>
#include <set>
#include <string>

#include "formula/A1.h"
#include "formula/Convert.h"
#include "formula/FormulaCheck.h"
#include "formula/Lexer.h"
#include "formula/Shift.h"
#include "fuzz/targets.h"
#include "host/xlsx/XmlParser.h"

namespace kestrune::host {
namespace {

using formula::Position;

struct Counts {
    int formulas = 0;     // of cells, names, conditions and validations, as the files write them
    int expanded = 0;     // cells that share another cell's formula
    int respelled = 0;    // read the same after R1C1 and back, in Excel's spelling of references
    int not_entered = 0;  // which nobody could type: names and conditions hold what the formula bar refuses
};

// Every formula that stands in a part as text between tags.
class FormulaScan final : public XmlParser {
  public:
    FormulaScan(const Package& package, std::string part, Counts& counts)
        : XmlParser(package, std::move(part)), counts_(counts) {}

  private:
    static std::string attribute(XmlAttributes attributes, std::string_view name) {
        for (; *attributes != nullptr; attributes += 2) {
            if (*attributes == name) return attributes[1];
        }
        return {};
    }

    void on_start(std::string_view name, XmlAttributes attributes, int) override {
        static const std::set<std::string_view> holders{"f",
                                                        "xm:f",
                                                        "c:f",
                                                        "formula",
                                                        "formula1",
                                                        "formula2",
                                                        "definedName",
                                                        "calculatedColumnFormula",
                                                        "totalsRowFormula"};
        if (name == "c") cell_ = formula::parse_cell_reference(attribute(attributes, "r")).value_or(Position{});
        inside_ = holders.contains(name);
        if (!inside_) return;
        text_.clear();
        shared_ = name == "f" && attribute(attributes, "t") == "shared" ? attribute(attributes, "si") : std::string();
        listen(true);
    }
    void on_text(std::string_view text) override {
        if (inside_) text_ += text;
    }
    void on_end(int) override {
        if (!inside_) return;
        inside_ = false;
        listen(false);
        if (!text_.empty()) {
            ++counts_.formulas;
            if (!shared_.empty()) masters_[shared_] = {cell_, text_};
            check(text_);
        } else if (const auto master = masters_.find(shared_); master != masters_.end()) {
            ++counts_.expanded;
            const auto& [at, text] = master->second;
            check(formula::shift_formula(text, cell_.row - at.row, cell_.column - at.column, formula::OffSheet::wrap));
        }
    }

    void check(const std::string& text) {
        std::string joined;
        formula::Lexer lexer(text);
        for (auto token = lexer.next(); token.kind != formula::TokenKind::end; token = lexer.next()) {
            EXPECT_NE(token.kind, formula::TokenKind::invalid) << text;
            joined += token.text(text);
        }
        EXPECT_EQ(joined, text);
        EXPECT_NO_THROW(fuzz::formula(text));
        if (formula::check_formula(text)) ++counts_.not_entered;
        const std::string back = formula::to_a1(formula::to_r1c1(text, cell_), cell_);
        if (back == text) return;
        ++counts_.respelled;
        // The other notation knows no single row or column other than R3 and C3, and no order but from the first.
        EXPECT_EQ(formula::to_a1(formula::to_r1c1(back, cell_), cell_), back) << text;
    }

    Counts& counts_;
    bool inside_ = false;
    Position cell_;
    std::string shared_;
    std::string text_;
    std::map<std::string, std::pair<Position, std::string>> masters_;
};

Counts scan(const std::filesystem::path& file) {
    const Package package = Package::open(file.string());
    Counts counts;
    for (const PartInfo& part : package.parts()) {
        if (!part.name.ends_with(".xml") || part.name.starts_with("[")) continue;
        const XmlText text = package.read_xml(part.name);
        FormulaScan(package, part.name, counts).parse(text.text);
    }
    return counts;
}

// The examples, and the workbooks of a folder that KESTRUNE_WORKBOOKS names.
TEST(FormulaRoundTrip, GivesBackTheFormulasOfFiles) {
    std::vector<std::filesystem::path> folders{KESTRUNE_SOURCE_DIR "/examples"};
    if (const char* more = std::getenv("KESTRUNE_WORKBOOKS")) folders.emplace_back(more);
    int formulas = 0;
    for (const auto& folder : folders) {
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            if (entry.path().extension() != ".xlsx") continue;
            SCOPED_TRACE(entry.path());
            const Counts counts = scan(entry.path());
            std::cout << entry.path().filename().string() << ": " << counts.formulas << " formulas, " << counts.expanded
                      << " shared, " << counts.respelled << " respelled, " << counts.not_entered << " not enterable\n";
            formulas += counts.formulas;
        }
    }
    EXPECT_GT(formulas, 100);
}

}  // namespace
}  // namespace kestrune::host
