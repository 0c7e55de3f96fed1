#include <gtest/gtest.h>

#include <objbase.h>

#include "automation/Conversion.h"
#include "automation/CreateObject.h"
#include "idl/Identities.h"
#include "windows/com/ComClasses.h"
#include "windows/com/ComPtr.h"
#include "windows/com/Unicode.h"
#include "windows/dll/Dll.h"

namespace kestrune::windows {
namespace {

struct Classes : testing::Test {
    Classes() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~Classes() override { CoUninitialize(); }

    static GUID guid_of(std::string_view text) {
        GUID id{};
        CLSIDFromString((L"{" + to_utf16(text) + L"}").c_str(), &id);
        return id;
    }
    static ComPtr<IDispatch> create(const wchar_t* prog_id) {
        CLSID id{};
        ComPtr<IDispatch> object;
        EXPECT_EQ(CLSIDFromProgID(prog_id, &id), S_OK);
        EXPECT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&object)), S_OK);
        return object;
    }
};

TEST_F(Classes, AreMadeByTheirProgIdsAndKeepTheirDllLoaded) {
    for (const std::string library : {"KestruneXL", "BRVBLib", "BRXLLib"}) {
        SCOPED_TRACE(library);
        const Dll dll(dll_path(library));
        const Registered registered(dll);
        EXPECT_EQ(dll.can_unload_now(), S_OK);
        {
            const auto object = create(to_utf16(library + ".iPublic").c_str());
            ASSERT_TRUE(object);
            EXPECT_EQ(dll.can_unload_now(), S_FALSE);

            // What Dim p As KestruneXL.iPublic asks for.
            ComPtr<IDispatch> early;
            const GUID interface_id = guid_of(idl::class_identity(library, "iPublic")->interface_id);
            EXPECT_EQ(object->QueryInterface(interface_id, reinterpret_cast<void**>(early.GetAddressOf())), S_OK);
            ComPtr<ITypeInfo> info;
            ASSERT_EQ(object->GetTypeInfo(0, LCID{1033}, &info), S_OK);
            TYPEATTR* type = nullptr;
            ASSERT_EQ(info->GetTypeAttr(&type), S_OK);
            EXPECT_TRUE(type->guid == interface_id);
            info->ReleaseTypeAttr(type);

            ComPtr<IUnknown> stranger;
            EXPECT_EQ(object->QueryInterface(IID_IStream, reinterpret_cast<void**>(stranger.GetAddressOf())),
                      E_NOINTERFACE);
        }
        EXPECT_EQ(dll.can_unload_now(), S_OK);
    }
}

TEST_F(Classes, ThatOthersAnswerCannotBeCreated) {
    const Dll dll(dll_path("KestruneXL"));
    const Registered registered(dll);
    ComPtr<IDispatch> object;
    const GUID id = guid_of(idl::class_identity("KestruneXL", "iGlobal")->class_id);
    EXPECT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&object)), REGDB_E_CLASSNOTREG);
}

TEST_F(Classes, AreFoundWhereverTheirDllLies) {
    const auto folder = dll_path("BRVBLib").parent_path() / L"Gr\u00f6\u00dfe und \u6a21\u578b (1)";
    std::filesystem::create_directories(folder);
    std::filesystem::copy_file(dll_path("BRVBLib"), folder / "BRVBLib.dll",
                               std::filesystem::copy_options::overwrite_existing);
    {
        const Dll dll(folder / "BRVBLib.dll");
        const Registered registered(dll);
        const auto object = create(L"BRVBLib.iPublic");
        ASSERT_TRUE(object);
        EXPECT_EQ(dll.can_unload_now(), S_FALSE) << "another DLL answered";
        ComPtr<ITypeLib> types;
        EXPECT_EQ(LoadRegTypeLib(guid_of(idl::library_identity("BRVBLib")->id), 1, 0, 0, &types), S_OK);
    }
    CoFreeUnusedLibrariesEx(0, 0);  // at once, where COM waits ten minutes for another object
    std::filesystem::remove_all(folder);
}

TEST_F(Classes, ThatNobodyRegisteredAreNamed) {
    try {
        create_com_object("BRVBLib.iPublic");
        FAIL() << "made an object of an unregistered class";
    } catch (const automation::AutomationError& error) {
        EXPECT_EQ(error.code(), automation::hresult::class_not_registered);
        EXPECT_EQ(error.member(), "BRVBLib.iPublic");
    }
}

}  // namespace
}  // namespace kestrune::windows
