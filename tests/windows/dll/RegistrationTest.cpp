#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "idl/Identities.h"
#include "windows/com/Unicode.h"
#include "windows/dll/Dll.h"
#include "windows/dll/Registry.h"

namespace kestrune::windows {
namespace {

std::wstring braced(std::string_view id) {
    std::wstring text = L"{" + to_utf16(id) + L"}";
    CharUpperW(text.data());
    return text;
}

// What a DLL is called in the registry.
struct Names {
    explicit Names(const std::string& library, const std::string& created = "iPublic")
        : prog_id(to_utf16(library + "." + created)),
          class_id(braced(idl::class_identity(library, created)->class_id)),
          interface_id(braced(idl::class_identity(library, created)->interface_id)),
          library_id(braced(idl::library_identity(library)->id)) {}
    std::wstring prog_id, class_id, interface_id, library_id;
};

// Where the DLLs may be registered, and how.
struct Place {
    const char* name;
    HKEY hive;
    const wchar_t* command_line;  // DllInstall's; null for DllRegisterServer

    [[nodiscard]] HRESULT add(const Dll& dll) const {
        return command_line ? dll.install(true, command_line) : dll.add_for_machine();
    }
    [[nodiscard]] HRESULT remove(const Dll& dll) const {
        return command_line ? dll.install(false, command_line) : dll.remove_for_machine();
    }
};
const Place machine{"machine", HKEY_LOCAL_MACHINE, nullptr};
const Place machine_by_install{"machine by DllInstall", HKEY_LOCAL_MACHINE, L""};
const Place user{"user", HKEY_CURRENT_USER, L"user"};

std::vector<std::wstring> differences(const RegistryPicture& before, const RegistryPicture& after) {
    std::vector<std::wstring> found;
    for (const auto& [name, value] : after) {
        if (const auto old = before.find(name); old == before.end() || old->second != value) {
            found.push_back(L"+ " + name);
        }
    }
    for (const auto& [name, value] : before) {
        if (!after.contains(name)) found.push_back(L"- " + name);
    }
    return found;
}

TEST(Registration, SaysWhatComNeedsAndTakesItBackToTheLastKey) {
    for (const auto* library : {"KestruneXL", "BRVBLib", "BRXLLib"}) {
        const Dll dll(dll_path(library));
        const Names names(library);
        for (const Place& place : {machine, machine_by_install, user}) {
            SCOPED_TRACE(std::string(library) + " for " + place.name);
            const RegistryPicture before = classes_of(place.hive);
            ASSERT_EQ(place.add(dll), S_OK);
            const std::wstring key = L"CLSID\\" + names.class_id;
            const std::wstring path = dll.path().wstring();
            EXPECT_EQ(text_at(place.hive, names.prog_id + L"\\CLSID"), names.class_id);
            EXPECT_EQ(text_at(place.hive, key + L"\\ProgID"), names.prog_id);
            EXPECT_EQ(text_at(place.hive, key + L"\\TypeLib"), names.library_id);
            EXPECT_EQ(lstrcmpiW(text_at(place.hive, key + L"\\InprocServer32").c_str(), path.c_str()), 0)
                << to_utf8(text_at(place.hive, key + L"\\InprocServer32"));
            EXPECT_EQ(text_at(place.hive, key + L"\\InprocServer32", L"ThreadingModel"), L"Apartment");
            EXPECT_EQ(lstrcmpiW(text_at(place.hive, L"TypeLib\\" + names.library_id + L"\\1.0\\0\\win64").c_str(),
                                path.c_str()),
                      0);
            EXPECT_EQ(text_at(place.hive, L"Interface\\" + names.interface_id + L"\\TypeLib"), names.library_id);
            ASSERT_EQ(place.add(dll), S_OK) << "a second time";
            EXPECT_EQ(place.remove(dll), S_OK);
            EXPECT_THAT(differences(before, classes_of(place.hive)), testing::IsEmpty());
            EXPECT_EQ(place.remove(dll), S_OK) << "when nothing is left";
        }
    }
}

TEST(Registration, TakesBackWhatIsLeftOfIt) {
    const Dll dll(dll_path("BRVBLib"));
    const Names names("BRVBLib");
    for (const std::wstring& lost :
         {L"CLSID\\" + names.class_id, names.prog_id, L"TypeLib\\" + names.library_id,
          L"TypeLib\\" + names.library_id + L"\\1.0\\0", L"Interface\\" + names.interface_id + L"\\TypeLib"}) {
        SCOPED_TRACE(to_utf8(lost));
        const RegistryPicture before = classes_of(HKEY_CURRENT_USER);
        ASSERT_EQ(user.add(dll), S_OK);
        remove_tree(HKEY_CURRENT_USER, lost);
        EXPECT_EQ(user.remove(dll), S_OK);
        EXPECT_THAT(differences(before, classes_of(HKEY_CURRENT_USER)), testing::IsEmpty());
    }
}

TEST(Registration, LeavesWhatIsNotItsOwn) {
    const Dll dll(dll_path("BRVBLib"));
    const Names names("BRVBLib");
    const std::wstring library = L"TypeLib\\" + names.library_id;
    const RegistryPicture before = classes_of(HKEY_CURRENT_USER);
    ASSERT_EQ(user.add(dll), S_OK);
    const std::wstring other_class = L"{11111111-2222-3333-4444-555555555555}";
    write_text(HKEY_CURRENT_USER, names.prog_id + L"\\CLSID", other_class);
    write_text(HKEY_CURRENT_USER, library + L"\\7.0\\0\\win64", L"other.dll");
    write_text(HKEY_CURRENT_USER, library + L"\\1.0\\0\\win32", L"narrow.dll");
    EXPECT_EQ(user.remove(dll), S_OK);
    EXPECT_EQ(text_at(HKEY_CURRENT_USER, names.prog_id + L"\\CLSID"), other_class);
    EXPECT_EQ(text_at(HKEY_CURRENT_USER, library + L"\\7.0\\0\\win64"), L"other.dll");
    EXPECT_EQ(text_at(HKEY_CURRENT_USER, library + L"\\1.0\\0\\win32"), L"narrow.dll");
    EXPECT_FALSE(is_there(HKEY_CURRENT_USER, library + L"\\1.0\\0\\win64"));
    EXPECT_FALSE(is_there(HKEY_CURRENT_USER, L"CLSID\\" + names.class_id));
    remove_tree(HKEY_CURRENT_USER, names.prog_id);
    remove_tree(HKEY_CURRENT_USER, library);
    EXPECT_EQ(user.remove(dll), S_OK);
    EXPECT_THAT(differences(before, classes_of(HKEY_CURRENT_USER)), testing::IsEmpty());
}

TEST(Registration, IsUndoneWhenAKeyCannotBeMade) {
    const Dll dll(dll_path("BRVBLib"));
    const Names names("BRVBLib");
    const RegistryPicture before = classes_of(HKEY_CURRENT_USER);
    // Written near the end: most of the rest is there by then.
    make_volatile(HKEY_CURRENT_USER, L"Interface\\" + names.interface_id);
    EXPECT_EQ(user.add(dll), HRESULT_FROM_WIN32(ERROR_CHILD_MUST_BE_VOLATILE));
    EXPECT_THAT(differences(before, classes_of(HKEY_CURRENT_USER)), testing::IsEmpty());
}

TEST(Registration, RefusesInstallationsThatItDoesNotKnow) {
    const Dll dll(dll_path("BRVBLib"));
    const RegistryPicture before = classes_of(HKEY_CURRENT_USER);
    EXPECT_EQ(dll.install(true, L"everybody"), E_INVALIDARG);
    EXPECT_EQ(dll.install(false, L"everybody"), E_INVALIDARG);
    EXPECT_THAT(differences(before, classes_of(HKEY_CURRENT_USER)), testing::IsEmpty());
}

}  // namespace
}  // namespace kestrune::windows
