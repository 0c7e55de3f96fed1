#pragma once

#include <memory>
#include <utility>

#include "automation/MemberTable.h"
#include "brxllib/Library.h"

namespace kestrune::brxllib {

// Questions about cells.
class iRange : public automation::Served<iRange> {
  public:
    explicit iRange(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    // The content kind (ContentKind.h) of a cell; of several cells, those of the first area as a 2-D array from 1.
    [[nodiscard]] automation::Value content_kind(const automation::ObjectRef& range) const;
    // The part of a range that lies in its sheet's used range, or Nothing.
    [[nodiscard]] automation::ObjectRef in_use(const automation::ObjectRef& range) const;

    // The references from and to a cell: arrays of rows as Links.h has them.
    [[nodiscard]] automation::Value precedents(const automation::ObjectRef& cell) const;
    [[nodiscard]] automation::Value dependents(const automation::ObjectRef& cell) const;

    // What cells of a range have which number format, and which font size in points: rows of an address on the range's
    // sheet and the format or size; see FormatParts.h. Empty when there are none.
    [[nodiscard]] automation::Value number_formats(const automation::ObjectRef& range) const;
    [[nodiscard]] automation::Value font_sizes(const automation::ObjectRef& range) const;

    // Parts of a rectangle by whether the formula of a cell is a text: rows of an address and a Boolean; TextParts.h.
    [[nodiscard]] automation::Value text_parts(const automation::ObjectRef& range, const std::string& text) const;
    // The rectangles of a range that hold formulas: rows of an address and a FormulaBlockKind; FormulaBlocks.h. Both
    // are Empty when there are none.
    [[nodiscard]] automation::Value formula_blocks(const automation::ObjectRef& range) const;

    std::shared_ptr<Library> library_;
};

}  // namespace kestrune::brxllib
