#include "host/objects/Underlines.h"

#include <utility>

#include "automation/Conversion.h"
#include "host/objects/Constants.h"
#include "host/objects/Refusal.h"

namespace kestrune::host {
namespace {

constexpr std::pair<Underline, std::int32_t> underlines[] = {
    {Underline::None, xlNone},
    {Underline::Single, xlUnderlineStyleSingle},
    {Underline::Double, xlUnderlineStyleDouble},
    {Underline::SingleAccounting, xlUnderlineStyleSingleAccounting},
    {Underline::DoubleAccounting, xlUnderlineStyleDoubleAccounting},
};

}  // namespace

std::int32_t underline_constant(Underline underline) {
    for (const auto& [stored, constant] : underlines) {
        if (stored == underline) return constant;
    }
    return xlNone;
}

Underline underline_of(std::string_view member, const automation::Value& style) {
    if (const bool* on = style.if_is<bool>()) return *on ? Underline::Single : Underline::None;
    const std::int32_t wanted = automation::to_integer(style);
    for (const auto& [stored, constant] : underlines) {
        if (constant == wanted) return stored;
    }
    refuse(member, "there is no such underline");
}

}  // namespace kestrune::host
