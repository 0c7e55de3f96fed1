#include "brvblib/iConst.h"

#include <fmt/format.h>

#include <array>

namespace kestrune::brvblib {

using automation::MemberTable;

std::string_view iConst::text(std::int32_t index) const {
    static constexpr std::array<std::string_view, 1> texts{"Kestrune"};
    if (index < 0 || static_cast<std::size_t>(index) >= texts.size()) {
        throw automation::AutomationError(automation::hresult::bad_index, "iConst.Text",
                                          fmt::format("there is no constant {}", index));
    }
    return texts[static_cast<std::size_t>(index)];
}

const MemberTable& iConst::members() {
    static constexpr auto rows = automation::member_rows(automation::read_only<&iConst::text>("Text", 1, "Index"));
    static constexpr MemberTable table("iConst", rows);
    return table;
}

}  // namespace kestrune::brvblib
