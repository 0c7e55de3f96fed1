#include "brxllib/undo/snapshot/ContentBlock.h"

#include <algorithm>

#include "brxllib/BlockAnswer.h"

namespace kestrune::brxllib::undo {

using automation::Value;
using formula::Area;

std::uint32_t TextPool::intern(const std::string& text, Budget& budget) {
    const auto [known, fresh] = places_.try_emplace(text, static_cast<std::uint32_t>(texts_.size()));
    if (fresh) {
        constexpr std::size_t node = sizeof(std::string) + 6 * sizeof(void*);
        budget.spend(node + text.size());
        texts_.push_back(&known->first);
    }
    return known->second;
}

std::size_t TextPool::bytes() const {
    std::size_t sum = texts_.capacity() * sizeof(const std::string*) + places_.bucket_count() * sizeof(void*);
    for (const std::string* text : texts_) sum += sizeof(std::string) + 3 * sizeof(void*) + text->capacity();
    return sum;
}

ContentBlock ContentBlock::read(const excel::Range& range, const Area& area, TextPool& texts, Budget& budget) {
    ContentBlock block;
    block.area_ = area;
    const BlockAnswer formulas(range.FormulaR1C1(), area);
    const BlockAnswer values(range.Value2(), area);
    FormulaTest has_formula(range, area);
    const auto cells = static_cast<std::size_t>(area.cells());
    for (std::size_t i = 0; i < cells; ++i) {
        const auto* spelt = formulas[i].if_is<std::string>();
        const bool like_formula = spelt && spelt->size() > 1 && spelt->front() == '=';
        const Value& value = values[i];
        if (!like_formula && value.is(Value::Kind::Empty)) continue;
        if (block.kinds_.empty()) {
            budget.spend(cells * (sizeof(Kind) + sizeof(Held)));
            block.fill();
        }
        Kind& kind = block.kinds_[i];
        Held& held = block.held_[i];
        if (like_formula && (!(value == formulas[i]) || has_formula.holds(i))) {
            kind = Kind::Formula;
            held.text = texts.intern(*spelt, budget);
        } else if (const auto* text = value.if_is<std::string>()) {
            kind = Kind::Text;
            held.text = texts.intern(*text, budget);
        } else if (const auto* truth = value.if_is<bool>()) {
            kind = Kind::Boolean;
            held.boolean = *truth;
        } else if (const auto* error = value.if_is<automation::Error>()) {
            kind = Kind::Error;
            held.error = error->code;
        } else {
            kind = Kind::Number;
            held.number = automation::to_double(value);
        }
    }
    return block;
}

void ContentBlock::fill() {
    const auto cells = static_cast<std::size_t>(area_.cells());
    kinds_.assign(cells, Kind::Empty);
    held_.assign(cells, Held{});
}

bool ContentBlock::holds_texts() const { return std::ranges::find(kinds_, Kind::Text) != kinds_.end(); }

void ContentBlock::cover(const Area& cells, Kind with) {
    const auto common = area_.intersection(cells);
    if (!common) return;
    if (kinds_.empty()) fill();
    for (std::int32_t row = common->first_row; row <= common->last_row; ++row) {
        const auto first = kinds_.begin() + static_cast<std::ptrdiff_t>(place_of({row, common->first_column}));
        std::fill(first, first + common->columns(), with);
    }
}

void ContentBlock::mark_quoted(const Area& cells) {
    const auto common = area_.intersection(cells);
    if (!common || kinds_.empty()) return;
    for (std::int32_t row = common->first_row; row <= common->last_row; ++row) {
        const auto first = kinds_.begin() + static_cast<std::ptrdiff_t>(place_of({row, common->first_column}));
        std::replace(first, first + common->columns(), Kind::Text, Kind::QuotedText);
    }
}

bool ContentBlock::same(std::size_t place, const TextPool& texts, const ContentBlock& other, std::size_t there,
                        const TextPool& others) const {
    const Kind own = kind(place);
    if (own != other.kind(there)) return false;
    switch (own) {
        case Kind::Number:
            return held_[place].number == other.held_[there].number;
        case Kind::Boolean:
            return held_[place].boolean == other.held_[there].boolean;
        case Kind::Error:
            return held_[place].error == other.held_[there].error;
        case Kind::Text:
        case Kind::QuotedText:
        case Kind::Formula:
            return text(place, texts) == other.text(there, others);
        default:
            return true;
    }
}

Value ContentBlock::entry(std::size_t place, const TextPool& texts) const {
    switch (kind(place)) {
        case Kind::Number:
            return held_[place].number;
        case Kind::Boolean:
            return held_[place].boolean;
        case Kind::Error:
            return automation::Error{held_[place].error};
        case Kind::Text:
        case Kind::Formula:
            return text(place, texts);
        case Kind::QuotedText:
            return "'" + std::string(text(place, texts));
        default:
            return {};
    }
}

std::string_view ContentBlock::text(std::size_t place, const TextPool& texts) const { return texts[held_[place].text]; }

}  // namespace kestrune::brxllib::undo
