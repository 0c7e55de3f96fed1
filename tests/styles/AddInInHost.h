#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "automation/CreateObject.h"
#include "brvblib/register_library.h"
#include "brxllib/register_library.h"
#include "core/register_add_in.h"
#include "excel/Application.h"
#include "excel/Constants.h"
#include "forms/ScriptedPresenter.h"
#include "host/objects/HostSession.h"
#include "styles/FakeExcel.h"

namespace kestrune::styles {

// The add-in as the companion workbook meets it, in front of the embedded host with an empty workbook.
struct AddInInHost : testing::Test {
    AddInInHost() {
        auto model = std::make_unique<host::Workbook>();
        model->add_sheet("Sheet1");
        workbook = &session.open(std::move(model));
        application = excel::Application(host::make_application(session));
        brvblib::register_library({.trace = trace, .presenter = presenter});
        brxllib::register_library(trace, {.presenter = &presenter});
        core::register_add_in(presenter, trace);
        start();
    }
    ~AddInInHost() override {
        stop();
        for (const char* name : {"BRVBLib.iPublic", "BRXLLib.iPublic", "KestruneXL.iPublic"}) {
            automation::unregister_class(name);
        }
    }

    void start() {
        entry = automation::CreateObject("KestruneXL.iPublic");
        automation::call(*entry, "NewPublic", {application.object(), companion});
        global = automation::to_object(automation::call(*entry, "NewGlobal"));
    }
    void stop() {
        global.reset();
        entry.reset();
    }
    // As when Excel is closed and opened again: what styles have learnt is gone.
    void restart() {
        stop();
        start();
    }

    [[nodiscard]] excel::Range cells(std::string_view address) const {
        return application.ActiveWorkbook().Worksheets().Item(1).Range(address);
    }

    void clear_formats(std::string_view address) const { automation::call(*cells(address).object(), "ClearFormats"); }

    // Sends a command request for a selection, as a key or a menu does.
    void press(std::string_view address, std::string_view request) const {
        cells(address).Select();
        EXPECT_EQ(automation::call(*global, "RunMacro", {request}), automation::Value(true));
    }

    host::HostSession session;
    host::Workbook* workbook = nullptr;
    excel::Application application;
    forms::ScriptedPresenter presenter;
    automation::Trace trace;
    std::vector<std::string> companion_log;
    std::shared_ptr<FakeObject> companion = std::make_shared<FakeObject>("Workbook", companion_log);
    automation::ObjectRef entry;
    automation::ObjectRef global;
};

// One edge as "LineStyle/Weight/ColorIndex".
inline std::string edge_of(const excel::Range& cell, std::int32_t index) {
    const excel::Border border = cell.Borders(index);
    const std::string style = automation::to_text(border.LineStyle());
    if (style == "-4142") return "-";
    return style + "/" + automation::to_text(border.Weight()) + "/" + automation::to_text(border.ColorIndex());
}

// Everything that styles write, of one cell.
inline std::string look_of(const excel::Range& cell) {
    const excel::Font font = cell.Font();
    std::string look;
    for (const automation::Value& value :
         {cell.NumberFormat(), font.Name(), font.Bold(), font.Italic(), font.Size(), font.Underline(), font.Color(),
          cell.Interior().ColorIndex(), cell.IndentLevel(), cell.HorizontalAlignment(), cell.VerticalAlignment(),
          cell.Orientation(), cell.ShrinkToFit(), cell.WrapText(), font.Strikethrough()}) {
        look += automation::to_text(value) + " ";
    }
    for (std::int32_t edge = excel::xlEdgeLeft; edge <= excel::xlEdgeRight; ++edge) look += edge_of(cell, edge) + " ";
    return look;
}

}  // namespace kestrune::styles
