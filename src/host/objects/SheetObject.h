#pragma once

#include <string>

#include "host/objects/HostObject.h"
#include "host/objects/SheetOrder.h"

namespace kestrune::host {

// A sheet as Excel's object model has it: a Worksheet or a Chart.
ObjectRef sheet_object(HostSession& session, Sheet& sheet);
ObjectRef workbook_object(HostSession& session, Workbook& workbook);

// What worksheets and chart sheets have in common.
template <class Derived>
class SheetObject : public HostObject<Derived> {
  public:
    [[nodiscard]] Sheet& sheet() const { return sheet_; }
    [[nodiscard]] const Workbook& home() const { return sheet_.workbook(); }
    [[nodiscard]] std::string name() const { return sheet_.name(); }
    [[nodiscard]] ObjectRef parent() const { return workbook_object(this->session(), sheet_.workbook()); }
    [[nodiscard]] std::int32_t index() const { return position_of(sheet_) + 1; }
    [[nodiscard]] bool protect_contents() const {
        return sheet_.protection().on || sheet_.protection().against_people_only;
    }
    [[nodiscard]] std::int32_t visible() const {  // XlSheetVisibility
        switch (sheet_.visibility) {
            case Visibility::Visible:
                return xlSheetVisible;
            case Visibility::Hidden:
                return xlSheetHidden;
            default:
                return xlSheetVeryHidden;
        }
    }
    // The sheet in front of its workbook's window. A hidden one does not come.
    void activate() {
        if (!this->session().activate(sheet_)) {
            refuse(std::string(this->type_name()) + ".Activate", "the sheet '" + sheet_.name() + "' is hidden");
        }
    }
    void select(const Value&) { activate(); }
    [[nodiscard]] ObjectRef next() const { return neighbour(1); }       // Nothing behind the last
    [[nodiscard]] ObjectRef previous() const { return neighbour(-1); }  // Nothing in front of the first

  protected:
    SheetObject(HostSession& session, Sheet& sheet) : HostObject<Derived>(session), sheet_(sheet) {}

  private:
    [[nodiscard]] ObjectRef neighbour(std::int32_t step) const {
        const auto& sheets = sheet_.workbook().sheets();
        const std::int32_t position = position_of(sheet_) + step;
        if (position < 0 || position >= static_cast<std::int32_t>(sheets.size())) return nullptr;
        return sheet_object(this->session(), *sheets[static_cast<std::size_t>(position)]);
    }

    Sheet& sheet_;
};

}  // namespace kestrune::host
