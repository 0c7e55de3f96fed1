#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/bridges/LibraryBridge.h"

namespace kestrune::core {

// The spreadsheet library: workbook state and palettes. The typed calls fail as automation calls do.
class diBRXLLib : public LibraryBridge {
  public:
    explicit diBRXLLib(const automation::Trace& trace) : LibraryBridge("BRXLLib.iPublic", names, trace) {}

    [[nodiscard]] const automation::ObjectRef& iAutoColor() const { return object(AutoColor); }
    [[nodiscard]] const automation::ObjectRef& iConst() const { return object(Const); }
    [[nodiscard]] const automation::ObjectRef& iControl() const { return object(Control); }
    [[nodiscard]] const automation::ObjectRef& iDisplay() const { return object(Display); }
    [[nodiscard]] const automation::ObjectRef& iFormula() const { return object(Formula); }
    [[nodiscard]] const automation::ObjectRef& iMenu() const { return object(Menu); }
    [[nodiscard]] const automation::ObjectRef& iProduct() const { return object(Product); }
    [[nodiscard]] const automation::ObjectRef& iRange() const { return object(Range); }
    [[nodiscard]] const automation::ObjectRef& iUndoRedo() const { return object(UndoRedo); }
    [[nodiscard]] const automation::ObjectRef& iWorkbook() const { return object(Workbook); }
    [[nodiscard]] const automation::ObjectRef& iWorksheet() const { return object(Worksheet); }

    // Hands over the Excel application that the library works in.
    void set_application(const automation::ObjectRef& application) const;

    // Whether a command may run now: a workbook is active and Excel is not in the middle of an entry.
    [[nodiscard]] bool may_run_command() const;

    // The entry (1 to 56) of a workbook's palette that lies nearest to a BGR colour.
    [[nodiscard]] std::int32_t nearest_color_index(std::int32_t color, const automation::ObjectRef& workbook) const;

  private:
    enum Place : std::size_t {
        AutoColor,
        Const,
        Control,
        Display,
        Formula,
        Menu,
        Product,
        Range,
        UndoRedo,
        Workbook,
        Worksheet
    };
    static constexpr std::array<std::string_view, 11> names{"iAutoColor", "iConst",    "iControl",  "iDisplay",
                                                            "iFormula",   "iMenu",     "iProduct",  "iRange",
                                                            "iUndoRedo",  "iWorkbook", "iWorksheet"};
};

}  // namespace kestrune::core
