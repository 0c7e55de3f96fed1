#pragma once

#include "host/objects/HostObject.h"

namespace kestrune::host {

// The tables of a worksheet, counted from 1, or by name.
class ListObjectsObject final : public HostObject<ListObjectsObject> {
  public:
    static const MemberTable& members();

    ListObjectsObject(HostSession& session, Sheet& sheet) : HostObject(session), sheet_(sheet) {}

    [[nodiscard]] const Workbook& home() const { return sheet_.workbook(); }
    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(list().size()); }
    [[nodiscard]] ObjectRef item(const Value& index) const;
    [[nodiscard]] ObjectRef new_enum() const;

  private:
    [[nodiscard]] std::vector<const Table*> list() const;

    Sheet& sheet_;
};

// A table as its file has it. Its place and its parts are read only.
class ListObjectObject final : public HostObject<ListObjectObject> {
  public:
    static const MemberTable& members();

    ListObjectObject(HostSession& session, Sheet& sheet, const Table& table)
        : HostObject(session), sheet_(sheet), table_(table) {}

    [[nodiscard]] const Workbook& home() const { return sheet_.workbook(); }
    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::string name() const { return table_.name; }
    [[nodiscard]] ObjectRef range() const { return cells(table_.all.first_row, table_.all.last_row); }
    // Nothing where there is no such row.
    [[nodiscard]] ObjectRef header_row_range() const;
    [[nodiscard]] ObjectRef data_body_range() const;
    [[nodiscard]] ObjectRef totals_row_range() const;
    [[nodiscard]] bool show_headers() const { return table_.headers; }
    [[nodiscard]] bool show_totals() const { return table_.totals; }

  private:
    [[nodiscard]] ObjectRef cells(std::int32_t first_row, std::int32_t last_row) const;

    Sheet& sheet_;
    Table table_;
};

}  // namespace kestrune::host
