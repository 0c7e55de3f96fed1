#include "brxllib/iProduct.h"

namespace kestrune::brxllib {

using automation::MemberTable;

void iProduct::register_client(const std::string& client_name, const std::string& product_name,
                               const std::string& title) {
    library_->clients.insert_or_assign(client_name, Client{product_name, title});
}

const MemberTable& iProduct::members() {
    static constexpr auto rows = automation::member_rows(
        automation::method<&iProduct::register_client>("RegisterClient", 1, "ClientName, ProductName, Title"));
    static constexpr MemberTable table("iProduct", rows);
    return table;
}

}  // namespace kestrune::brxllib
