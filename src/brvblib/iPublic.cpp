#include "brvblib/iPublic.h"

#include <utility>

namespace kestrune::brvblib {

using automation::MemberTable;
using automation::method;
using automation::read_only;

iPublic::iPublic(std::shared_ptr<Library> library)
    : library_(std::move(library)),
      parts_(std::make_shared<iConst>(), std::make_shared<iDate>(library_), std::make_shared<iDocProp>(),
             std::make_shared<iFile>(library_), std::make_shared<iGUID>(), std::make_shared<iHotKeys>(library_),
             std::make_shared<iHTTP>(library_), std::make_shared<iProduct>(library_),
             std::make_shared<iScreen>(library_), std::make_shared<iSort>(), std::make_shared<iString>(library_),
             std::make_shared<iWinAPI>(library_), std::make_shared<iXML>(library_)) {}

bool iPublic::unregister_client(const std::string& client_name) {
    if (library_->hot_key_clients.erase(client_name) > 0) library_->hot_keys->remove_client(client_name);
    const bool known = library_->clients.erase(client_name) > 0;
    if (library_->clients.empty()) library_->application = nullptr;
    return known;
}

const MemberTable& iPublic::members() {
    static constexpr auto rows = automation::member_rows(
        method<&iPublic::set_application>("SetApplication", 1, "Application"),
        method<&iPublic::unregister_client>("UnregisterClient", 2, "ClientName"),
        read_only<&iPublic::part<iConst>>("iConst", 3), read_only<&iPublic::part<iDate>>("iDate", 4),
        read_only<&iPublic::part<iDocProp>>("iDocProp", 5), read_only<&iPublic::part<iFile>>("iFile", 6),
        read_only<&iPublic::part<iGUID>>("iGUID", 7), read_only<&iPublic::part<iHotKeys>>("iHotKeys", 8),
        read_only<&iPublic::part<iHTTP>>("iHTTP", 9), read_only<&iPublic::part<iProduct>>("iProduct", 10),
        read_only<&iPublic::part<iScreen>>("iScreen", 11), read_only<&iPublic::part<iSort>>("iSort", 12),
        read_only<&iPublic::part<iString>>("iString", 13), read_only<&iPublic::part<iWinAPI>>("iWinAPI", 14),
        read_only<&iPublic::part<iXML>>("iXML", 15));
    static constexpr MemberTable table("iPublic", rows);
    return table;
}

}  // namespace kestrune::brvblib
