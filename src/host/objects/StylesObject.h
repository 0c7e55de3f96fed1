#pragma once

#include "host/objects/HostObject.h"

namespace kestrune::host {

// Workbook.Styles: the named cell styles, counted from 1.
class StylesObject final : public HostObject<StylesObject> {
  public:
    static const MemberTable& members();

    StylesObject(HostSession& session, Workbook& workbook) : HostObject(session), workbook_(workbook) {}

    [[nodiscard]] const Workbook& home() const { return workbook_; }
    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::int32_t count() const;
    [[nodiscard]] ObjectRef item(const Value& index) const;  // a position, or a name whatever its case
    [[nodiscard]] ObjectRef new_enum() const;

  private:
    Workbook& workbook_;
};

// The position of the style that an argument is, or names; error 1004 when the workbook has none such.
std::uint32_t style_argument(std::string_view member, const Workbook& workbook, const Value& argument);

}  // namespace kestrune::host
