#pragma once

#include <cstdint>
#include <memory>

#include "core/bridges/SharedState.h"
#include "excel/Range.h"
#include "excel/Workbook.h"
#include "styles/StyleFields.h"

namespace kestrune::styles {

class cStyles;

// One named cell style. No operation fails: what the spreadsheet refuses is skipped and traced.
class cStyle : public StyleFields {
  public:
    cStyle() = default;
    explicit cStyle(StyleFields fields) : StyleFields(std::move(fields)) {}
    cStyle(const cStyle&) = delete;
    cStyle& operator=(const cStyle&) = delete;

    // The style's position, from 1, in the collection that holds it: the first one that it was added
    // to, since cycles only refer to the styles of the library. 0 for a style on its own.
    [[nodiscard]] std::int32_t MyIndex() const;

    // A new style with the same fields, in no collection.
    [[nodiscard]] std::shared_ptr<cStyle> Copy() const;

    // Whether the top-left cell of the range shows the style. A reading that fails is a difference, a
    // reading of Null (text partly bold) is none.
    [[nodiscard]] bool IsApplied(const core::SharedState& shared, const excel::Range& range) const;

    // Gives the range the style, and the As... fields and the border what Excel made of it.
    // Nothing happens without a range.
    void Apply(const core::SharedState& shared, const excel::Range& range);

    // Takes the fields from a cell, from the active cell when there is none given. The transparent
    // flags stay as they are.
    void CaptureFromCell(const core::SharedState& shared, excel::Range cell);

  private:
    friend class cStyles;

    void apply_colors(const core::SharedState& shared, const excel::Range& range, const excel::Font& font,
                      const excel::Workbook& workbook);
    void apply_borders(const core::SharedState& shared, const excel::Range& range, const excel::Workbook& workbook);
    // Takes the line from the first bordered side of a range.
    void ReadBackBorder(const core::SharedState& shared, const excel::Range& range);
    [[nodiscard]] bool borders_are_applied(const core::SharedState& shared, const excel::Range& range,
                                           const excel::Range& cell) const;
    void capture_borders(const core::SharedState& shared, const excel::Range& cell, const excel::Workbook& workbook);

    const cStyles* holder_ = nullptr;
};

using StyleRef = std::shared_ptr<cStyle>;

}  // namespace kestrune::styles
