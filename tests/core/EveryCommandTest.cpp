#include <functional>
#include <set>

#include "core/CommandTable.h"
#include "styles/AddInInHost.h"

namespace kestrune::core {
namespace {

using automation::Value;

// A small model with a chart sheet behind it.
struct EveryCommand : styles::AddInInHost {
    // Anew, in place of what was open.
    void open_model() {
        while (session.active()) session.close(*session.active()->model);
        auto model = std::make_unique<host::Workbook>();
        model->add_sheet("Sheet1");
        workbook = &session.open(std::move(model));
        workbook->add_sheet("Second");
        workbook->add_sheet("Chart", host::SheetKind::Chartsheet);
        cells("A1").Value("Revenue");
        cells("B1:E1").Value(2024);
        cells("B2:E9").Formula("=B1*1.05");
        cells("B4:E4").NumberFormat("#,##0.0_);(#,##0.0)");
        cells("C:C").NumberFormat("0.0%");
        cells("7:7").Font().Size(14);
        cells("D3").Value(1.5);
        cells("B11:C12").MergeCells(true);
        automation::put(*cells("G2:G4").object(), "FormulaArray", "=B2:B4*2");
    }

    // What a command leaves as it found it.
    [[nodiscard]] std::string state() const {
        std::string text = automation::to_text(Value(application.ScreenUpdating())) + " " +
                           std::to_string(application.Calculation()) + " " +
                           automation::to_text(automation::get(*application.object(), "CutCopyMode"));
        const automation::ObjectRef selected = application.Selection();
        return text + (excel::Range::is(selected) ? " " + excel::Range(selected).Address() : " none");
    }
    void protect() const { workbook->sheet("Sheet1")->protection().on = true; }
    void activate(const char* sheet) const {
        const automation::ObjectRef sheets =
            automation::to_object(automation::get(*application.ActiveWorkbook().object(), "Sheets"));
        automation::call(*automation::to_object(automation::get(*sheets, "Item", {sheet})), "Activate");
    }
};

TEST_F(EveryCommand, LeavesExcelAsItFoundIt) {
    const std::pair<const char*, std::function<void()>> situations[] = {
        {"a cell", [&] { cells("D3").Select(); }},
        {"a block", [&] { cells("A1:E9").Select(); }},
        {"half a merged area and half an array", [&] { cells("C11:G12,G2:G3").Select(); }},
        {"empty cells", [&] { cells("J20:K30").Select(); }},
        {"whole rows", [&] { cells("2:4").Select(); }},
        {"whole columns", [&] { cells("B:D").Select(); }},
        {"the whole sheet", [&] { cells("1:1048576").Select(); }},
        {"several areas", [&] { cells("A1:B3,D2,C5:E9").Select(); }},
        {"a protected sheet",
         [&] {
             cells("A1:E9").Select();
             protect();
         }},
        {"a chart", [&] { activate("Chart"); }},
        {"no workbook", [&] { session.close(*workbook); }},
    };
    // Those whose purpose it is to select something, or to move what is selected.
    const std::set<std::int32_t> selecting{7, 8, 10, 11, 13, 14, 63, 64, 65, 66, 91, 92};
    for (const Command& command : commands()) {
        ASSERT_TRUE(command.body != nullptr) << command.number;
        const std::string request = std::to_string(command.number);
        for (const auto& [situation, prepare] : situations) {
            SCOPED_TRACE(request + " with " + situation);
            open_model();
            prepare();
            const std::string before = state();
            EXPECT_NO_THROW(automation::call(*global, "RunMacro", {request}));
            if (!selecting.contains(command.number)) {
                EXPECT_EQ(state(), before);
            }
        }
    }
}

}  // namespace
}  // namespace kestrune::core
