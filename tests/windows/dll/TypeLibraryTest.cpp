#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>

#include "idl/Identities.h"
#include "idl/libraries/libraries.h"
#include "windows/com/ComPtr.h"
#include "windows/com/Unicode.h"
#include "windows/dll/Dll.h"

namespace kestrune::windows {
namespace {

using automation::Member;
using automation::MemberTable;

GUID guid_of(std::string_view text) {
    GUID id{};
    CLSIDFromString(to_utf16(fmt::format("{{{}}}", text)).c_str(), &id);
    return id;
}

std::string text_of(BSTR text) {
    std::string result = to_utf8({text, SysStringLen(text)});
    SysFreeString(text);
    return result;
}

// "RunMacro 15 method 1-0": the name, the identifier, how it is called, the parameters and how many may be left out.
std::string row(std::string_view name, std::int32_t id, std::string_view kind, int parameters, int optional) {
    return fmt::format("{} {} {} {}-{}", name, id, kind, parameters, optional);
}

std::vector<std::string> rows_of(const MemberTable& table) {
    std::vector<std::string> rows;
    for (const Member& member : table.rows()) {
        const int count = member.parameter_count;
        const int optional = count - member.required_count;
        rows.push_back(row(member.name, member.id, member.is_method ? "method" : "get", count, optional));
        if (!member.set) continue;
        const bool by_reference = member.new_value.kind == automation::MemberType::Kind::Object;
        rows.push_back(row(member.name, member.id, by_reference ? "put-reference" : "put", count + 1, optional));
    }
    return rows;
}

std::vector<std::string> rows_of(ITypeInfo& info) {
    TYPEATTR* type = nullptr;
    EXPECT_EQ(info.GetTypeAttr(&type), S_OK);
    std::vector<std::string> rows;
    for (UINT i = 0; i < type->cFuncs; ++i) {
        FUNCDESC* function = nullptr;
        EXPECT_EQ(info.GetFuncDesc(i, &function), S_OK);
        BSTR name = nullptr;
        EXPECT_EQ(info.GetDocumentation(function->memid, &name, nullptr, nullptr, nullptr), S_OK);
        const char* kind = function->invkind == INVOKE_FUNC          ? "method"
                           : function->invkind == INVOKE_PROPERTYGET ? "get"
                           : function->invkind == INVOKE_PROPERTYPUT ? "put"
                                                                     : "put-reference";
        int optional = 0;
        for (int p = 0; p < function->cParams; ++p) {
            if (function->lprgelemdescParam[p].paramdesc.wParamFlags & PARAMFLAG_FOPT) ++optional;
        }
        const std::string text = text_of(name);
        // IDispatch's own come first.
        if (function->memid < 0x60000000) rows.push_back(row(text, function->memid, kind, function->cParams, optional));
        info.ReleaseFuncDesc(function);
    }
    info.ReleaseTypeAttr(type);
    return rows;
}

TEST(TypeLibraries, SayWhatTheMemberTablesSay) {
    int functions = 0;
    for (const idl::Library& library : idl::libraries()) {
        const Dll dll(dll_path(std::string(library.name)));
        const Registered registered(dll);
        ComPtr<ITypeLib> types;
        ASSERT_EQ(LoadRegTypeLib(guid_of(idl::library_identity(library.name)->id), 1, 0, 0, &types), S_OK);
        const auto classes = idl::classes_of(library);
        EXPECT_EQ(types->GetTypeInfoCount(), 2 * classes.size());
        for (const MemberTable* table : classes) {
            SCOPED_TRACE(fmt::format("{}.{}", library.name, table->class_name()));
            const auto* identity = idl::class_identity(library.name, table->class_name());
            ComPtr<ITypeInfo> info;
            ASSERT_EQ(types->GetTypeInfoOfGuid(guid_of(identity->interface_id), &info), S_OK);
            const auto expected = rows_of(*table);
            EXPECT_THAT(rows_of(*info.Get()), testing::UnorderedElementsAreArray(expected));
            functions += static_cast<int>(expected.size());

            ComPtr<ITypeInfo> coclass;
            ASSERT_EQ(types->GetTypeInfoOfGuid(guid_of(identity->class_id), &coclass), S_OK);
            BSTR name = nullptr;
            ASSERT_EQ(coclass->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr), S_OK);
            EXPECT_EQ(text_of(name), table->class_name());
        }
    }
    RecordProperty("functions", functions);
    EXPECT_GT(functions, 300) << "the host alone has more";
}

}  // namespace
}  // namespace kestrune::windows
