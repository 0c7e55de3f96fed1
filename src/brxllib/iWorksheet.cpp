#include "brxllib/iWorksheet.h"

namespace kestrune::brxllib {

using automation::MemberTable;
using automation::method;

const MemberTable& iWorksheet::members() {
    static constexpr auto rows =
        automation::member_rows(method<&iWorksheet::label<Side::Left>>("RowLabel", 1, "Cell"),
                                method<&iWorksheet::label<Side::Above>>("ColumnLabel", 2, "Cell"),
                                method<&iWorksheet::heading<Side::Left>>("RowHeading", 3, "Cell"),
                                method<&iWorksheet::heading<Side::Above>>("ColumnHeading", 4, "Cell"));
    static constexpr MemberTable table("iWorksheet", rows);
    return table;
}

}  // namespace kestrune::brxllib
