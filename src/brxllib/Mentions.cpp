#include "brxllib/Mentions.h"

#include <algorithm>
#include <utility>

#include "automation/Text.h"
#include "formula/A1.h"
#include "formula/Lexer.h"
#include "formula/SheetName.h"

namespace kestrune::brxllib {
namespace {

using automation::same_text;
using formula::Area;
using formula::SheetPrefix;
using formula::Token;
using formula::TokenKind;

// Names may stand for formulas with names; a chain longer than this goes in a circle.
constexpr std::size_t longest_chain = 64;

std::string address_text(const Area& area) { return formula::area_text(area, {true, true}); }

bool is_number(std::string_view text) {
    return !text.empty() && text.size() < 10 && text.find_first_not_of("0123456789") == std::string_view::npos;
}

Area bounding(const Area& a, const Area& b) {
    return {std::min(a.first_row, b.first_row), std::min(a.first_column, b.first_column),
            std::max(a.last_row, b.last_row), std::max(a.last_column, b.last_column)};
}

// The workbook of a reference, whether or not it is open.
Target workbook_target(OpenBooks& books, OpenBook& own, const std::string& written) {
    Target target;
    if (written.empty() || written == "0") {
        target.book = &own;
    } else {
        const std::string path = is_number(written) ? own.link(std::stoul(written)) : written;
        const std::size_t separator = path.find_last_of("\\/");
        target.workbook = separator == std::string::npos ? path : path.substr(separator + 1);
        if (separator != std::string::npos) target.folder = path.substr(0, separator);
        // A link that the file lost keeps its number: better than nothing.
        if (target.workbook.empty()) target.workbook = "[" + written + "]";
        target.book = books.find(target.workbook);
    }
    if (target.book) {
        target.workbook = target.book->name();
        target.folder = target.book->folder();
    }
    return target;
}

// The sheets from one to the other, in the order of the tabs; none when one of them is not there.
std::vector<std::string> sheets_between(OpenBook& book, const SheetPrefix& prefix) {
    const auto first = book.sheet(prefix.first_sheet);
    const auto last = book.sheet(prefix.last_sheet);
    if (!first || !last) return {};
    const auto [low, high] = std::minmax(*first, *last);
    const auto& all = book.sheets();
    return {all.begin() + static_cast<std::ptrdiff_t>(low), all.begin() + static_cast<std::ptrdiff_t>(high) + 1};
}

class Walk {
  public:
    // scope: the sheet whose own names come before the workbook's; empty for a name that belongs to the workbook.
    Walk(OpenBooks& books, std::string_view formula, const Site& site, std::string_view scope,
         formula::Notation notation, std::size_t chain)
        : books_(books), formula_(formula), site_(site), scope_(scope), notation_(notation), chain_(chain) {}

    std::vector<Mention> run() && {
        formula::Lexer lexer(formula_, notation_);
        for (Token token = lexer.next(); token.kind != TokenKind::end; token = lexer.next()) {
            if (token.kind == TokenKind::whitespace) continue;
            token_ = token;
            const std::size_t before = found_.size();
            switch (token.kind) {
                case TokenKind::reference:
                    reference();
                    break;
                case TokenKind::name:
                    name();
                    break;
                case TokenKind::structured:
                    structured();
                    break;
                case TokenKind::postfix:
                    spill();
                    continue;  // the operand before goes on
                case TokenKind::range:
                    joins_ = std::exchange(operand_, {});
                    continue;
                default:
                    break;
            }
            operand_.reset();
            if (found_.size() == before + 1 && found_.back().target.area) operand_ = before;
            if (operand_ && joins_) join();
            joins_.reset();
        }
        return std::move(found_);
    }

  private:
    void add(Target target) { found_.push_back({token_.offset, token_.length, std::move(target)}); }

    void add_area(Target target, const Area& area) {
        target.area = area;
        target.address = address_text(area);
        add(std::move(target));
    }

    void reference() {
        const formula::Reference placed =
            notation_ == formula::Notation::a1 ? token_.reference : formula::to_positions(token_.reference, site_.at);
        const Area area = formula::area_of(placed);
        SheetPrefix prefix;
        if (token_.prefix > 0) prefix = formula::parse_sheet_prefix(token_.sheet(formula_));
        Target target = workbook_target(books_, *site_.book, prefix.book);
        if (token_.prefix == 0) {
            target.sheet = site_.sheet;
            add_area(std::move(target), area);
        } else if (!target.book) {
            target.sheet = prefix.first_sheet;
            if (prefix.last_sheet != prefix.first_sheet) target.sheet += ":" + prefix.last_sheet;
            add_area(std::move(target), area);
        } else {
            for (std::string& sheet : sheets_between(*target.book, prefix)) {
                target.sheet = std::move(sheet);
                add_area(target, area);
            }
        }
    }

