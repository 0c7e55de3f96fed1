#include "brvblib/iPublic.h"

#include <utility>

#include "brvblib/iConst.h"
#include "brvblib/iHotKeys.h"
#include "brvblib/iProduct.h"
#include "brvblib/iScreen.h"
#include "brvblib/iString.h"
#include "brvblib/iXML.h"

namespace kestrune::brvblib {

using automation::MemberTable;
using automation::method;
using automation::read_only;

iPublic::iPublic(std::shared_ptr<Library> library)
    : library_(std::move(library)),
      const_(std::make_shared<iConst>()),
      hot_keys_(std::make_shared<iHotKeys>(library_)),
      product_(std::make_shared<iProduct>(library_)),
      screen_(std::make_shared<iScreen>(library_)),
      string_(std::make_shared<iString>(library_)),
      xml_(std::make_shared<iXML>(library_)) {}

bool iPublic::unregister_client(const std::string& client_name) {
    library_->hot_key_callbacks.erase(client_name);
    const bool known = library_->clients.erase(client_name) > 0;
    if (library_->clients.empty()) library_->application = nullptr;
    return known;
}

const MemberTable& iPublic::members() {
    static constexpr auto rows = automation::member_rows(
        method<&iPublic::set_application>("SetApplication", 1, "Application"),
        method<&iPublic::unregister_client>("UnregisterClient", 2, "ClientName"),
        read_only<&iPublic::constants>("iConst", 3), read_only<&iPublic::hot_keys>("iHotKeys", 8),
        read_only<&iPublic::product>("iProduct", 10), read_only<&iPublic::screen>("iScreen", 11),
        read_only<&iPublic::strings>("iString", 13), read_only<&iPublic::xml>("iXML", 15));
    static constexpr MemberTable table("iPublic", rows);
    return table;
}

}  // namespace kestrune::brvblib
