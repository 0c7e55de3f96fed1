#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

#include "automation/AutomationError.h"
#include "automation/Conversion.h"
#include "excel/Range.h"
#include "formula/Area.h"

namespace kestrune::brxllib {

// The elements of a block that Excel answered, row by row; a single cell comes without an array.
class BlockAnswer {
  public:
    BlockAnswer(automation::Value answer, const formula::Area& area) : answer_(std::move(answer)) {
        const automation::Array* array = answer_.array();
        const auto cells = static_cast<std::size_t>(area.cells());
        if ((array ? array->elements().size() : 1) != cells) {
            throw automation::AutomationError(automation::hresult::type_mismatch, "Range",
                                              "the answer has not one element a cell");
        }
    }
    const automation::Value& operator[](std::size_t index) const {
        const automation::Array* array = answer_.array();
        return array ? array->elements()[index] : answer_;
    }

  private:
    automation::Value answer_;
};

// Whether cells that read as formulas are some: a text may look like one. Asks for the whole block first.
class FormulaTest {
  public:
    FormulaTest(const excel::Range& range, const formula::Area& area) : range_(range), area_(area) {}

    bool holds(std::size_t index) {
        if (!whole_) whole_ = range_.HasFormula();
        if (!whole_->is(automation::Value::Kind::Null)) return automation::to_boolean(*whole_);
        const auto width = static_cast<std::size_t>(area_.columns());
        return automation::to_boolean(
            range_.Cells(static_cast<std::int32_t>(index / width) + 1, static_cast<std::int32_t>(index % width) + 1)
                .HasFormula());
    }

  private:
    const excel::Range& range_;
    const formula::Area& area_;
    std::optional<automation::Value> whole_;
};

}  // namespace kestrune::brxllib
