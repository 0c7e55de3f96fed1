#include "menus/ToolbarChoice.h"

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "excel/Application.h"
#include "menus/MenuTable.h"

namespace kestrune::menus {
namespace {

using automation::ResumeNext;

constexpr std::string_view root = "KestruneMenus";
constexpr std::string_view version = "1.0";
constexpr std::string_view identifier = "{1D13445A-4CA9-4C66-9B3F-5BFE0EDADB1B}";
constexpr std::string_view leaf = "ShowToolbar";

std::string path_of_choice(const core::SharedState& shared) { return shared.general().data_folder() + "Menus.xml"; }

}  // namespace

bool toolbar_is_shown(const core::SharedState& shared) {
    const automation::Trace nobody;  // a toolbar that is not there is no failure
    bool shown = false;
    ResumeNext(nobody).assign(
        shown, [&] { return excel::Application(shared.application).CommandBars().Item(toolbar_name).Visible(); });
    return shown;
}

bool wants_toolbar(const core::SharedState& shared) {
    bool wanted = true;
    ResumeNext(shared.trace)([&] {
        const core::diBRVBLib& library = shared.general();
        const std::string path = path_of_choice(shared);
        if (!library.file_exists(path)) return;
        const automation::ObjectRef document = library.xml_load(path, identifier, "menus", version);
        const automation::ObjectRef kept = document ? library.xml_find(leaf) : nullptr;
        if (kept) wanted = automation::to_boolean(automation::get(*kept, "nodeTypedValue"));
    });
    return wanted;
}

void keep_toolbar(const core::SharedState& shared, bool shown) {
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        const core::diBRVBLib& library = shared.general();
        library.xml_clear();
        library.xml_start_document(root, version, identifier);
        library.xml_write_leaf(leaf, shown);
        static_cast<void>(library.xml_save(path_of_choice(shared)));
    });
    attempt([&] { shared.general().xml_clear(); });
}

}  // namespace kestrune::menus
