#include "brvblib/iWinAPI.h"

#include <fmt/format.h>

#include "brvblib/Paths.h"

namespace kestrune::brvblib {

void iWinAPI::open(const std::string& path) const {
    if (!file_exists(path)) {
        throw automation::AutomationError(automation::hresult::exception, "iWinAPI.Open",
                                          fmt::format("{}: is not there", path));
    }
    library_->desktop().open(path);
}

const automation::MemberTable& iWinAPI::members() {
    static constexpr auto rows = automation::member_rows(automation::method<&iWinAPI::open>("Open", 1, "Path"));
    static constexpr automation::MemberTable table("iWinAPI", rows);
    return table;
}

}  // namespace kestrune::brvblib
