#include "undo_histories/World.h"

#include <fmt/format.h>

#include "automation/CreateObject.h"
#include "automation/ResumeNext.h"
#include "brvblib/register_library.h"
#include "brxllib/register_library.h"
#include "cli/diff/WorkbookDiff.h"
#include "core/register_add_in.h"
#include "undo_histories/Edits.h"

namespace kestrune::histories {

using automation::ObjectRef;

World::World(std::uint64_t seed) {
    auto model = std::make_unique<host::Workbook>();
    model->name = "It's a model.xlsx";
    for (const char* sheet : {"Model", "Inputs & Co"}) model->add_sheet(sheet);
    workbook_ = &session_.open(std::move(model));
    application_ = excel::Application(host::make_application(session_));
    Dice dice(seed);
    const int edits = dice.number(5, 30);
    for (int i = 0; i < edits; ++i) edit(random_cells(application_, dice), dice);
}

forms::MsgBoxResult Careful::answer_to(const forms::Message& message) {
    if (message.text.find("cannot be undone: ") != std::string::npos) answer_next(forms::vbCancel);
    return ScriptedPresenter::answer_to(message);
}

AddIn::AddIn(const World& world, Fault* fault) {
    // The same clock for the same history: bookmarks are named by it.
    const auto now = [second = 0]() mutable { return automation::Date{46000 + ++second / 86400.0}; };
    brvblib::register_library({.trace = trace_, .presenter = presenter_, .now = now});
    brxllib::register_library(trace_, {.presenter = &presenter_});
    core::register_add_in(presenter_, trace_);
    // The add-in's own library, since its undo is looked at from outside, too.
    const ObjectRef library = automation::CreateObject("BRXLLib.iPublic");
    automation::register_class("BRXLLib.iPublic", [library] { return library; });
    undo_redo_ = automation::to_object(automation::get(*library, "iUndoRedo"));
    entry_ = automation::CreateObject("KestruneXL.iPublic");
    const ObjectRef application = world.application().object();
    automation::call(
        *entry_, "NewPublic",
        {fault ? faulty(application, *fault) : application, world.application().ActiveWorkbook().object()});
    global_ = automation::to_object(automation::call(*entry_, "NewGlobal"));
}

AddIn::~AddIn() {
    global_.reset();
    entry_.reset();
    for (const char* name : {"BRVBLib.iPublic", "BRXLLib.iPublic", "KestruneXL.iPublic"}) {
        automation::unregister_class(name);
    }
}

std::size_t AddIn::count(std::string_view history) const {
    const automation::Value list = automation::get(*undo_redo_, history);
    return list.array()->elements().size();
}

std::vector<std::string> differences(const World& before, const World& after) {
    std::vector<std::string> lines;
    cli::compare(before.workbook(), after.workbook(), false, [&](const cli::Change& change) {
        lines.push_back(fmt::format("{} {}: {} -> {}", change.place, change.property, change.before, change.after));
    });
    return lines;
}

}  // namespace kestrune::histories
