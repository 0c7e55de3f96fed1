#include <windows.h>

#include <gmock/gmock.h>

#include <filesystem>

#include "automation/MemberTable.h"
#include "brvblib/CommandTexts.h"
#include "brvblib/Paths.h"
#include "brvblib/hotkeys/fHotKeyManager.h"
#include "keys/KeyText.h"
#include "windows/TakePicture.h"
#include "windows/Win32Presenter.h"
#include "windows/forms/Hand.h"
#include "windows/services/services.h"

namespace kestrune::windows {
namespace {

using automation::Array;
using automation::Value;
using testing::HasSubstr;

// All commands of the product.
class Client : public automation::Served<Client> {
  public:
    static const automation::MemberTable& members() {
        static constexpr auto rows =
            automation::member_rows(automation::read_only<&Client::product>("BRProductName", 1),
                                    automation::method<&Client::append>("AddDefaultMacroArray", 2, "MacroArray"));
        static constexpr automation::MemberTable table("Client", rows);
        return table;
    }

  private:
    [[nodiscard]] std::string product() const { return "Kestrune"; }
    void append(Value& array) const {
        Array all(Array::Bound{0, static_cast<std::int32_t>(brvblib::command_texts.size())});
        auto place = all.elements().begin();
        for (const auto& text : brvblib::command_texts) {
            Array entry(Array::Bound{0, 5});
            entry.elements() = {std::string(text.name), std::string(text.description), std::string(text.key),
                                std::string(text.group), std::string(text.topic)};
            *place++ = entry;
        }
        array = std::move(all);
    }
};

// The manager as people see it and press keys in it; the pictures are for looking at.
struct HotKeyManager : testing::Test {
    HotKeyManager() : services(windows::services(trace, presenter, "")) {
        std::filesystem::remove_all(folder);
        services.data_folder = brvblib::with_separator(folder);
        keys = std::make_unique<brvblib::HotKeys>(services);
        keys->add_client("KestruneXL", std::make_shared<Client>());
    }
    ~HotKeyManager() override { std::filesystem::remove_all(folder); }

    void show() { brvblib::fHotKeyManager(services, *keys, "Brannoch Kestrune").Show(presenter); }
    // What an open window shows in a control, counted from 0 in its order.
    static std::string text(int control) {
        std::wstring text(300, L'\0');
        HWND window = GetDlgItem(GetActiveWindow(), 100 + control);
        text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), 300)));
        return to_utf8(text);
    }
    void press(std::vector<int> held, WPARAM key) {
        hand.then([held, key] {
            BYTE state[256] = {};
            for (const int each : held) state[each] = 0x80;
            SetKeyboardState(state);
            const bool alt = std::ranges::find(held, VK_MENU) != held.end();
            PostMessageW(GetFocus(), alt ? WM_SYSKEYDOWN : WM_KEYDOWN, key, alt ? 0x20000001 : 1);
        });
        hand.then([] {
            BYTE none[256] = {};
            SetKeyboardState(none);
        });
    }
    void expect(int control, const char* part) {
        hand.then([=] { EXPECT_THAT(text(control), HasSubstr(part)); });
    }
    void take(const char* name) {
        hand.then([] {});
        hand.then([name] { take_picture(GetActiveWindow(), std::string("build/form-") + name + ".bmp"); });
    }

    enum : std::uint8_t { lstCommands = 2, txtKey = 5, lblMeaning = 9, btnCopy = 12 };
    std::string folder = "build/hot-key-manager";
    Win32Presenter presenter{FormPlaces("")};
    automation::Trace trace;
    brvblib::Services services;
    std::unique_ptr<brvblib::HotKeys> keys;
    Hand hand;
};

TEST_F(HotKeyManager, TakesKeysAsTheyArePressed) {
    take("hot-keys");
    hand.access_key(L's');
    hand.type(L"currency smart");
    hand.access_key(L'p');
    const std::vector<std::tuple<std::vector<int>, WPARAM, const char*>> pressed{
        {{VK_CONTROL, VK_SHIFT}, '4', "Ctrl+Shift+4"},
        {{}, VK_F9, "F9"},
        {{VK_MENU}, VK_F7, "Alt+F7"},
        {{VK_CONTROL, VK_MENU}, 'K', "Ctrl+Alt+K"},
        {{VK_MENU, VK_SHIFT}, VK_OEM_PLUS, "Alt+Shift+="},
        {{VK_CONTROL}, VK_NEXT, "Ctrl+PageDown"},
        {{VK_CONTROL}, VK_RETURN, "Ctrl+Enter"},
        {{VK_CONTROL}, VK_SHIFT, "Ctrl+Enter"},  // only held
        {{}, VK_DELETE, ""},
        {{VK_CONTROL, VK_SHIFT}, 'U', "Ctrl+Shift+U"},
    };
    for (const auto& [held, key, text_shown] : pressed) {
        press(held, key);
        hand.then([text_shown = text_shown] { EXPECT_EQ(text(txtKey), text_shown); });
    }
    expect(lblMeaning, "Ctrl+Shift+U is the key of Underline SmartCycle");
    take("hot-keys-pressed");
    hand.key(VK_TAB);
    hand.key(VK_RETURN);  // Assign
    take("hot-keys-question");
    hand.key(VK_RETURN);  // Yes
    hand.then([] {});
    hand.click(btnCopy);
    hand.then([] {});
    hand.then([] {
        ASSERT_TRUE(OpenClipboard(nullptr));
        HANDLE memory = GetClipboardData(CF_UNICODETEXT);
        EXPECT_THAT(memory ? to_utf8(static_cast<const wchar_t*>(GlobalLock(memory))) : "",
                    HasSubstr("Currency SmartCycle\tCtrl+Shift+U\t"));
        CloseClipboard();
    });
    take("hot-keys-assigned");
    hand.access_key(L'p');
    hand.key(VK_RETURN);  // OK
    show();
    EXPECT_EQ(brvblib::row_of_key(keys->rows(), keys::key("Ctrl+Shift+U"))->command.id, "20");
    EXPECT_TRUE(std::filesystem::exists(folder + "/HotKeys.xml"));
}

TEST_F(HotKeyManager, LeavesNoTraceWhenCancelled) {
    hand.then([] {
        RECT place{20, 20, 1010, 760};
        SendMessageW(GetActiveWindow(), 0x02E0, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&place));
    });
    hand.access_key(L'p');
    press({VK_CONTROL, VK_SHIFT}, VK_F12);
    expect(lblMeaning, "Ctrl+Shift+F12");
    take("hot-keys-150-per-cent");
    hand.key(VK_TAB);
    hand.key(VK_RETURN);
    hand.then([] { SetWindowPos(GetActiveWindow(), nullptr, 10, 10, 10, 10, SWP_NOZORDER); });
    take("hot-keys-small");
    hand.key(VK_ESCAPE);
    show();
    EXPECT_EQ(brvblib::row_of_key(keys->rows(), keys::key("Ctrl+Shift+F12")), nullptr);
    EXPECT_FALSE(std::filesystem::exists(folder));
}

}  // namespace
}  // namespace kestrune::windows