    // Whose names and tables the token's prefix means, as the target's workbook and sheet.
    [[nodiscard]] Target owner() const {
        if (token_.prefix == 0) {
            Target target = workbook_target(books_, *site_.book, {});
            target.sheet = scope_;
            return target;
        }
        const SheetPrefix prefix = formula::parse_sheet_prefix(token_.sheet(formula_));
        if (prefix.book.empty() && !site_.book->sheet(prefix.first_sheet)) {
            // Book.xlsx!Rate: what looks like a sheet is a workbook, and what looks like several is its path.
            const bool path = prefix.last_sheet != prefix.first_sheet;
            return workbook_target(books_, *site_.book,
                                   path ? prefix.first_sheet + ":" + prefix.last_sheet : prefix.first_sheet);
        }
        Target target = workbook_target(books_, *site_.book, prefix.book);
        target.sheet = prefix.first_sheet;
        return target;
    }

    void name() {
        const std::string text(formula_.substr(token_.body(), token_.end() - token_.body()));
        Target target = owner();
        if (!target.book) {
            target.address = text;
            add(std::move(target));
        } else if (const DefinedName* defined = target.book->find_name(target.sheet, text)) {
            expand(*target.book, *defined, text);
        } else if (const Table* table = target.book->find_table(text)) {
            add_table(*target.book, *table, "[]");
        }
    }

    void expand(OpenBook& book, const DefinedName& defined, const std::string& text) {
        if (chain_ == longest_chain) return;
        const Site inside{&book, defined.sheet.empty() ? site_.sheet : defined.sheet, site_.at};
        for (Mention& mention :
             Walk(books_, defined.refers_to, inside, defined.sheet, formula::Notation::r1c1, chain_ + 1).run()) {
            mention.target.through = text;
            // The same cells twice in one name are one target.
            const bool known = std::ranges::any_of(found_, [&](const Mention& other) {
                return other.offset == token_.offset && other.target.workbook == mention.target.workbook &&
                       other.target.sheet == mention.target.sheet && other.target.address == mention.target.address;
            });
            if (!known) add(std::move(mention.target));
        }
    }

    void structured() {
        const std::string_view text = formula_.substr(token_.body(), token_.end() - token_.body());
        const std::size_t bracket = text.find('[');
        const Target target = owner();
        if (!target.book) {
            Target closed = target;
            closed.address = text;
            return add(std::move(closed));
        }
        const Table* table = bracket == 0 ? target.book->table_at(site_.sheet, site_.at)
                                          : target.book->find_table(text.substr(0, bracket));
        if (table) add_table(*target.book, *table, text.substr(bracket));
    }

    void add_table(OpenBook& book, const Table& table, std::string_view specifier) {
        const auto area = cells_of_structured(table, specifier, site_.at.row);
        if (!area) return;
        Target target = workbook_target(books_, book, {});
        target.sheet = table.sheet;
        target.through = table.name;
        add_area(std::move(target), *area);
    }

    void spill() {
        if (!operand_ || token_.text(formula_) != "#") return;
        Mention& mention = found_[*operand_];
        mention.target.address += '#';
        mention.length = token_.end() - mention.offset;
    }

    void join() {
        Mention& first = found_[*joins_];
        const Mention& second = found_[*operand_];
        if (first.target.workbook != second.target.workbook || !same_text(first.target.sheet, second.target.sheet))
            return;
        first.length = second.offset + second.length - first.offset;
        first.target.area = bounding(*first.target.area, *second.target.area);
        first.target.address = address_text(*first.target.area);
        operand_ = *joins_;
        found_.pop_back();
    }

    OpenBooks& books_;
    std::string_view formula_;
    const Site& site_;
    std::string_view scope_;
    formula::Notation notation_;
    std::size_t chain_;
    Token token_;
    std::vector<Mention> found_;
    std::optional<std::size_t> operand_;  // the mention that the operand just read made, if it is one area
    std::optional<std::size_t> joins_;    // the operand in front of a ":"
};

}  // namespace

std::vector<Mention> mentions(OpenBooks& books, std::string_view formula, const Site& site,
                              formula::Notation notation) {
    return Walk(books, formula, site, site.sheet, notation, 0).run();
}

}  // namespace kestrune::brxllib
