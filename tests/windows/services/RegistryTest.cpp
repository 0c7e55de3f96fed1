#include <windows.h>

#include <gmock/gmock.h>

#include <string>

#include "brvblib/LibraryTest.h"
#include "windows/services/RegistryProductStore.h"
#include "windows/services/services.h"

namespace kestrune::windows {
namespace {

using automation::Value;
using testing::EndsWith;

constexpr const wchar_t* key_name = L"Software\\Brannoch\\Kestrune Test";

struct RegistryTest : brvblib::LibraryTest {
    RegistryTest() { remove(); }
    ~RegistryTest() override { remove(); }

    static void remove() {
        for (const HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
            for (const REGSAM view : {REGSAM{KEY_WOW64_64KEY}, REGSAM{KEY_WOW64_32KEY}}) {
                ::RegDeleteKeyExW(root, key_name, view, 0);
            }
        }
    }
    static void set(HKEY root, REGSAM view, const wchar_t* name, DWORD kind, const void* data, std::size_t size) {
        HKEY key = nullptr;
        ASSERT_EQ(::RegCreateKeyExW(root, key_name, 0, nullptr, 0, KEY_SET_VALUE | view, nullptr, &key, nullptr), 0);
        EXPECT_EQ(::RegSetValueExW(key, name, 0, kind, static_cast<const BYTE*>(data), static_cast<DWORD>(size)), 0);
        ::RegCloseKey(key);
    }
    static void set_text(HKEY root, REGSAM view, const wchar_t* name, const std::wstring& text, DWORD kind = REG_SZ) {
        set(root, view, name, kind, text.data(), text.size() * sizeof(wchar_t));
    }
    static void set_number(HKEY root, const wchar_t* name, DWORD number) {
        set(root, 0, name, REG_DWORD, &number, sizeof number);
    }
};

TEST_F(RegistryTest, SetsProductValues) {
    const RegistryProductStore store("Software\\Brannoch\\Kestrune Test");
    EXPECT_EQ(store.value("TT"), Value()) << "without a key";
    set_number(HKEY_LOCAL_MACHINE, L"TT", 0);
    set_text(HKEY_LOCAL_MACHINE, 0, L"LessonPath", L"D:\\Le\u00E7ons");  // no zero at its end
    set_text(HKEY_LOCAL_MACHINE, 0, L"Expanded", L"%KESTRUNE_TEST%\\x", REG_EXPAND_SZ);
    set(HKEY_LOCAL_MACHINE, 0, L"Bytes", REG_BINARY, "abc", 3);
    set_text(HKEY_LOCAL_MACHINE, 0, L"Nothing", L"");
    ::SetEnvironmentVariableW(L"KESTRUNE_TEST", L"C:\\here");
    EXPECT_EQ(store.value("tt"), Value(0));
    EXPECT_EQ(store.value("LessonPath"), Value("D:\\Le\xC3\xA7ons"));
    EXPECT_EQ(store.value("Expanded"), Value("C:\\here\\x"));
    EXPECT_EQ(store.value("Bytes"), Value()) << "of a kind that no product value has";
    EXPECT_EQ(store.value("Nothing"), Value(""));
    EXPECT_EQ(store.value("Absent"), Value());
}

TEST_F(RegistryTest, TheMachineComesBeforeTheUser) {
    const RegistryProductStore store("Software\\Brannoch\\Kestrune Test");
    set_number(HKEY_CURRENT_USER, L"TT", 1);
    EXPECT_EQ(store.value("TT"), Value(1)) << "an installation of the user's own";
    set_number(HKEY_LOCAL_MACHINE, L"TT", 0);
    EXPECT_EQ(store.value("TT"), Value(0));
    set_text(HKEY_LOCAL_MACHINE, KEY_WOW64_32KEY, L"Other", L"half");
    EXPECT_EQ(store.value("Other"), Value("half")) << "a 32-bit installer's values";
}

TEST_F(RegistryTest, TheLibraryAnswersFromIt) {
    services.products = std::make_shared<RegistryProductStore>("Software\\Brannoch\\Kestrune Test");
    load();
    EXPECT_TRUE(wrapper.allows_training());
    EXPECT_FALSE(wrapper.shows_examples_at_start());
    set_number(HKEY_LOCAL_MACHINE, L"TT", 0);
    set_text(HKEY_LOCAL_MACHINE, 0, L"ShowExamples", L"True");
    EXPECT_FALSE(wrapper.allows_training()) << "read when asked";
    EXPECT_TRUE(wrapper.shows_examples_at_start());
}

TEST_F(RegistryTest, TheUsersFolderIsTheRoamingOne) {
    EXPECT_THAT(data_folder(), EndsWith("\\Brannoch\\Kestrune\\"));
    EXPECT_EQ(data_folder()[1], ':') << data_folder();
}

}  // namespace
}  // namespace kestrune::windows
