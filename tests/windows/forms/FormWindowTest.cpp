#include <windows.h>

#include <gmock/gmock.h>

#include <stdexcept>

#include "forms/SampleForm.h"
#include "windows/TakePicture.h"
#include "windows/Win32Presenter.h"
#include "windows/forms/Hand.h"

namespace kestrune::windows {
namespace {

using forms::Event;
using forms::EventCall;
using forms::SampleForm;
using testing::ElementsAre;
using testing::HasSubstr;

// Places of the sample form's controls.
enum Place {
    txtName = 1,
    optSome = 4,
    txtRows = 7,
    spnRows = 8,
    ckbBold = 9,
    cmbColor = 10,
    lstColors = 12,
    btnCancel = 18
};

struct FormWindowTest : testing::Test {
    ~FormWindowTest() override { DestroyWindow(excel); }
    [[nodiscard]] std::string focus() const {
        return form.ActiveControl() ? std::string(form.ActiveControl()->Name()) : "none";
    }
    [[nodiscard]] static HWND control(int place) { return GetDlgItem(GetActiveWindow(), 100 + place); }
    // Windows' own focus is where the form has it.
    void expect_focus(const char* name) {
        hand.then([this, name] {
            EXPECT_EQ(focus(), name);
            const auto& controls = form.controls();
            for (std::size_t i = 0; i < controls.size(); ++i) {
                if (controls[i].Name() == name) {
                    EXPECT_EQ(GetFocus(), control(static_cast<int>(i))) << name;
                }
            }
        });
    }

