#include "host/objects/ProtectionObject.h"

namespace kestrune::host {

const MemberTable& ProtectionObject::members() {
    using P = ProtectionObject;
    using S = SheetProtection;
    static constexpr auto rows =
        automation::member_rows(read_only<&P::allows<&S::format_cells>>("AllowFormattingCells", 1),
                                read_only<&P::allows<&S::format_columns>>("AllowFormattingColumns", 2),
                                read_only<&P::allows<&S::format_rows>>("AllowFormattingRows", 3),
                                read_only<&P::allows<&S::insert_rows>>("AllowInsertingRows", 4),
                                read_only<&P::allows<&S::insert_columns>>("AllowInsertingColumns", 5),
                                read_only<&P::allows<&S::delete_rows>>("AllowDeletingRows", 6),
                                read_only<&P::allows<&S::delete_columns>>("AllowDeletingColumns", 7));
    static constexpr MemberTable table("Protection", rows);
    return table;
}

}  // namespace kestrune::host
