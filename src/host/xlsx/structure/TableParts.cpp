#include <fmt/format.h>

#include <algorithm>
#include <set>

#include "formula/A1.h"
#include "formula/Characters.h"
#include "formula/Lexer.h"
#include "host/model/ModelError.h"
#include "host/xlsx/AreaText.h"
#include "host/xlsx/package/XmlTree.h"
#include "host/xlsx/structure/Moving.h"
#include "host/xlsx/structure/Places.h"

namespace kestrune::host {
namespace {

using formula::Area;
using formula::TokenKind;

pugi::xml_node child_named(pugi::xml_node node, std::string_view name) {
    for (const pugi::xml_node child : node.children())
        if (local_name(child.name()) == name) return child;
    return {};
}

std::vector<pugi::xml_node> columns_of(pugi::xml_node table) {
    std::vector<pugi::xml_node> columns;
    for (const pugi::xml_node child : child_named(table, "tableColumns").children())
        if (local_name(child.name()) == "tableColumn") columns.push_back(child);
    return columns;
}

// Whether a formula outside the cells that go names the table, or one of its columns.
bool used_outside(Workbook& book, const formula::Edit& edit, std::string_view table, std::string_view column) {
    const std::string in_brackets = fmt::format("[{}]", column);
    const auto names_it = [&](std::string_view text) {
        formula::Lexer lexer(text);
        for (auto token = lexer.next(); token.kind != TokenKind::end; token = lexer.next()) {
            const std::string_view word = token.text(text).substr(token.prefix);
            if (token.kind == TokenKind::name && column.empty() && formula::equal_ignoring_case(word, table))
                return true;
            if (token.kind != TokenKind::structured) continue;
            const std::string_view owner = word.substr(0, word.find('['));
            if (!owner.empty() && !formula::equal_ignoring_case(owner, table)) continue;
            if (column.empty()) {
                if (!owner.empty()) return true;
            } else if (word.find(in_brackets) != std::string_view::npos) {
                return true;
            }
        }
        return false;
    };
    for (const auto& sheet : book.sheets()) {
        const bool own = formula::means_edited_sheet({}, sheet->name(), edit);
        std::int32_t c = 0;
        for (const auto& cells : sheet->cell_columns()) {
            ++c;
            if (!cells) continue;
            for (const Cell& cell : cells->cells) {
                if (cell.formula == 0 || (own && !formula::adjust_position({cell.row, c}, edit))) continue;
                if (names_it(sheet->formulas()[cell.formula - 1].text)) return true;
            }
        }
    }
    return std::ranges::any_of(book.names, [&](const DefinedName& name) { return names_it(name.refers_to); });
}

class TableMover {
  public:
    TableMover(Moving& moving, const MovingPart& part, pugi::xml_node table, Places& places)
        : moving_(moving), part_(part), edit_(moving.edit), table_(table), places_(places) {
        name_ = table.attribute("displayName").value();
    }

    void run(const Area& area) {
        const auto left = formula::adjust_area(area, edit_);
        if (!left) return remove_all();
        if (edit_.of_rows())
            change_rows(area, *left);
        else
            change_columns(area, *left);
        places_.set(table_.attribute("ref"), formula::area_text(*left));
    }

  private:
    [[nodiscard]] int headers() const { return table_.attribute("headerRowCount").as_int(1); }
    [[nodiscard]] int totals() const { return table_.attribute("totalsRowCount").as_int(0); }
    [[nodiscard]] bool row_stays(std::int32_t row) const {
        return formula::adjust_position({row, 1}, edit_).has_value();
    }

    void remove_all() {
        if (used_outside(moving_.book, edit_, name_, {}))
            throw ModelError(fmt::format("formulas use the table '{}', which would be gone", name_));
        moving_.later.emplace_back([sheet_part = sheet_part(), name = part_.name](Package& package) {
            for (const Relationship& relationship : package.relationships(sheet_part))
                if (relationship.target == name) package.remove_relationship(sheet_part, relationship.id);
            package.remove(name);
        });
    }

    [[nodiscard]] std::string sheet_part() const {
        for (const PartInfo& info : moving_.package.parts()) {
            if (!moving_.package.content_type(info.name).ends_with("worksheet+xml")) continue;
            for (const Relationship& relationship : moving_.package.relationships(info.name))
                if (!relationship.external && relationship.target == part_.name) return info.name;
        }
        return {};
    }

