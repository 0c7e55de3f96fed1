#include <windows.h>

#include <commctrl.h>
#include <gmock/gmock.h>

#include "automation/CreateObject.h"
#include "brvblib/register_library.h"
#include "brxllib/register_library.h"
#include "core/bridges/SharedState.h"
#include "excel/Application.h"
#include "excel/Constants.h"
#include "excel/Worksheet.h"
#include "host/objects/HostSession.h"
#include "smart/trace/SmartTrace.h"
#include "windows/TakePicture.h"
#include "windows/Win32Presenter.h"
#include "windows/forms/Hand.h"

namespace kestrune::windows {
namespace {

// The dialogs of references as people see them and work them by keys; the pictures are for looking at.
struct TraceDialogs : testing::Test {
    TraceDialogs() {
        auto model = std::make_unique<host::Workbook>();
        model->name = "Model.xlsx";
        for (const char* sheet : {"Income Statement", "Rates", "Secret"}) model->add_sheet(sheet);
        session.open(std::move(model));
        application = excel::Application(host::make_application(session));
        at("Secret", "A1").Worksheet().Visible(0);
        automation::call(*application.ActiveWorkbook().Names().object(), "Add", {"TaxRate", "=Rates!$C$4"});
        brvblib::register_library({.trace = trace, .presenter = presenter});
        brxllib::register_library(trace, {.presenter = &presenter});
        state.general_library = std::make_shared<core::diBRVBLib>(trace);
        state.general_library->Create();
        state.spreadsheet_library = std::make_shared<core::diBRXLLib>(trace);
        state.spreadsheet_library->Create();
        state.spreadsheet_library->set_application(application.object());
        state.application = application.object();
    }
    ~TraceDialogs() override {
        automation::unregister_class("BRVBLib.iPublic");
        automation::unregister_class("BRXLLib.iPublic");
    }
    [[nodiscard]] excel::Range at(const char* sheet, std::string_view address) const {
        return application.ActiveWorkbook().Worksheets().Item(sheet).Range(address);
    }
    [[nodiscard]] std::string where() const {
        return excel::Range(application.Selection()).Address(false, false, excel::xlA1, true);
    }
    void take(const char* name) {
        hand.then([] {});
        hand.then([name] { take_picture(GetActiveWindow(), std::string("build/form-") + name + ".bmp"); });
    }
    void expect_at(const char* place) {
        hand.then([this, place] { EXPECT_EQ(where(), place); });
    }
    void resize(int width, int height) {
        hand.then([=] {
            SetWindowPos(GetActiveWindow(), nullptr, 30, 30, width, height, SWP_NOZORDER);
            SendMessageW(GetActiveWindow(), WM_EXITSIZEMOVE, 0, 0);
        });
    }

    Win32Presenter presenter{FormPlaces("")};
    automation::Trace trace;
    host::HostSession session;
    excel::Application application;
    core::SharedState state{presenter, trace};
    Hand hand;
};

TEST_F(TraceDialogs, SmartPrecedents) {
    at("Rates", "C4").Value(0.25);
    at("Rates", "C4").NumberFormat("0.00%");
    at("Income Statement", "D12").Value(1250);
    at("Income Statement", "D14").Formula("=IF(D12>0,\nD12*TaxRate+SUM($A:$A),\nMAX(Rates!$B$2:$B$9)+Secret!A1)");
    at("Income Statement", "D14").Select();
    take("smart-precedents");
    hand.then([] {
        std::wstring text(80, L'\0');
        text.resize(static_cast<std::size_t>(GetWindowTextW(GetActiveWindow(), text.data(), 80)));
        EXPECT_EQ(to_utf8(text), "BR Kestrune -- Smart Precedents (sizable)");
        HWND formula = GetDlgItem(GetActiveWindow(), 103);
        DWORD from = 0;
        DWORD to = 0;
        SendMessageW(formula, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
        EXPECT_EQ(from, 4U);
        EXPECT_EQ(to, 7U);
    });
    expect_at("'[Model.xlsx]Income Statement'!D12");
    for (int i = 0; i < 2; ++i) hand.key(VK_DOWN);
    expect_at("[Model.xlsx]Rates!C4");
    take("smart-precedents-name");
    hand.key(VK_END);
    take("smart-precedents-hidden");
    resize(10, 10);
    take("smart-precedents-small");
    resize(900, 600);
    take("smart-precedents-large");
    hand.key(VK_UP);
    hand.key(VK_RETURN);
    smart::SmartPrecedents(state, 0);
    EXPECT_EQ(where(), "[Model.xlsx]Rates!B2:B9");
}

TEST_F(TraceDialogs, SmartPrecedentsOfNothingAndOfClosedWorkbooks) {
    at("Income Statement", "B3").Select();
    take("smart-precedents-empty");
    hand.key(VK_RETURN);
    smart::SmartPrecedents(state, 0);
    EXPECT_EQ(where(), "'[Model.xlsx]Income Statement'!B3");
    at("Income Statement", "B3").Formula("=B2*'C:\\rates\\[FX.xlsx]Spot'!$B$7");
    take("smart-precedents-question");
    hand.key(VK_RETURN);  // Yes
    take("smart-precedents-not-opened");
    hand.key(VK_RETURN);
    hand.key(VK_DOWN);
    take("smart-precedents-closed");
    hand.key(VK_RETURN);
    take("smart-precedents-chosen-question");
    hand.then([] {
        // No
        PostMessageW(GetActiveWindow(), WM_COMMAND, IDNO, 0);
    });
    hand.then([] {});
    hand.key(VK_UP);  // the focus is in the list again
    expect_at("'[Model.xlsx]Income Statement'!B2");
    hand.key(VK_ESCAPE);
    smart::SmartPrecedents(state, 0);
    EXPECT_EQ(where(), "'[Model.xlsx]Income Statement'!B3");
}

TEST_F(TraceDialogs, SmartDependents) {
    at("Income Statement", "F1:F12000").Formula("=$B$3*ROW()");
    at("Rates", "C2:C9").Formula("=IF('Income Statement'!$B$3>0,A2,'Income Statement'!B2:B5)");
    at("Income Statement", "B3").Select();
    take("smart-dependents");
    hand.key(VK_END);
    expect_at("[Model.xlsx]Rates!C9");
    hand.key(VK_HOME);
    expect_at("'[Model.xlsx]Income Statement'!F1");
    take("smart-dependents-thousands");
    hand.access_key(L's');
    hand.key(VK_DOWN);
    hand.key(VK_DOWN);
    expect_at("[Model.xlsx]Rates!C2");
    take("smart-dependents-sheet");
    hand.key(VK_TAB);
    hand.type(L"rates!c5");
    expect_at("[Model.xlsx]Rates!C5");
    hand.key(VK_ESCAPE);
    smart::SmartDependents(state, 0);
    EXPECT_EQ(where(), "'[Model.xlsx]Income Statement'!B3");
}

}  // namespace
}  // namespace kestrune::windows
