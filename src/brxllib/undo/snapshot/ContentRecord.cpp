#include "brxllib/undo/snapshot/ContentRecord.h"

#include <algorithm>
#include <limits>

#include "brxllib/autocolor/ClassReader.h"
#include "brxllib/autocolor/Parting.h"
#include "brxllib/autocolor/Rectangles.h"
#include "formula/A1.h"
#include "formula/AreaCut.h"

namespace kestrune::brxllib::undo {
namespace {

using automation::Value;
using formula::Area;
using Kind = ContentBlock::Kind;

constexpr std::int32_t cells_at_once = 1 << 18;  // as much as an array carries with ease

constexpr std::size_t longest_in_array = 8'000;  // characters; longer texts go in one by one

// A text that would be taken for something else, or for the start of a formula, whatever follows.
bool needs_text_format(Kind kind, std::string_view text) {
    return kind == Kind::Text && !text.empty() &&
           std::string_view("=+-@'").find(text.front()) != std::string_view::npos;
}

}  // namespace

ContentRecord ContentRecord::take(const excel::Worksheet& sheet, const std::vector<Piece>& pieces, Budget& budget) {
    ContentRecord record;
    for (const Piece& piece : pieces) {
        if (!piece.used) continue;
        record.find_arrays(sheet, piece.cells, budget);
        const std::int32_t height = std::max(1, cells_at_once / piece.cells.columns());
        for (Area block = piece.cells; block.first_row <= piece.cells.last_row; block.first_row += height) {
            block.last_row = std::min(piece.cells.last_row, block.first_row + height - 1);
            record.read_block(sheet, block, budget);
        }
    }
    return record;
}

bool ContentRecord::any_beyond(const excel::Worksheet& sheet, const std::vector<Piece>& pieces, const Area& used) {
    std::vector<Piece> filled;
    for (const Piece& piece : pieces) {
        const auto common = piece.used ? std::nullopt : piece.cells.intersection(used);
        if (common) filled.push_back({*common, true});
    }
    Budget unlimited(std::numeric_limits<std::size_t>::max());
    const ContentRecord record = take(sheet, filled, unlimited);
    return std::ranges::any_of(record.blocks_, &ContentBlock::any);
}

void ContentRecord::read_block(const excel::Worksheet& sheet, const Area& area, Budget& budget) {
    const excel::Range range = sheet.Range(formula::area_text(area));
    ContentBlock block = ContentBlock::read(range, area, texts_, budget);
    for (const ArrayFormula& array : arrays_) block.cover(array.area, Kind::Elsewhere);
    for (const Area& cells : spilled_) block.cover(cells, Kind::Spilled);
    if (block.holds_texts()) {
        visit_uniform_parts(
            area, [&](const Area& at) { return sheet.Range(formula::area_text(at)).PrefixCharacter(); },
            [&](const Area& at, const Value& prefix) {
                if (automation::to_text(prefix) == "'") block.mark_quoted(at);
            });
    }
    blocks_.push_back(std::move(block));
}

void ContentRecord::find_arrays(const excel::Worksheet& sheet, const Area& area, Budget& budget) {
    visit_uniform_parts(
        area, [&](const Area& at) { return sheet.Range(formula::area_text(at)).HasArray(); },
        [&](const Area& at, const Value& has_array) {
            if (!automation::to_boolean(has_array)) return;
            std::vector<Area> left{at};
            while (!left.empty()) {
                const Area part = left.back();
                left.pop_back();
                const excel::Range first = sheet.Range(formula::cell_text(part.top_left()));
                ArrayFormula array;
                try {
                    array.area = areas_of(first.CurrentArray()).at(0);
                } catch (const automation::AutomationError&) {
                    // The formula that spills over this cell lies elsewhere.
                    spilled_.push_back(Area::cell(part.top_left()));
                    for (const Area& rest : formula::area_without(part, spilled_.back())) left.push_back(rest);
                    continue;
                }
                for (const Area& rest : formula::area_without(part, array.area)) left.push_back(rest);
                if (std::ranges::find(arrays_, array.area, &ArrayFormula::area) != arrays_.end()) continue;
                array.formula = automation::to_text(sheet.Range(formula::cell_text(array.area.top_left())).Formula());
                budget.spend(sizeof(ArrayFormula) + array.formula.size());
                arrays_.push_back(std::move(array));
            }
        });
    std::ranges::sort(arrays_, {}, [](const ArrayFormula& array) { return array.area.top_left(); });
}

bool ContentRecord::holds(const ArrayFormula& array) const {
    return std::ranges::find(arrays_, array) != arrays_.end();
}

void ContentRecord::restore(const std::vector<Piece>& pieces, Restoring& restoring) const {
    const excel::Worksheet& sheet = restoring.sheet();
    const Area used = used_area(sheet);
    for (const Piece& piece : pieces) {
        const auto filled = piece.used ? std::nullopt : piece.cells.intersection(used);
        if (!filled) continue;
        // An array may reach in from the cells that are on record.
        Budget unlimited(std::numeric_limits<std::size_t>::max());
        clear_other_arrays(take(sheet, {{*filled, true}}, unlimited), restoring);
        const std::string address = formula::area_text(*filled);
        restoring(address, "Value", [&] { sheet.Range(address).Value2(Value()); });
    }
    const auto present = [&] {
        Budget unlimited(std::numeric_limits<std::size_t>::max());
        return take(sheet, pieces, unlimited);
    };
    ContentRecord now = present();
    if (now.arrays_ != arrays_) {
        clear_other_arrays(now, restoring);
        now = present();
    }
    bool entered = enter(now, Way::Plain, restoring);
    if (entered) now = present();
    enter_arrays(now, restoring);
    for (const Way way : {Way::Formatted, Way::Quoted}) {
        if (!entered) return;
        entered = enter(now, way, restoring);
        if (entered) now = present();
    }
    tell_differences(now, restoring);
}

void ContentRecord::clear_other_arrays(const ContentRecord& now, Restoring& restoring) const {
    for (const ArrayFormula& array : now.arrays_) {
        if (holds(array)) continue;
        const std::string address = formula::area_text(array.area);
        restoring(address, "FormulaArray", [&] { restoring.sheet().Range(address).Value2(Value()); });
    }
}

void ContentRecord::enter_arrays(const ContentRecord& now, Restoring& restoring) const {
    for (const ArrayFormula& array : arrays_) {
        if (now.holds(array)) continue;
        const std::string address = formula::area_text(array.area);
        restoring(address, "FormulaArray", [&] { restoring.sheet().Range(address).FormulaArray(array.formula); });
    }
}

bool ContentRecord::differs(std::size_t block, std::size_t place, const ContentRecord& now, bool quotes_count) const {
    const ContentBlock& was = blocks_[block];
    const ContentBlock& is = now.blocks_[block];
    const Kind kind = was.kind(place);
    if (kind == Kind::Elsewhere || was.same(place, texts_, is, place, now.texts_)) return false;
    if (quotes_count || kind != Kind::Text || is.kind(place) != Kind::QuotedText) return true;
    return was.text(place, texts_) != is.text(place, now.texts_);
}

bool ContentRecord::enter(const ContentRecord& now, Way way, Restoring& restoring) const {
    enum Mark : std::uint8_t { same, to_enter, long_text, to_format_as_text, to_format_as_general };
    bool any = false;
    bool taken = true;
    for (std::size_t b = 0; b < blocks_.size(); ++b) {
        const ContentBlock& block = blocks_[b];
        const Area& area = block.area();
        std::vector<std::uint8_t> marks;
        for (std::size_t i = 0; i < static_cast<std::size_t>(area.cells()); ++i) {
            if (!differs(b, i, now, true)) continue;
            any = true;
            if (marks.empty()) marks.assign(static_cast<std::size_t>(area.cells()), same);
            const Kind kind = block.kind(i);
            const bool has_text = kind == Kind::Text || kind == Kind::QuotedText || kind == Kind::Formula;
            const std::string_view text = has_text ? block.text(i, texts_) : std::string_view();
            if (way == Way::Plain && needs_text_format(kind, text)) continue;
            marks[i] = text.size() > longest_in_array ? long_text
                       : way != Way::Formatted        ? to_enter
                       : kind == Kind::Text           ? to_format_as_text
                                                      : to_format_as_general;
        }
        if (marks.empty()) continue;
        const auto entry_of = [&](std::size_t place) {
            Value entry = block.entry(place, texts_);
            if (way == Way::Quoted && block.kind(place) == Kind::Text) {
                entry = "'" + std::string(block.text(place, texts_));
            }
            return entry;
        };
        const auto write = [&](const Area& cells, std::uint8_t mark) {
            Value entries = entry_of(block.place_of(cells.top_left()));
            if (!cells.single_cell()) {
                automation::Array array({1, cells.rows()}, {1, cells.columns()});
                auto element = array.elements().begin();
                for (std::int32_t row = cells.first_row; row <= cells.last_row; ++row) {
                    for (std::int32_t column = cells.first_column; column <= cells.last_column; ++column) {
                        *element++ = entry_of(block.place_of({row, column}));
                    }
                }
                entries = std::move(array);
            }
            const std::string address = formula::area_text(cells);
            taken &= restoring(address, "Formula", [&] {
                const excel::Range range = restoring.sheet().Range(address);
                if (mark == to_format_as_text) range.NumberFormat("@");
                if (mark == to_format_as_general) range.NumberFormat("General");
                range.FormulaR1C1(std::move(entries));
            });
        };
        for (const std::uint8_t mark : {to_enter, to_format_as_text, to_format_as_general}) {
            for (const Area& cells : rectangles(area, marks, mark)) write(cells, mark);
        }
        for (std::size_t i = 0; i < marks.size(); ++i) {
            const auto width = static_cast<std::size_t>(area.columns());
            if (marks[i] == long_text) {
                write(Area::cell({area.first_row + static_cast<std::int32_t>(i / width),
                                  area.first_column + static_cast<std::int32_t>(i % width)}),
                      way == Way::Formatted && block.kind(i) == Kind::Text ? to_format_as_text : to_enter);
            }
        }
    }
    return any && taken;
}

void ContentRecord::tell_differences(const ContentRecord& now, Restoring& restoring) const {
    for (std::size_t b = 0; b < blocks_.size(); ++b) {
        const Area& area = blocks_[b].area();
        std::vector<std::uint8_t> differing(static_cast<std::size_t>(area.cells()));
        for (std::size_t i = 0; i < differing.size(); ++i) differing[i] = differs(b, i, now, false) ? 1 : 0;
        for (const Area& cells : rectangles(area, differing, 1)) {
            restoring.refuse(formula::area_text(cells), "Formula", "the cells do not take what they held");
        }
    }
}

std::size_t ContentRecord::bytes() const {
    std::size_t sum = sizeof(ContentRecord) + texts_.bytes();
    for (const ContentBlock& block : blocks_) sum += block.bytes();
    for (const ArrayFormula& array : arrays_) sum += sizeof(ArrayFormula) + array.formula.capacity();
    return sum;
}

bool ContentRecord::operator==(const ContentRecord& other) const {
    if (arrays_ != other.arrays_ || blocks_.size() != other.blocks_.size()) return false;
    for (std::size_t b = 0; b < blocks_.size(); ++b) {
        if (blocks_[b].area() != other.blocks_[b].area()) return false;
        for (std::size_t i = 0; i < static_cast<std::size_t>(blocks_[b].area().cells()); ++i) {
            if (!blocks_[b].same(i, texts_, other.blocks_[b], i, other.texts_)) return false;
        }
    }
    return true;
}

}  // namespace kestrune::brxllib::undo
