#include "cli/trace/LinkTree.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <unordered_map>
#include <utility>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "brxllib/DependentIndex.h"
#include "brxllib/FormulaScan.h"
#include "excel/Constants.h"
#include "excel/Worksheet.h"
#include "formula/A1.h"

namespace kestrune::cli {
namespace {

using brxllib::Link;

bool has_formula(const excel::Range& cell) {
    const automation::Value answer = cell.HasFormula();
    return answer.is(automation::Value::Kind::Boolean) && automation::to_boolean(answer);
}

std::string key_of(const Link& link) { return "[" + link.workbook + "]" + link.sheet + "!" + link.address; }

bool is_cell(const Link& link) { return link.address.find(':') == std::string::npos; }

struct Node {
    TreeLine line;
    std::size_t parent = 0;             // the root's is itself
    std::vector<std::size_t> children;  // in the order of the formula, or of the sheets
};

// Grows level by level, so that each place is followed up where it is nearest.
class Tree {
  public:
    Tree(const excel::Application& application, Towards towards, std::int32_t depth)
        : application_(application), towards_(towards), depth_(depth) {
        const excel::Workbooks books = application.Workbooks();
        const std::int32_t count = books.Count();
        for (std::int32_t i = 1; i <= count; ++i) open_.push_back(books.Item(i).Name());
    }

    void grow(const excel::Range& cell) {
        const excel::Worksheet sheet = cell.Worksheet();
        Link link;
        link.workbook = sheet.Parent().Name();
        link.folder = sheet.Parent().Path();
        link.sheet = sheet.Name();
        link.address = cell.Address();
        add(0, 0, std::move(link));
        for (std::size_t i = 0; i < nodes_.size(); ++i) follow(i);
    }

    [[nodiscard]] std::vector<TreeLine> lines() && {
        std::vector<TreeLine> lines;
        std::vector<std::size_t> waiting{0};
        while (!waiting.empty()) {
            Node& node = nodes_[waiting.back()];
            waiting.pop_back();
            waiting.insert(waiting.end(), node.children.rbegin(), node.children.rend());
            lines.push_back(std::move(node.line));
        }
        return lines;
    }

  private:
    void add(std::size_t parent, std::int32_t level, Link link) {
        Node node;
        node.parent = parent;
        node.line.level = level;
        node.line.open = std::ranges::any_of(
            open_, [&](const std::string& name) { return automation::same_text(name, link.workbook); });
        node.line.link = std::move(link);
        node.line.formula = formula_of(node.line, level);
        if (!nodes_.empty()) nodes_[parent].children.push_back(nodes_.size());
        nodes_.push_back(std::move(node));
    }

    [[nodiscard]] std::string formula_of(const TreeLine& line, std::int32_t level) {
        if (level > 0 && (towards_ == Towards::dependents || line.link.text.empty())) return line.link.formula;
        if (!is_cell(line.link)) return {};
        const excel::Range cell = range_of(line);
        return cell && has_formula(cell) ? automation::to_text(cell.Formula()) : std::string();
    }

    void follow(std::size_t index) {
        TreeLine& line = nodes_[index].line;
        const auto [first, is_new] = followed_.try_emplace(key_of(line.link), index);
        if (!is_new) {
            line.circular = leads_to_itself(index);
            line.repeated = !line.circular && !nodes_[first->second].children.empty();
            return;
        }
        if (depth_ > 0 && line.level >= depth_) return;
        const std::int32_t level = line.level + 1;
        std::set<std::tuple<std::string, std::string>> seen;  // a formula may name a cell many times
        for (Link& link : next(line)) {
            if (seen.emplace(key_of(link), link.through).second) add(index, level, std::move(link));
        }
    }

    [[nodiscard]] bool leads_to_itself(std::size_t index) const {
        const std::string key = key_of(nodes_[index].line.link);
        for (std::size_t at = index; at != 0;) {
            at = nodes_[at].parent;
            if (key_of(nodes_[at].line.link) == key) return true;
        }
        return false;
    }

    // What hangs directly on a line.
    [[nodiscard]] std::vector<Link> next(const TreeLine& line) {
        if (towards_ == Towards::dependents) {
            if (!index_) index_.emplace(application_);
            formula::Reference cell;
            if (formula::match_a1(line.link.address, cell) == 0) return {};
            return index_->dependents(line.link.workbook, line.link.sheet, formula::area_of(cell).top_left());
        }
        const excel::Range range = range_of(line);
        if (!range) return {};
        return is_cell(line.link) ? brxllib::precedents(application_, range) : formula_cells(line.link, range);
    }

    // Each with its own formula, which is asked for a block at a time.
    [[nodiscard]] static std::vector<Link> formula_cells(const Link& place, const excel::Range& range) {
        std::vector<Link> cells;
        const automation::Trace nobody;  // a range without formulas is an error to Excel
        automation::ResumeNext{nobody}([&] {
            const excel::Areas areas = range.SpecialCells(excel::xlCellTypeFormulas).Areas();
            const std::int32_t count = areas.Count();
            for (std::int32_t i = 1; i <= count; ++i) {
                const excel::Range area = areas.Item(i);
                const formula::Area block = brxllib::area_of(area);
                const automation::Value formulas = area.Formula();
                for (std::int32_t k = 0; k < block.cells(); ++k) {
                    const automation::Array* texts = formulas.array();
                    Link& link = cells.emplace_back();
                    link.workbook = place.workbook;
                    link.folder = place.folder;
                    link.sheet = place.sheet;
                    const formula::Position at{block.first_row + k / block.columns(),
                                               block.first_column + k % block.columns()};
                    link.address = formula::cell_text(at, {true, true});
                    link.formula =
                        automation::to_text(texts ? texts->elements()[static_cast<std::size_t>(k)] : formulas);
                }
            }
        });
        return cells;
    }

    // Nothing for a place that is not there: of a closed workbook, or on a sheet that was deleted.
    [[nodiscard]] excel::Range range_of(const TreeLine& line) {
        excel::Range range;
        if (!line.open) return range;
        std::string address = line.link.address;
        if (address.ends_with('#')) address.pop_back();  // a spilled range hangs on its first cell
        const automation::Trace nobody;
        automation::ResumeNext{nobody}([&] {
            excel::Worksheet& sheet = sheets_[{line.link.workbook, line.link.sheet}];
            if (!sheet) sheet = application_.Workbooks().Item(line.link.workbook).Worksheets().Item(line.link.sheet);
            range = sheet.Range(address);
        });
        return range;
    }

    const excel::Application& application_;
    Towards towards_;
    std::int32_t depth_;
    std::vector<std::string> open_;
    std::map<std::pair<std::string, std::string>, excel::Worksheet> sheets_;  // by workbook and name
    std::optional<brxllib::DependentIndex> index_;
    std::vector<Node> nodes_;
    std::unordered_map<std::string, std::size_t> followed_;  // by place
};

}  // namespace

std::vector<TreeLine> link_tree(const excel::Application& application, const excel::Range& cell, Towards towards,
                                std::int32_t depth) {
    Tree tree(application, towards, depth);
    tree.grow(cell);
    return std::move(tree).lines();
}

}  // namespace kestrune::cli
