#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "automation/CreateObject.h"
#include "brxllib/register_library.h"
#include "core/bridges/diBRXLLib.h"
#include "excel/Application.h"
#include "forms/ScriptedPresenter.h"
#include "host/objects/HostSession.h"

namespace kestrune::brxllib {

using automation::ObjectRef;
using automation::Value;

// The library as the add-in reaches it, in front of the embedded Excel with the workbook "Model.xlsx" of two sheets.
struct LibraryInHost : testing::Test {
    LibraryInHost() {
        open("Model.xlsx", "/models", {"Sheet1", "Other Sheet"});
        application = excel::Application(host::make_application(session));
        register_library(trace, {.presenter = &presenter});
        library = std::make_unique<core::diBRXLLib>(trace);
        EXPECT_TRUE(library->Create());
        library->set_application(application.object());
    }
    ~LibraryInHost() override {
        library.reset();
        automation::unregister_class("BRXLLib.iPublic");
    }

    // Opens a workbook; the last one opened is active.
    host::Workbook& open(std::string name, std::string path, const std::vector<std::string>& sheets) {
        auto model = std::make_unique<host::Workbook>();
        model->name = std::move(name);
        model->path = std::move(path);
        for (const std::string& sheet : sheets) model->add_sheet(sheet);
        return session.open(std::move(model));
    }

    [[nodiscard]] excel::Workbook book(std::string_view name = "Model.xlsx") const {
        return application.Workbooks().Item(name);
    }
    // Cells of a sheet of Model.xlsx.
    [[nodiscard]] excel::Range cells(std::string_view address, std::string_view sheet = "Sheet1") const {
        return book().Worksheets().Item(sheet).Range(address);
    }
    void write(std::string_view address, Value content) const { cells(address).Formula(std::move(content)); }
    static std::string address_of(const ObjectRef& range) {
        return range ? excel::Range(range).Address() : std::string("Nothing");
    }

    // How many automation calls a statement makes to Excel.
    template <class Statement>
    std::int64_t calls_of(Statement&& statement) const {
        const std::int64_t before = session.calls();
        statement();
        return session.calls() - before;
    }

    host::HostSession session;
    excel::Application application;
    forms::ScriptedPresenter presenter;
    automation::Trace trace;
    std::unique_ptr<core::diBRXLLib> library;
};

}  // namespace kestrune::brxllib
