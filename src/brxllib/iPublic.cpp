#include "brxllib/iPublic.h"

#include <utility>

#include "brxllib/iConst.h"
#include "brxllib/iControl.h"
#include "brxllib/iDisplay.h"
#include "brxllib/iFormula.h"
#include "brxllib/iMenu.h"
#include "brxllib/iProduct.h"
#include "brxllib/iRange.h"
#include "brxllib/iUndoRedo.h"
#include "brxllib/iWorkbook.h"
#include "brxllib/iWorksheet.h"

namespace kestrune::brxllib {

using automation::MemberTable;
using automation::method;
using automation::read_only;

iPublic::iPublic(std::shared_ptr<Library> library)
    : library_(std::move(library)),
      auto_color_(std::make_shared<iAutoColor>(library_)),
      objects_{std::make_shared<iConst>(),
               std::make_shared<iControl>(library_),
               std::make_shared<iDisplay>(library_),
               std::make_shared<iFormula>(),
               std::make_shared<iMenu>(library_),
               std::make_shared<iProduct>(library_),
               std::make_shared<iRange>(library_),
               std::make_shared<iUndoRedo>(library_),
               std::make_shared<iWorkbook>(library_),
               std::make_shared<iWorksheet>()} {}

void iPublic::set_application(const automation::ObjectRef& application) {
    library_->application = excel::Application(application);
    auto_color_->application_changed();
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
        method<&P::unregister_client>("UnregisterClient", 2, "ClientName"), read_only<&P::auto_color>("iAutoColor", 3),
        read_only<&P::object<Const>>("iConst", 4), read_only<&P::object<Control>>("iControl", 5),
        read_only<&P::object<Display>>("iDisplay", 6), read_only<&P::object<Formula>>("iFormula", 7),
        read_only<&P::object<Menu>>("iMenu", 8), read_only<&P::object<Product>>("iProduct", 9),
        read_only<&P::object<Range>>("iRange", 10), read_only<&P::object<UndoRedo>>("iUndoRedo", 11),
        read_only<&P::object<Workbook>>("iWorkbook", 12), read_only<&P::object<Worksheet>>("iWorksheet", 13));
    static constexpr MemberTable table("iPublic", rows);
    return table;
}

}  // namespace kestrune::brxllib
