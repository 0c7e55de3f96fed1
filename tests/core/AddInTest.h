#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <string>

#include "automation/CreateObject.h"
#include "brvblib/register_library.h"
#include "brxllib/register_library.h"
#include "core/FakeExcel.h"
#include "core/register_add_in.h"
#include "forms/ScriptedPresenter.h"

namespace kestrune::core {

// The add-in as the companion workbook meets it, in front of a fake Excel.
struct AddInTest : testing::Test {
    AddInTest() {
        application->window = std::make_shared<fake::Window>(log);
        application->workbook = std::make_shared<fake::Workbook>("model", log);
        brvblib::register_library({.trace = trace, .presenter = presenter});
        brxllib::register_library(trace, {.presenter = &presenter});
        register_add_in(presenter, trace);
        trace.listen([this](std::string_view line) { skipped.emplace_back(line); });
    }
    ~AddInTest() override {
        for (const char* name : {"BRVBLib.iPublic", "BRXLLib.iPublic", "KestruneXL.iPublic"}) {
            automation::unregister_class(name);
        }
    }

    // Writes down every call to a library from now on, but for those that read and write documents.
    void watch(const std::string& library) {
        automation::register_class(library + ".iPublic",
                                   [this, library, real = automation::CreateObject(library + ".iPublic")] {
                                       return std::make_shared<fake::Spy>(real, library, log, callbacks);
                                   });
    }

    automation::ObjectRef create_public() { return automation::CreateObject("KestruneXL.iPublic"); }

    // Starts the add-in, with an empty log.
    void start() {
        entry = create_public();
        automation::call(*entry, "NewPublic", {application, add_in_workbook});
        global = automation::to_object(automation::call(*entry, "NewGlobal"));
        log.clear();
        skipped.clear();
    }
    bool run(automation::Value request) {
        return automation::to_boolean(automation::call(*global, "RunMacro", {std::move(request)}));
    }

    // The objects by which the watched libraries call the add-in back.
    automation::ObjectRef hot_keys() { return callbacks.at("BRVBLib.iHotKeys.Registry"); }
    automation::ObjectRef undo() { return callbacks.at("BRXLLib.iUndoRedo"); }

    fake::Log log;
    std::vector<std::string> skipped;
    automation::Trace trace;
    forms::ScriptedPresenter presenter;
    std::shared_ptr<fake::Application> application = std::make_shared<fake::Application>(log);
    std::shared_ptr<fake::Workbook> add_in_workbook = std::make_shared<fake::Workbook>("companion", log);
    fake::Callbacks callbacks;  // of watched libraries
    automation::ObjectRef entry;
    automation::ObjectRef global;
};

}  // namespace kestrune::core
