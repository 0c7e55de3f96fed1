#pragma once

#include "host/model/LyingThings.h"
#include "host/objects/HostObject.h"

namespace kestrune::host {

// What the sheet's file has on its cells besides what they hold; nothing without a file.
[[nodiscard]] LyingThings lying_on(Sheet& sheet);

// What is drawn on a worksheet, counted from 1, or by name. Comments' own shapes are left out.
class ShapesObject final : public HostObject<ShapesObject> {
  public:
    static const MemberTable& members();

    ShapesObject(HostSession& session, Sheet& sheet) : HostObject(session), sheet_(sheet) {}

    [[nodiscard]] const Workbook& home() const { return sheet_.workbook(); }
    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(lying_on(sheet_).drawings.size()); }
    [[nodiscard]] ObjectRef item(const Value& index) const;
    [[nodiscard]] ObjectRef new_enum() const;

  private:
    Sheet& sheet_;
};

// A drawing as its file has it. Its place is read only.
class ShapeObject final : public HostObject<ShapeObject> {
  public:
    static const MemberTable& members();

    ShapeObject(HostSession& session, Sheet& sheet, Drawing drawing)
        : HostObject(session), sheet_(sheet), drawing_(std::move(drawing)) {}

    [[nodiscard]] const Workbook& home() const { return sheet_.workbook(); }
    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::string name() const { return drawing_.name; }
    [[nodiscard]] ObjectRef top_left_cell() const;
    [[nodiscard]] ObjectRef bottom_right_cell() const;

  private:
    Sheet& sheet_;
    Drawing drawing_;
};

}  // namespace kestrune::host
