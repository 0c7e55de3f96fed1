#include "brvblib/iGUID.h"

#include <fmt/format.h>

#include <cstdint>
#include <random>

namespace kestrune::brvblib {

std::string new_guid() {
    std::random_device random;
    const auto bits = [&] { return static_cast<std::uint32_t>(random()); };
    const std::uint32_t a = bits();
    const std::uint32_t b = (bits() & 0xFFFF0FFFU) | 0x4000U;
    const std::uint32_t c = (bits() & 0x3FFFFFFFU) | 0x80000000U;
    const std::uint32_t d = bits();
    return fmt::format("{{{:08X}-{:04X}-{:04X}-{:04X}-{:04X}{:08X}}}", a, b >> 16U, b & 0xFFFFU, c >> 16U, c & 0xFFFFU,
                       d);
}

const automation::MemberTable& iGUID::members() {
    static constexpr auto rows = automation::member_rows(automation::method<&iGUID::create>("Create", 1));
    static constexpr automation::MemberTable table("iGUID", rows);
    return table;
}

}  // namespace kestrune::brvblib
