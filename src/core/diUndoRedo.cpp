#include "core/diUndoRedo.h"

#include "core/bridges/Product.h"
#include "settings/AutoColorCommands.h"

namespace kestrune::core {

using automation::MemberTable;
using automation::method;

std::string diUndoRedo::product() const { return std::string(product_name); }

bool diUndoRedo::do_not_auto_color(const automation::Value& color) const {
    return settings::is_respected_color(*shared_, color);
}

const MemberTable& diUndoRedo::members() {
    using U = diUndoRedo;
    static constexpr auto rows = automation::member_rows(automation::read_only<&U::product>("BRProductName", 1),
                                                         method<&U::run_macro>("RunMacro", 2, "MacroName"),
                                                         method<&U::do_not_auto_color>("DoNotAutoColor", 3, "Color"));
    static constexpr MemberTable table("diUndoRedo", rows);
    return table;
}

}  // namespace kestrune::core
