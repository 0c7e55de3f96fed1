#include "cli/AddIn.h"

#include "automation/CreateObject.h"
#include "brvblib/register_library.h"
#include "brxllib/register_library.h"
#include "cli/Failure.h"
#include "cli/InstallationFolder.h"
#include "cli/PrintingDesktop.h"
#include "core/register_add_in.h"
#include "native/services.h"

namespace kestrune::cli {

AddIn::AddIn(const excel::Application& application, forms::Presenter& presenter, const automation::Trace& trace,
             brxllib::CustomFormats* formats) {
    brvblib::Services services = native::services(trace, presenter, installation_folder());
    services.desktop = std::make_shared<PrintingDesktop>();
    brvblib::register_library(std::move(services));
    brxllib::register_library(trace, {.presenter = &presenter, .formats = formats});
    core::register_add_in(presenter, trace, installation_folder());
    public_ = automation::CreateObject("KestruneXL.iPublic");
    // The workbook that stands for the companion add-in is the one being worked on: it has no other here.
    automation::call(*public_, "NewPublic", {application.object(), application.ActiveWorkbook().object()});
    global_ = automation::to_object(automation::call(*public_, "NewGlobal"));
    if (!global_) throw Failure("the add-in did not start");
}

}  // namespace kestrune::cli
