#include "host/objects/ListObjectsObject.h"

#include "host/objects/Items.h"
#include "host/objects/RangeObject.h"
#include "host/objects/SheetObject.h"

namespace kestrune::host {

std::vector<const Table*> ListObjectsObject::list() const {
    std::vector<const Table*> tables;
    for (const Table& table : sheet_.workbook().tables()) {
        if (sheet_.workbook().sheets()[static_cast<std::size_t>(table.sheet)].get() == &sheet_)
            tables.push_back(&table);
    }
    return tables;
}

ObjectRef ListObjectsObject::parent() const { return sheet_object(session(), sheet_); }
ObjectRef ListObjectsObject::new_enum() const { return items_of(*this); }

ObjectRef ListObjectsObject::item(const Value& index) const {
    constexpr std::string_view member = "ListObjects.Item";
    const auto tables = list();
    if (const auto* name = index.if_is<std::string>()) {
        for (const Table* table : tables) {
            if (automation::same_text(table->name, *name))
                return std::make_shared<ListObjectObject>(session(), sheet_, *table);
        }
        refuse_index(member, "there is no table '" + *name + "' on the sheet");
    }
    const std::int32_t position = automation::to_integer(index);
    if (position < 1 || position > count()) refuse_index(member, "there is no such table");
    return std::make_shared<ListObjectObject>(session(), sheet_, *tables[static_cast<std::size_t>(position - 1)]);
}

ObjectRef ListObjectObject::parent() const { return sheet_object(session(), sheet_); }

ObjectRef ListObjectObject::cells(std::int32_t first_row, std::int32_t last_row) const {
    if (first_row > last_row) return nullptr;
    const Area area{first_row, table_.all.first_column, last_row, table_.all.last_column};
    return std::make_shared<RangeObject>(CellRange(session(), sheet_, {area}));
}

ObjectRef ListObjectObject::header_row_range() const {
    return table_.headers ? cells(table_.all.first_row, table_.all.first_row) : nullptr;
}

ObjectRef ListObjectObject::data_body_range() const {
    return cells(table_.all.first_row + (table_.headers ? 1 : 0), table_.all.last_row - (table_.totals ? 1 : 0));
}

ObjectRef ListObjectObject::totals_row_range() const {
    return table_.totals ? cells(table_.all.last_row, table_.all.last_row) : nullptr;
}

const MemberTable& ListObjectsObject::members() {
    using L = ListObjectsObject;
    static constexpr auto rows =
        automation::member_rows(enumeration<&L::new_enum>(), read_only<&L::item>("Item", 0, "Index"),
                                read_only<&L::application>("Application", 1), read_only<&L::parent>("Parent", 2),
                                read_only<&L::count>("Count", 3));
    static constexpr MemberTable table("ListObjects", rows);
    return table;
}

const MemberTable& ListObjectObject::members() {
    using L = ListObjectObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&L::application>("Application", 1), read_only<&L::parent>("Parent", 2),
        read_only<&L::name>("Name", 3), read_only<&L::name>("DisplayName", 4), read_only<&L::range>("Range", 5),
        read_only<&L::header_row_range>("HeaderRowRange", 6), read_only<&L::data_body_range>("DataBodyRange", 7),
        read_only<&L::totals_row_range>("TotalsRowRange", 8), read_only<&L::show_headers>("ShowHeaders", 9),
        read_only<&L::show_totals>("ShowTotals", 10));
    static constexpr MemberTable table("ListObject", rows);
    return table;
}

}  // namespace kestrune::host
