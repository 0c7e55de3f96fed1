#include "brxllib/iPublic.h"

#include <utility>

namespace kestrune::brxllib {

using automation::MemberTable;
using automation::method;
using automation::read_only;

iPublic::iPublic(std::shared_ptr<Library> library)
    : library_(std::move(library)),
      parts_{std::make_shared<iAutoColor>(library_), std::make_shared<iConst>(),
             std::make_shared<iControl>(library_),   std::make_shared<iDisplay>(library_),
             std::make_shared<iFormula>(),           std::make_shared<iMenu>(library_),
             std::make_shared<iProduct>(library_),   std::make_shared<iRange>(library_),
             std::make_shared<iUndoRedo>(library_),  std::make_shared<iWorkbook>(library_),
             std::make_shared<iWorksheet>()} {}

void iPublic::set_application(const automation::ObjectRef& application) {
    library_->application = excel::Application(application);
    part<iAutoColor>()->application_changed();
}

bool iPublic::unregister_client(const std::string& client_name) {
    const bool known = library_->clients.erase(client_name) > 0;
    library_->callbacks.erase(client_name);
    if (library_->clients.empty()) set_application(nullptr);
    return known;
}

const MemberTable& iPublic::members() {
    using P = iPublic;
    static constexpr auto rows = automation::member_rows(
        method<&P::set_application>("SetApplication", 1, "Application"),
        method<&P::unregister_client>("UnregisterClient", 2, "ClientName"),
        read_only<&P::part<iAutoColor>>("iAutoColor", 3), read_only<&P::part<iConst>>("iConst", 4),
        read_only<&P::part<iControl>>("iControl", 5), read_only<&P::part<iDisplay>>("iDisplay", 6),
        read_only<&P::part<iFormula>>("iFormula", 7), read_only<&P::part<iMenu>>("iMenu", 8),
        read_only<&P::part<iProduct>>("iProduct", 9), read_only<&P::part<iRange>>("iRange", 10),
        read_only<&P::part<iUndoRedo>>("iUndoRedo", 11), read_only<&P::part<iWorkbook>>("iWorkbook", 12),
        read_only<&P::part<iWorksheet>>("iWorksheet", 13));
    static constexpr MemberTable table("iPublic", rows);
    return table;
}

}  // namespace kestrune::brxllib
