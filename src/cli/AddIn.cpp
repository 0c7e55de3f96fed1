#include "cli/AddIn.h"

#include "automation/CreateObject.h"
#include "brvblib/register_library.h"
#include "brxllib/register_library.h"
#include "cli/Failure.h"
#include "cli/InstallationFolder.h"
#include "cli/PrintingDesktop.h"
#include "cli/prefs/SetOption.h"
#include "core/iGlobal.h"
#include "core/register_add_in.h"
#include "native/services.h"
#include "settings/AutoColorCommands.h"

namespace kestrune::cli {

AddIn::AddIn(const excel::Application& application, host::Macros& macros, forms::Presenter& presenter,
             const automation::Trace& trace, brxllib::CustomFormats* formats, const std::string& preferences)
    : state_(std::make_shared<core::SharedState>(presenter, trace, installation_folder(), preferences)) {
    brvblib::Services services = native::services(trace, presenter, installation_folder());
    services.desktop = std::make_shared<PrintingDesktop>();
    brvblib::register_library(std::move(services));
    brxllib::register_library(trace, {.presenter = &presenter,
                                      .formats = formats,
                                      // The embedded Excel draws nothing: the color says what would be seen.
                                      .swatch = [](std::int32_t color) { return automation::Value(color); }});
    // One for the add-in and for those who ask what it has on record.
    const automation::ObjectRef library = automation::CreateObject("BRXLLib.iPublic");
    automation::register_class("BRXLLib.iPublic", [library] { return library; });
    undo_redo_ = automation::to_object(automation::get(*library, "iUndoRedo"));
    // On a command line a first start is nothing that anybody wants to be told about.
    state_->tells_newcomers = false;
    core::register_add_in(state_);
    public_ = automation::CreateObject("KestruneXL.iPublic");
    // The workbook that stands for the companion add-in is the one being worked on: it has no other here.
    automation::call(*public_, "NewPublic", {application.object(), application.ActiveWorkbook().object()});
    global_ = automation::to_object(automation::call(*public_, "NewGlobal"));
    if (!global_) throw Failure("the add-in did not start");
    add_macros(macros, application);
    const automation::ObjectRef general = automation::CreateObject("BRVBLib.iPublic");
    const automation::ObjectRef keys = automation::to_object(automation::get(*general, "iHotKeys"));
    hot_keys_ = automation::to_object(automation::get(*keys, "Registry"));
}

void AddIn::set_options(const std::vector<std::string>& options) {
    for (const std::string& option : options) set_option(state_->settings(), option);
    settings::hand_over_auto_color(*state_);
}

void AddIn::add_macros(host::Macros& macros, const excel::Application& application) const {
    for (const automation::Member& member : core::iGlobal::members().rows()) {
        if (!member.is_method) continue;
        // The macros stay behind when the add-in goes.
        const std::weak_ptr<automation::Object> commands = global_;
        macros.add(application.ActiveWorkbook().Name(), "mDOM." + std::string(member.name),
                   [commands, application, name = member.name](auto given) {
                       automation::Arguments arguments;
                       arguments.positional.assign(given.begin(), given.end());
                       // A menu item's action is the macro alone; the item that is clicked says which command.
                       if (given.empty() && name == "RunMacro") {
                           arguments.positional.emplace_back(application.CommandBars().ActionControl().Parameter());
                       }
                       const automation::ObjectRef object = commands.lock();
                       return object ? automation::call(*object, name, std::move(arguments)) : automation::Value();
                   });
    }
}

}  // namespace kestrune::cli
