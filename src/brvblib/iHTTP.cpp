#include "brvblib/iHTTP.h"

#include <fmt/format.h>

#include <algorithm>

namespace kestrune::brvblib {
namespace {

bool is_web_address(std::string_view address) {
    for (const std::string_view scheme : {"https://", "http://"}) {
        if (address.size() > scheme.size() && automation::same_text(address.substr(0, scheme.size()), scheme)) {
            return std::ranges::all_of(address, [](char c) { return c > ' ' && c != '"' && c != '\x7F'; });
        }
    }
    return false;
}

}  // namespace

void iHTTP::open(const std::string& address) const {
    if (!is_web_address(address)) {
        throw automation::AutomationError(automation::hresult::exception, "iHTTP.Open",
                                          fmt::format("'{}' is no web address", address));
    }
    library_->desktop().open(address);
}

const automation::MemberTable& iHTTP::members() {
    static constexpr auto rows = automation::member_rows(automation::method<&iHTTP::open>("Open", 1, "Address"));
    static constexpr automation::MemberTable table("iHTTP", rows);
    return table;
}

}  // namespace kestrune::brvblib