    void change_rows(const Area& area, const Area& left) {
        if (headers() > 0 && !row_stays(area.first_row))
            throw ModelError(fmt::format("the headers of the table '{}' cannot go without the rest of it", name_));
        const bool loses_totals = totals() > 0 && !row_stays(area.last_row);
        if (left.rows() - headers() - (loses_totals ? 0 : totals()) < 1)
            throw ModelError(fmt::format("the table '{}' would be left without a row of data", name_));
        if (loses_totals) {
            table_.remove_attribute("totalsRowCount");
            table_.remove_attribute("totalsRowShown");
            places_.set(table_.attribute("ref"), std::string());
        }
        const bool grows = edit_.inserts() && area.first_row < edit_.first && edit_.first <= area.last_row;
        if (grows && edit_.first >= area.first_row + headers()) fill_new_rows(area);
    }

    // New rows of a table have the formulas of its calculated columns.
    void fill_new_rows(const Area& area) {
        std::int32_t column = area.first_column;
        for (const pugi::xml_node each : columns_of(table_)) {
            const std::string text = child_named(each, "calculatedColumnFormula").text().get();
            const std::int32_t at = column++;
            if (text.empty() || refers_to_cells(text)) continue;
            moving_.later.emplace_back([&book = moving_.book, sheet = *part_.sheet, edit = edit_, at, text](Package&) {
                for (std::int32_t row = edit.first; row < edit.first + edit.count; ++row)
                    book.sheets()[sheet]->set_formula({row, at}, text);
            });
        }
    }

    static bool refers_to_cells(std::string_view text) {
        formula::Lexer lexer(text);
        for (auto token = lexer.next(); token.kind != TokenKind::end; token = lexer.next())
            if (token.kind == TokenKind::reference) return true;
        return false;
    }

    void change_columns(const Area& area, const Area& left) {
        if (left.columns() == area.columns()) return;
        for (const Relationship& relationship : moving_.package.relationships(part_.name)) {
            if (relationship.is("queryTable"))
                throw ModelError(fmt::format("the columns of the table '{}' are those of its query", name_));
        }
        if (edit_.inserts())
            insert_columns(area);
        else
            remove_columns(area);
        pugi::xml_node list = child_named(table_, "tableColumns");
        places_.set(list.attribute("count"), std::to_string(columns_of(table_).size()));
    }

    void remove_columns(const Area& area) {
        const auto columns = columns_of(table_);
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const std::int32_t column = area.first_column + static_cast<std::int32_t>(i);
            if (formula::adjust_position({1, column}, edit_)) continue;
            const std::string name = columns[i].attribute("name").value();
            if (used_outside(moving_.book, edit_, name_, name)) {
                throw ModelError(
                    fmt::format("formulas use the column '{}' of the table '{}', which would be gone", name, name_));
            }
            columns[i].parent().remove_child(columns[i]);
        }
    }

    void insert_columns(const Area& area) {
        const auto columns = columns_of(table_);
        std::set<std::string> names;
        int highest = 0;
        for (const pugi::xml_node column : columns) {
            names.insert(column.attribute("name").value());
            highest = std::max(highest, column.attribute("id").as_int());
        }
        pugi::xml_node before = columns[static_cast<std::size_t>(edit_.first - area.first_column)];
        int number = 1;
        for (std::int32_t i = 0; i < edit_.count; ++i) {
            while (names.contains(fmt::format("Column{}", number))) ++number;
            const std::string name = fmt::format("Column{}", number);
            names.insert(name);
            pugi::xml_node fresh = before.parent().insert_child_before(before.name(), before);
            fresh.append_attribute("id").set_value(++highest);
            fresh.append_attribute("name").set_value(name.c_str());
            if (headers() == 0) continue;
            moving_.later.emplace_back(
                [&book = moving_.book, sheet = *part_.sheet, at = Position{area.first_row, edit_.first + i},
                 name](Package&) { book.sheets()[sheet]->set_content(at, CellContent::of(name)); });
        }
    }

    Moving& moving_;
    const MovingPart& part_;
    const formula::Edit& edit_;
    pugi::xml_node table_;
    Places& places_;
    std::string name_;
};

}  // namespace

void move_table(Moving& moving, const MovingPart& part) {
    auto tree = tree_of(moving, part);
    if (!tree) return;
    Places places(moving.edit, sheet_of(moving, part));
    const pugi::xml_node table = tree->document_element();
    const auto area = parse_area(table.attribute("ref").value());
    if (on_edited_sheet(moving, part) && area) {
        TableMover(moving, part, table, places).run(*area);
        if (!formula::adjust_area(*area, moving.edit)) return;
    }
    places.move(*tree);
    // A table is filtered from its headers to its last row of data, wherever rows came in.
    const auto now = parse_area(table.attribute("ref").value());
    const pugi::xml_node filter = child_named(table, "autoFilter");
    if (now && filter) {
        Area filtered = *now;
        filtered.last_row -= table.attribute("totalsRowCount").as_int(0);
        places.set(filter.attribute("ref"), formula::area_text(filtered));
    }
    if (places.changed()) replace(moving, part, *tree);
}

}  // namespace kestrune::host
