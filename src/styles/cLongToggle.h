#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

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

    bool operator==(const cLongToggle&) const = default;
};

using LongToggleRef = std::shared_ptr<cLongToggle>;

}  // namespace kestrune::styles
