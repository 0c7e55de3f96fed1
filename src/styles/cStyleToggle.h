#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "styles/cStyles.h"

namespace kestrune::styles {

// A style SmartCycle: a named list of styles through which a range steps, press by press. The styles
// are shared with the library.
class cStyleToggle {
  public:
    explicit cStyleToggle(std::string name = {}) : Name(std::move(name)) {}

    std::string Name;
    std::int32_t AccessLevel = 0;  // 0 free to edit
    StylesRef Styles = std::make_shared<cStyles>();

    // A new cycle with the same name and access level and the same style objects. Null for no source.
    [[nodiscard]] static std::shared_ptr<cStyleToggle> Copy(const cStyleToggle* source);

    // Position 0 applies the style that follows the one that the range shows, the first when it shows
    // none but the last; a position of the list applies that entry; any other does nothing.
    void Apply(const core::SharedState& shared, const excel::Range& range, std::int32_t position) const;

  private:
    [[nodiscard]] std::int32_t next_position(const core::SharedState& shared, const excel::Range& range) const;
};

using StyleToggleRef = std::shared_ptr<cStyleToggle>;

}  // namespace kestrune::styles
