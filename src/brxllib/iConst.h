#pragma once

#include <cstdint>
#include <string>

#include "automation/MemberTable.h"
#include "brxllib/ContentKind.h"
#include "brxllib/autocolor/Settings.h"

namespace kestrune::brxllib {

// The library's constants, by name.
class iConst : public automation::Served<iConst> {
  public:
    static const automation::MemberTable& members();

  private:
    template <ContentKind kind>
    [[nodiscard]] std::int32_t content() const {
        return static_cast<std::int32_t>(kind);
    }
    // What AutoColor does, and in which colours (BGR), until somebody sets it otherwise.
    template <auto setting>
    [[nodiscard]] auto auto_color() const {
        return AutoColorSettings{}.*setting;
    }
    [[nodiscard]] std::string auto_color_smart_cycle() const { return std::string(respected_smart_cycle); }
};

}  // namespace kestrune::brxllib
