#include "brxllib/iPublic.h"

#include <utility>

#include "brxllib/iProduct.h"
#include "brxllib/iWorkbook.h"

namespace kestrune::brxllib {

using automation::MemberTable;
using automation::method;
using automation::read_only;

iPublic::iPublic(std::shared_ptr<Library> library)
    : library_(std::move(library)),
      product_(std::make_shared<iProduct>(library_)),
      workbook_(std::make_shared<iWorkbook>(library_)) {}

void iPublic::set_application(const automation::ObjectRef& application) {
    library_->application = excel::Application(application);
}

bool iPublic::unregister_client(const std::string& client_name) {
    const bool known = library_->clients.erase(client_name) > 0;
    if (library_->clients.empty()) library_->application = {};
    return known;
}

const MemberTable& iPublic::members() {
    static constexpr auto rows = automation::member_rows(
        method<&iPublic::set_application>("SetApplication", 1, "Application"),
        method<&iPublic::unregister_client>("UnregisterClient", 2, "ClientName"),
        read_only<&iPublic::product>("iProduct", 9), read_only<&iPublic::workbook>("iWorkbook", 12));
    static constexpr MemberTable table("iPublic", rows);
    return table;
}

}  // namespace kestrune::brxllib
