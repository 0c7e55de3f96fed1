#include "brxllib/iConst.h"

namespace kestrune::brxllib {

using automation::MemberTable;
using automation::read_only;

const MemberTable& iConst::members() {
    static constexpr auto rows =
        automation::member_rows(read_only<&iConst::content<ContentKind::Empty>>("ContentEmpty", 1),
                                read_only<&iConst::content<ContentKind::Text>>("ContentText", 2),
                                read_only<&iConst::content<ContentKind::Logical>>("ContentLogical", 3),
                                read_only<&iConst::content<ContentKind::Error>>("ContentError", 4),
                                read_only<&iConst::content<ContentKind::Date>>("ContentDate", 5),
                                read_only<&iConst::content<ContentKind::Time>>("ContentTime", 6),
                                read_only<&iConst::content<ContentKind::DateAndTime>>("ContentDateAndTime", 7),
                                read_only<&iConst::content<ContentKind::Number>>("ContentNumber", 8));
    static constexpr MemberTable table("iConst", rows);
    return table;
}

}  // namespace kestrune::brxllib