    HWND excel = CreateWindowExW(0, L"STATIC", L"Excel", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40, 700, 600, nullptr,
                                 nullptr, GetModuleHandleW(nullptr), nullptr);
    Win32Presenter presenter{FormPlaces("")};
    SampleForm form;
    Hand hand;
};

TEST_F(FormWindowTest, IsModalAndLooksAsItShould) {
    SetActiveWindow(excel);
    form["optSome"].Checked(true);
    form["txtName"].Text("Net working capital & cash");
    hand.then([&] {
        HWND window = GetActiveWindow();
        EXPECT_NE(window, excel);
        EXPECT_FALSE(IsWindowEnabled(excel)) << "Excel takes no input meanwhile";
        EXPECT_EQ(GetWindow(window, GW_OWNER), excel);
        RECT place{};
        GetWindowRect(window, &place);
        RECT behind{};
        GetWindowRect(excel, &behind);
        EXPECT_NEAR(place.left + place.right, behind.left + behind.right, 4) << "in front of its middle";
        // Excel goes on painting.
        InvalidateRect(excel, nullptr, TRUE);
        EXPECT_TRUE(GetUpdateRect(excel, nullptr, FALSE));
    });
    hand.then([&] {
        EXPECT_FALSE(GetUpdateRect(excel, nullptr, FALSE));
        take_picture(GetActiveWindow(), "build/form-sample.bmp");
    });
    hand.then([&] { PostMessageW(GetActiveWindow(), WM_CLOSE, 0, 0); });
    form.Show(presenter);
    EXPECT_TRUE(hand.done());
    EXPECT_TRUE(IsWindowEnabled(excel));
    EXPECT_EQ(GetActiveWindow(), excel);
    EXPECT_EQ(form.pressed(), nullptr);
}

TEST_F(FormWindowTest, IsWorkedByKeysAlone) {
    hand.type(L"Cash");
    hand.key(VK_TAB);
    expect_focus("optAll");
    hand.then([&] { EXPECT_FALSE(form["optAll"].Checked()) << "the focus alone chooses nothing"; });
    hand.key(VK_DOWN);
    expect_focus("optSome");
    hand.then([&] {
        EXPECT_TRUE(form["optSome"].Checked());
        EXPECT_EQ(SendMessageW(control(optSome), BM_GETCHECK, 0, 0), BST_CHECKED);
    });
    hand.key(VK_TAB);
    hand.key(VK_UP);
    hand.key(VK_UP);
    expect_focus("txtRows");
    hand.access_key(L'b');
    expect_focus("ckbBold");
    hand.key(VK_SPACE);
    hand.key(VK_TAB);
    hand.key(VK_DOWN);  // the combo box's own
    hand.key(VK_DOWN);
    hand.key(VK_TAB);
    hand.key(VK_DOWN);
    hand.key(VK_RETURN);
    form.Show(presenter);
    EXPECT_EQ(form["txtName"].Text(), "Cash");
    EXPECT_EQ(form["txtRows"].Text(), "2");
    EXPECT_FALSE(form["ckbBold"].Checked()) << "ticked by the access key, then by the space bar";
    EXPECT_EQ(form["cmbColor"].Text(), "Green");
    EXPECT_EQ(form["lstColors"].Text(), "Red");
    EXPECT_EQ(form.pressed(), &form["btnOK"]);
}

TEST_F(FormWindowTest, IsWorkedByMouse) {
    hand.then([&] { form.happened(); });
    hand.click(optSome);
    hand.then([&] {
        EXPECT_THAT(form.happened(), ElementsAre("txtName Exit", "optSome Enter", "optSome Change", "optSome Click",
                                                 "optSome BeforeUpdate", "optSome AfterUpdate"));
    });
    hand.click(ckbBold);
    hand.then([&] {
        EXPECT_TRUE(form["ckbBold"].Checked());
        EXPECT_EQ(SendMessageW(control(ckbBold), BM_GETCHECK, 0, 0), BST_CHECKED);
        form.cancels = "ckbBold Exit";
    });
    hand.click(txtName);
    expect_focus("ckbBold");
    hand.then([&] { form.cancels.clear(); });
    hand.click(lstColors);
    hand.then([&] { EXPECT_EQ(form["lstColors"].ListIndex(), 0); });
    hand.click(btnCancel);
    form.Show(presenter);
    EXPECT_EQ(form.pressed(), &form["btnCancel"]);
}

TEST_F(FormWindowTest, ShowsWhatCodeChanges) {
    hand.then([&] {
        form["txtName"].Text("Ünïcode");
        form["cmbColor"].List({"Black", "White"});
        form["cmbColor"].ListIndex(1);
        form["ckbBold"].Caption("Fat & bold");
        form["ckbBold"].Enabled(false);
        form["mpaMore"].ListIndex(1);
        form["txtRows"].Visible(false);
        form.Caption("Other");
        std::wstring text(40, L'\0');
        text.resize(static_cast<std::size_t>(GetWindowTextW(control(txtName), text.data(), 40)));
        EXPECT_EQ(to_utf8(text), "Ünïcode");
        EXPECT_EQ(SendMessageW(control(cmbColor), CB_GETCOUNT, 0, 0), 2);
        EXPECT_EQ(SendMessageW(control(cmbColor), CB_GETCURSEL, 0, 0), 1);
        EXPECT_FALSE(IsWindowEnabled(control(ckbBold)));
        EXPECT_FALSE(IsWindowVisible(control(txtRows)));
        EXPECT_FALSE(IsWindowVisible(control(14))) << "on the other page";
        EXPECT_TRUE(IsWindowVisible(control(15)));
        text.resize(40);
        text.resize(static_cast<std::size_t>(GetWindowTextW(GetActiveWindow(), text.data(), 40)));
        EXPECT_EQ(to_utf8(text), "Other");
    });
    hand.then([&] {
        // Larger: what stretches follows.
        RECT before{};
        GetClientRect(control(lstColors), &before);
        RECT place{};
        GetWindowRect(GetActiveWindow(), &place);
        SetWindowPos(GetActiveWindow(), nullptr, 0, 0, place.right - place.left + 90, place.bottom - place.top + 50,
                     SWP_NOMOVE | SWP_NOZORDER);
        RECT after{};
        GetClientRect(control(lstColors), &after);
        EXPECT_EQ(after.right, before.right + 90);
        EXPECT_EQ(after.bottom, before.bottom + 50);
        EXPECT_THAT(form.happened(), testing::Contains("Resize"));
    });
    hand.then([&] { take_picture(GetActiveWindow(), "build/form-sample-large.bmp"); });
    hand.key(VK_ESCAPE);
    form.Show(presenter);
    EXPECT_EQ(form.pressed(), &form["btnCancel"]);
}

TEST_F(FormWindowTest, GrowsWithTheScaleOfTheScreen) {
    hand.then([&] {
        RECT before{};
        GetClientRect(control(cmbColor), &before);
        RECT place{20, 20, 320, 680};
        SendMessageW(GetActiveWindow(), 0x02E0, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&place));
        RECT after{};
        GetClientRect(control(cmbColor), &after);
        EXPECT_NEAR(after.right, before.right * 1.5, 2);
        EXPECT_NEAR(after.bottom, before.bottom * 1.5, 4);
    });
    hand.then([] {});
    hand.then([&] { take_picture(GetActiveWindow(), "build/form-sample-150-per-cent.bmp"); });
    hand.key(VK_ESCAPE);
    form.Show(presenter);
}

TEST_F(FormWindowTest, StandsBeforeTheWindowThatAPersonSees) {
    HWND other = CreateWindowExW(0, L"STATIC", L"Other workbook", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 60, 60, 500, 400,
                                 nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    SetActiveWindow(excel);
    HWND window = nullptr;
    form.on("ckbBold", Event::Click, [&](EventCall&) {
        EnableWindow(other, TRUE);  // as one that has just come
        SetActiveWindow(other);
    });
    hand.then([&] { window = GetActiveWindow(); });
    hand.access_key(L'b');
    hand.then([] {});
    hand.then([&] {
        EXPECT_EQ(GetActiveWindow(), window);
        EXPECT_EQ(GetWindow(window, GW_OWNER), other);
        EXPECT_FALSE(IsWindowEnabled(other));
        EXPECT_EQ(focus(), "ckbBold");
    });
    hand.key(VK_ESCAPE);
    form.Show(presenter);
    EXPECT_TRUE(IsWindowEnabled(other));
    EXPECT_TRUE(IsWindowEnabled(excel));
    EXPECT_EQ(GetActiveWindow(), other);
    DestroyWindow(other);
}

TEST_F(FormWindowTest, IsFoundAgainAsThePersonLeftIt) {
    const char* const key = "Software\\Brannoch\\KestruneTests";
    Win32Presenter remembering{FormPlaces(key)};
    const auto shown = [&](const std::function<void(HWND)>& done) {
        SampleForm another;
        RECT place{};
        hand.then([&] {
            done(GetActiveWindow());
            GetWindowRect(GetActiveWindow(), &place);
        });
        hand.key(VK_ESCAPE);
        another.Show(remembering);
        return place;
    };
    const auto nothing = [](HWND) {};
    const RECT usual = shown(nothing);
    const RECT left = shown([&](HWND window) {
        SetWindowPos(window, nullptr, 130, 70, usual.right - usual.left + 60, usual.bottom - usual.top + 40,
                     SWP_NOZORDER);
        SendMessageW(window, WM_EXITSIZEMOVE, 0, 0);
    });
    const RECT found = shown(nothing);
    EXPECT_EQ(found.left, 130);
    EXPECT_EQ(found.top, 70);
    EXPECT_NEAR(found.right, left.right, 1);
    EXPECT_NEAR(found.bottom, left.bottom, 1);
    RECT screen{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
    for (const char* gone : {"-9000 5000 200 300", "90000 -4000 9000 9000", "nan 0 -1 1", "1 1 1", "5 5 nan inf", ""}) {
        const std::wstring text = to_utf16(gone);
        RegSetKeyValueW(HKEY_CURRENT_USER, to_utf16(key).c_str(), L"fSample", REG_SZ, text.c_str(),
                        static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
        const RECT place = shown(nothing);
        EXPECT_GE(place.left, screen.left) << gone;
        EXPECT_GE(place.top, screen.top) << gone;
        EXPECT_LE(place.right, screen.right) << gone;
        EXPECT_LE(place.bottom, screen.bottom) << gone;
        EXPECT_GE(place.right - place.left, usual.right - usual.left) << gone;
    }
    RegDeleteTreeW(HKEY_CURRENT_USER, to_utf16(key).c_str());
}

TEST_F(FormWindowTest, WhatAHandlerThrowsComesOut) {
    form.on("ckbBold", Event::Click, [](EventCall&) { throw std::runtime_error("no paper"); });
    hand.click(ckbBold);
    EXPECT_THROW(form.Show(presenter), std::runtime_error);
    EXPECT_TRUE(IsWindowEnabled(excel));
}

}  // namespace
}  // namespace kestrune::windows
