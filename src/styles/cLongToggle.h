#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/bridges/SharedState.h"
#include "excel/Range.h"

namespace kestrune::styles {

// A numeric SmartCycle: a named list of values of one property of cells, through which a range steps. Which property
// that is, whoever steps decides: indent levels, row heights in points, column widths in characters, BGR font colours.
class cLongToggle {
  public:
    cLongToggle() = default;
    // Every value is recognised by itself until Excel has shown what it makes of it.
    cLongToggle(std::string name, std::vector<double> settings)
        : Name(std::move(name)), Settings(settings), LookFors(std::move(settings)) {}

    std::string Name;
    std::int32_t AccessLevel = 0;  // 0 free to edit
    // The values in the order of the cycle, as the user entered them; and for each what Excel reported after it was
    // last applied, since Excel rounds heights and widths and maps colours onto the palette. Only that can be
    // recognised again. The lists are of one length; a file edited by hand may have fewer LookFors.
    std::vector<double> Settings;
    std::vector<double> LookFors;

    // A new cycle with the same values.
    [[nodiscard]] std::shared_ptr<cLongToggle> Copy() const;

    // Whether a value is one of the settings, or of what Excel made of them.
    [[nodiscard]] bool IncludesSetting(double value, bool as_read) const;

    // Steps a range through the values of a property. Position 0 gives the whole range the value behind the one that
    // its top-left cell shows, the first when that shows none but the last; a position of the list gives that value;
    // any other, and no range, does nothing. Of values that look the same the first counts, unless this cell was just
    // given a later one; one that looks like what the cell shows already is stepped over. What the cell then shows is
    // what the value is recognised by from now on, also where the sheet refused it.
    void ApplyAsIndents(const core::SharedState& shared, const excel::Range& range, std::int32_t position);
    // Cells are right-aligned; see RightIndent.h for how those of old versions are indented.
    void ApplyAsRightIndents(const core::SharedState& shared, const excel::Range& range, std::int32_t position);
    void ApplyAsRowHeight(const core::SharedState& shared, const excel::Range& range, std::int32_t position);
    void ApplyAsColWidth(const core::SharedState& shared, const excel::Range& range, std::int32_t position);
    // Selects the range afterwards, so that Excel draws it anew.
    void ApplyAsColors(const core::SharedState& shared, const excel::Range& range, std::int32_t position);

    bool operator==(const cLongToggle& other) const {
        return Name == other.Name && AccessLevel == other.AccessLevel && Settings == other.Settings &&
               LookFors == other.LookFors;
    }

  private:
    // Where the cycle stands on a cell, for values by which that cannot be told: one that is in the list twice, two
    // that Excel makes the same, one that the sheet refused.
    struct Place {
        std::string cell;  // its full address
        std::size_t position = 0;
    };

    // How a property is read from a cell and written to a range. Both may fail as Excel does.
    struct Property {
        std::function<double(const excel::Range& cell)> read;
        std::function<void(const excel::Range& range, double value)> write;
    };

    void step(const automation::Trace& trace, const excel::Range& range, std::int32_t position,
              const Property& property);
    // The position of the value that a cell shows, 0 for none; nothing shown is no value of the cycle.
    [[nodiscard]] std::size_t position_of(std::optional<double> shown, const excel::Range& cell) const;
    // The position of the next value behind it that does not look the same.
    [[nodiscard]] std::size_t next_position(std::optional<double> shown, const excel::Range& cell) const;
    // Whether another position is recognised by the same value.
    [[nodiscard]] bool is_ambiguous(std::size_t position) const;

    std::optional<Place> last_place_;  // of the last step that left an ambiguous value
};

using LongToggleRef = std::shared_ptr<cLongToggle>;

}  // namespace kestrune::styles
