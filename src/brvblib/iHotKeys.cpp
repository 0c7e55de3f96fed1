#include "brvblib/iHotKeys.h"

namespace kestrune::brvblib {

const automation::MemberTable& iHotKeys::members() {
    static constexpr auto rows = automation::member_rows(automation::read_only<&iHotKeys::registry>("Registry", 1));
    static constexpr automation::MemberTable table("iHotKeys", rows);
    return table;
}

}  // namespace kestrune::brvblib
