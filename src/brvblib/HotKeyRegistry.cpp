#include "brvblib/HotKeyRegistry.h"

namespace kestrune::brvblib {

using automation::MemberTable;
using automation::method;

void HotKeyRegistry::register_callback(const std::string& client_name, const automation::ObjectRef& callback) {
    automation::to_required_object(callback);
    library_->hot_key_callbacks.insert_or_assign(client_name, callback);
}

bool HotKeyRegistry::unregister_callback(const std::string& client_name) {
    return library_->hot_key_callbacks.erase(client_name) > 0;
}

automation::ObjectRef HotKeyRegistry::callback(const std::string& client_name) const {
    const auto found = library_->hot_key_callbacks.find(client_name);
    return found == library_->hot_key_callbacks.end() ? nullptr : found->second;
}

const MemberTable& HotKeyRegistry::members() {
    static constexpr auto rows = automation::member_rows(
        method<&HotKeyRegistry::register_callback>("RegisterCallback", 1, "ClientName, Callback"),
        method<&HotKeyRegistry::unregister_callback>("UnregisterCallback", 2, "ClientName"),
        method<&HotKeyRegistry::callback>("Callback", 3, "ClientName"),
        automation::property<&HotKeyRegistry::product, &HotKeyRegistry::set_product>("Product", 4));
    static constexpr MemberTable table("HotKeyRegistry", rows);
    return table;
}

}  // namespace kestrune::brvblib
