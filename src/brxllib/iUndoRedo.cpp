#include "brxllib/iUndoRedo.h"

namespace kestrune::brxllib {

using automation::MemberTable;

void iUndoRedo::register_callback(const std::string& client_name, const automation::ObjectRef& callback) {
    if (callback) {
        library_->callbacks.insert_or_assign(client_name, callback);
    } else {
        library_->callbacks.erase(client_name);
    }
}

const MemberTable& iUndoRedo::members() {
    static constexpr auto rows = automation::member_rows(
        automation::method<&iUndoRedo::register_callback>("RegisterCallback", 1, "ClientName, Callback"));
    static constexpr MemberTable table("iUndoRedo", rows);
    return table;
}

}  // namespace kestrune::brxllib
