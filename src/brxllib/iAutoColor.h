#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

#include "automation/MemberTable.h"
#include "brxllib/Library.h"
#include "brxllib/autocolor/LiveColoring.h"
#include "brxllib/autocolor/Settings.h"

namespace kestrune::brxllib {

// AutoColor: gives the fonts of cells the colours of what the cells hold, on demand and, while it is on, as cells
// change. Knows what to colour how by one property a setting; a fresh object has the defaults.
class iAutoColor : public automation::Served<iAutoColor> {
  public:
    explicit iAutoColor(std::shared_ptr<Library> library);
    static const automation::MemberTable& members();

    // To be told when the library got another application, or lost it.
    void application_changed();

  private:
    template <auto setting>
    [[nodiscard]] auto get() const {
        return settings_.*setting;
    }
    template <auto setting>
    void set(std::remove_cvref_t<decltype(std::declval<AutoColorSettings>().*setting)> value) {
        settings_.*setting = value;
        live_.update();
    }

    // Switches colouring as cells change on or off; whether it is on now.
    bool toggle();
    // Whether fills of the whole selection at once, as Ctrl+Enter makes them, are coloured while AutoColor is on, and
    // while it is off.
    void update_ctrl_enter(bool while_on, bool while_off);
    // Colours the selected cells; no cells, nothing.
    void run_selection();
    void run_range(const automation::ObjectRef& range);
    // The active one unless given.
    void run_worksheet(const std::optional<automation::ObjectRef>& sheet);
    void run_workbook(const std::optional<automation::ObjectRef>& workbook);
    // Shows the active workbook, unless another is given, in black fonts or in its colours again; whether it is in
    // black now.
    bool toggle_black_fonts(const std::optional<automation::ObjectRef>& workbook);
    [[nodiscard]] bool has_black_fonts(const std::optional<automation::ObjectRef>& workbook) const;
    // The name of the font-colour SmartCycle whose colours are left alone.
    [[nodiscard]] std::string smart_cycle_name() const { return std::string(respected_smart_cycle); }

    // The active one unless given.
    [[nodiscard]] excel::Workbook workbook_or_active(const std::optional<automation::ObjectRef>& workbook) const;

    std::shared_ptr<Library> library_;
    AutoColorSettings settings_;
    LiveColoring live_;
};

}  // namespace kestrune::brxllib
