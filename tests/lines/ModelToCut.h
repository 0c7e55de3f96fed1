#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cli/diff/WorkbookDiff.h"
#include "styles/AddInInHost.h"

namespace kestrune::lines {

// The add-in before two open workbooks: a small model that depends on its rows and columns in every way, and one that
// looks into it. Beside it the same as it was at first.
struct ModelToCut : styles::AddInInHost {
    ModelToCut() {
        stop();
        const automation::ObjectRef library = automation::CreateObject("BRXLLib.iPublic");
        automation::register_class("BRXLLib.iPublic", [library] { return library; });
        undo_redo = automation::to_object(automation::get(*library, "iUndoRedo"));
        start();
        looking = &fill(session, *workbook, application);
        auto model = std::make_unique<host::Workbook>();
        model->add_sheet("Sheet1");
        first = &first_session.open(std::move(model));
        first_looking = &fill(first_session, *first, excel::Application(host::make_application(first_session)));
    }
    void TestBody() override {}

    void undo() const { automation::call(*global, "BRUndo"); }
    void redo() const { automation::call(*global, "BRRedo"); }
    [[nodiscard]] std::vector<std::string> history(std::string_view member) const {
        std::vector<std::string> texts;
        const automation::Value answer = automation::get(*undo_redo, member);
        for (const automation::Value& text : answer.array()->elements()) texts.push_back(automation::to_text(text));
        return texts;
    }
    [[nodiscard]] std::vector<std::string> messages() const {
        std::vector<std::string> texts;
        for (const forms::Message& message : presenter.messages()) texts.push_back(message.text);
        return texts;
    }
    // What is not as it was at first.
    [[nodiscard]] std::vector<std::string> changes() const {
        std::vector<std::string> lines;
        const auto tell = [&](const cli::Change& change) {
            lines.push_back(change.place + " " + change.property + ": " + change.before + " -> " + change.after);
        };
        cli::compare(*first, *workbook, false, tell);
        cli::compare(*first_looking, *looking, false, tell);
        return lines;
    }

    automation::ObjectRef undo_redo;
    host::Workbook* looking = nullptr;
    host::HostSession first_session;
    host::Workbook* first = nullptr;
    host::Workbook* first_looking = nullptr;

  private:
    static host::Workbook& fill(host::HostSession& session, host::Workbook& model,
                                const excel::Application& application) {
        model.name = "Model.xlsx";
        model.add_sheet("Other");
        const excel::Worksheet sheet = application.ActiveWorkbook().Worksheets().Item(1);
        const auto at = [&](const char* address) { return sheet.Range(address); };
        at("A1").Value("Title");
        at("A1:C1").MergeCells(true);
        at("B2:C8").Formula("=ROW()+A2");
        at("B9:C9").Formula("=SUM(B4:B6)+B$2");
        at("D7").Formula("=$B$4+SUM(C5:C9)+A$7");
        at("D8").Formula("=SUM(B2:B8)+'Other'!A1");
        at("E2:E3").FormulaArray("=B4:B5*2");
        at("G12:H15").Value(3);
        at("B5:C5").NumberFormat("0.00%");
        at("D5:E6").MergeCells(true);
        at("D5").Value("merged");
        at("3:3").RowHeight(30.0);
        at("7:7").Hidden(true);
        at("C:C").ColumnWidth(20.0);
        at("4:4").Interior().Color(0xFFFF);
        at("B4:B6").Borders(excel::xlEdgeBottom).LineStyle(1);
        at("8:8").Group();
        automation::call(*at("B2:B9").FormatConditions().object(), "Add", {excel::xlCellValue, 5, "=$B$4"});
        automation::call(*at("C5:C6").FormatConditions().object(), "Add", {excel::xlCellValue, 6, "=1"});
        automation::call(*at("J3:J1048576").FormatConditions().object(), "Add", {excel::xlCellValue, 5, "=7"});
        const excel::Names names = application.ActiveWorkbook().Names();
        names.Add("Whole", "=Sheet1!$B$2:$B$9");
        names.Add("Gone", "=Sheet1!$B$4:$C$5");
        application.ActiveWorkbook().Worksheets().Item(2).Range("A1:A3").Formula("=SUM(Sheet1!B4:C6)+Sheet1!B9");
        auto second = std::make_unique<host::Workbook>();
        second->add_sheet("Looking");
        second->name = "Looking.xlsx";
        host::Workbook& looking = session.open(std::move(second));
        application.ActiveWorkbook().Worksheets().Item(1).Range("A1").Formula("=[Model.xlsx]Sheet1!$B$4*2");
        session.activate(model);
        return looking;
    }
};

}  // namespace kestrune::lines
