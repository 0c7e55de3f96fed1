#include "core/bridges/diBRVBLib.h"

#include "automation/Conversion.h"

namespace kestrune::core {

using automation::to_text;

void diBRVBLib::set_application(const automation::ObjectRef& application) const {
    automation::call(automation::to_required_object(iPublic()), "SetApplication", {application});
}

std::string diBRVBLib::constant(std::int32_t index) const { return to_text(call(Const, "Text", {index})); }

void diBRVBLib::command_bracket(bool ended) const { call(Product, "CommandBracket", {ended, constant(0)}); }

std::string diBRVBLib::text(std::int32_t number) const { return to_text(call(String, "Text", {number})); }

std::string diBRVBLib::style_key(std::string_view style_name) const {
    return to_text(call(String, "StyleKey", {style_name}));
}

void diBRVBLib::place_window(std::int32_t placement) const { call(Screen, "Place", {0, placement}); }

}  // namespace kestrune::core
