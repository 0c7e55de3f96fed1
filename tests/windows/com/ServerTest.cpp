// Our objects as somebody else's client sees them.
#include "windows/com/ComServer.h"

#include <gmock/gmock.h>
#include <ocidl.h>

#include "RawCall.h"
#include "Sample.h"
#include "windows/com/ClassFactory.h"
#include "windows/com/Module.h"
#include "windows/com/Objects.h"
#include "windows/com/TypeInfoSource.h"

namespace kestrune::windows {
namespace {

enum Id : DISPID { item = 0, held, echo, list, change, fail, add, count, self, keep };
constexpr WORD method = DISPATCH_METHOD;
constexpr WORD get = DISPATCH_PROPERTYGET;
constexpr WORD put = DISPATCH_PROPERTYPUT;
constexpr WORD put_reference = DISPATCH_PROPERTYPUTREF;
constexpr DISPID value_of_put = DISPID_PROPERTYPUT;

class Server : public testing::Test {
  protected:
    void TearDown() override {
        server.Reset();
        object.reset();
        EXPECT_EQ(Module::count(), 0);
    }

    std::shared_ptr<Sample> object = std::make_shared<Sample>();
    ComPtr<IDispatch> server = dispatch_of(object);
};

VARIANT text(const wchar_t* value) {
    static std::vector<Variant> kept;
    kept.push_back(to_variant(to_utf8(value)));
    return kept.back().raw();
}

TEST_F(Server, AnswersEveryWrongCallInItsOwnWay) {
    struct Row {
        const char* what;
        DISPID id;
        WORD flags;
        std::vector<VARIANT> arguments;
        std::vector<DISPID> named;
        HRESULT result;
        UINT wrong = 99;  // untouched
    };
    VARIANT record = number(0);
    V_VT(&record) = VT_RECORD;
    const Row rows[] = {
        {"as it should be", add, method, {number(1), number(2)}, {}, S_OK},
        {"a property read as either", count, method | get, {}, {}, S_OK},
        {"a method called as either", add, method | get, {number(1), number(2)}, {}, S_OK},
        {"set by reference", held, put_reference, {number(1)}, {value_of_put}, S_OK},
        {"set in either way", held, put | put_reference, {number(1)}, {value_of_put}, S_OK},
        {"the default member", DISPID_VALUE, get, {number(2)}, {}, S_OK},
        {"no such identifier", 77, method, {}, {}, DISP_E_MEMBERNOTFOUND},
        {"no such special identifier", DISPID_EVALUATE, method, {}, {}, DISP_E_MEMBERNOTFOUND},
        {"a method read", add, get, {number(1), number(2)}, {}, DISP_E_MEMBERNOTFOUND},
        {"a method written", add, put, {number(1)}, {value_of_put}, DISP_E_MEMBERNOTFOUND},
        {"a read-only property written", count, put, {number(1)}, {value_of_put}, DISP_E_MEMBERNOTFOUND},
        {"no kind of call", add, 0, {number(1), number(2)}, {}, E_INVALIDARG},
        {"an unknown kind of call", add, 0x4000, {number(1), number(2)}, {}, E_INVALIDARG},
        {"too few", add, method, {number(1)}, {}, DISP_E_PARAMNOTOPTIONAL},
        {"a required one missing", add, method, {missing(), number(1)}, {}, DISP_E_PARAMNOTOPTIONAL},
        {"too many", add, method, {number(1), number(2), number(3)}, {}, DISP_E_BADPARAMCOUNT},
        {"given twice", add, method, {number(1), number(2), number(3)}, {0}, DISP_E_BADPARAMCOUNT},
        {"no such name", add, method, {number(1), number(2)}, {9}, DISP_E_PARAMNOTFOUND},
        {"a negative name", add, method, {number(1), number(2)}, {-9}, DISP_E_PARAMNOTFOUND},
        {"more names than arguments", add, method, {number(1)}, {0, 1}, E_INVALIDARG},
        {"a text for a number, first", add, method, {number(1), text(L"x")}, {}, DISP_E_TYPEMISMATCH, 1},
        {"a text for a number, second", add, method, {text(L"x"), number(1)}, {}, DISP_E_TYPEMISMATCH, 0},
        {"a text for a number, by name", add, method, {number(1), text(L"x")}, {0, 1}, DISP_E_TYPEMISMATCH, 1},
        {"a number too large", fail, method, {text(L"1e10")}, {}, DISP_E_OVERFLOW, 0},
        {"a type without meaning", echo, method, {record}, {}, DISP_E_TYPEMISMATCH, 0},
        {"a writing without its value", held, put, {}, {}, DISP_E_PARAMNOTOPTIONAL},
        {"a writing whose value is not named", held, put, {number(1)}, {}, DISP_E_PARAMNOTOPTIONAL},
        {"a reference to nothing", echo, method, {reference(VT_I4, nullptr)}, {}, DISP_E_TYPEMISMATCH, 0},
        {"a reference to no VARIANT", echo, method, {reference(VT_VARIANT, nullptr)}, {}, DISP_E_TYPEMISMATCH, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        RawCall call{row.id, row.flags, row.arguments, row.named};
        EXPECT_EQ(static_cast<ULONG>(call(server.Get())), static_cast<ULONG>(row.result));
        EXPECT_EQ(call.wrong, row.wrong);
        EXPECT_EQ(call.info.bstrDescription, nullptr);
    }
    DISPPARAMS none{};
    EXPECT_EQ(server->Invoke(count, IID_IUnknown, lcid, get, &none, nullptr, nullptr, nullptr),
              DISP_E_UNKNOWNINTERFACE);
    EXPECT_EQ(server->Invoke(count, IID_NULL, lcid, get, nullptr, nullptr, nullptr, nullptr), E_INVALIDARG);
    EXPECT_EQ(server->Invoke(count, IID_NULL, lcid, get, &none, nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(server->Invoke(fail, IID_NULL, lcid, method, &none, nullptr, nullptr, nullptr), DISP_E_PARAMNOTOPTIONAL);
}

TEST_F(Server, TellsWhatAMemberThrew) {
    RawCall call{fail, method, {number(1)}, {}};
    EXPECT_EQ(call(server.Get()), DISP_E_EXCEPTION);
    EXPECT_EQ(call.info.scode, automation::hresult::excel_error);
    EXPECT_EQ(call.description(), "It \xC3\xBC failed");
    EXPECT_EQ(call.source(), "Sample.Fail");
    // A wrong call inside the member is no wrong call of the client's.
    RawCall nested{fail, method, {number(5)}, {}};
    EXPECT_EQ(nested(server.Get()), DISP_E_EXCEPTION);
    EXPECT_EQ(nested.info.scode, DISP_E_UNKNOWNNAME);
    EXPECT_EQ(nested.description(), "there is no such member");
    EXPECT_EQ(nested.source(), "Sample.NoSuchMember");
    RawCall memory{fail, method, {number(2)}, {}};
    EXPECT_EQ(memory(server.Get()), E_OUTOFMEMORY);
    RawCall fault{fail, method, {number(4)}, {}};
    EXPECT_EQ(fault(server.Get()), DISP_E_EXCEPTION);
    EXPECT_EQ(fault.info.scode, E_UNEXPECTED);
    fault.description();
    fault.source();
}

TEST_F(Server, FindsNamesAndTheirArguments) {
    struct Row {
        std::vector<std::wstring> names;
        HRESULT result;
        std::vector<DISPID> ids;
    };
    const Row rows[] = {
        {{L"Add"}, S_OK, {add}},
        {{L"aDD", L"RIGHT", L"left"}, S_OK, {add, 1, 0}},
        {{L"Item", L"Column"}, S_OK, {item, 1}},
        {{L"Add", L"Middle", L"Left"}, DISP_E_UNKNOWNNAME, {add, DISPID_UNKNOWN, 0}},
        {{L"Nothing", L"Left"}, DISP_E_UNKNOWNNAME, {DISPID_UNKNOWN, DISPID_UNKNOWN}},
        {{L"_NewEnum"}, S_OK, {DISPID_NEWENUM}},
    };
    for (const Row& row : rows) {
        std::vector<std::wstring> names = row.names;
        std::vector<wchar_t*> pointers;
        for (std::wstring& name : names) pointers.push_back(name.data());
        std::vector<DISPID> ids(names.size(), 1234);
        EXPECT_EQ(server->GetIDsOfNames(IID_NULL, pointers.data(), static_cast<UINT>(names.size()), lcid, ids.data()),
                  row.result);
        EXPECT_EQ(ids, row.ids);
    }
    EXPECT_EQ(server->GetIDsOfNames(IID_IUnknown, nullptr, 0, lcid, nullptr), DISP_E_UNKNOWNINTERFACE);
    EXPECT_EQ(server->GetIDsOfNames(IID_NULL, nullptr, 1, lcid, nullptr), E_INVALIDARG);
}

TEST_F(Server, NamedArgumentsComeInAnyOrder) {
    RawCall call{list, method, {number(3), number(1)}, {2, 0}};
    ASSERT_EQ(call(server.Get()), S_OK);
    EXPECT_EQ(to_value(call.result.raw()), Value("1|-|3"));
    RawCall write{item, put, {text(L"new"), number(5), number(4)}, {value_of_put, 1, 0}};
    ASSERT_EQ(write(server.Get()), S_OK);
    EXPECT_EQ(object->written, "item 4/5 = new");
    LONG column = 6;
    RawCall mixed{item, put, {text(L"newer"), reference(VT_I4, &column), number(4)}, {value_of_put}};
    ASSERT_EQ(mixed(server.Get()), S_OK);
    EXPECT_EQ(object->written, "item 4/6 = newer");
}

TEST_F(Server, IsOneObject) {
    ComPtr<IUnknown> unknown;
    ComPtr<ISupportErrorInfo> errors;
    ASSERT_EQ(server.As(&unknown), S_OK);
    ASSERT_EQ(unknown.As(&errors), S_OK);
    ComPtr<IUnknown> again;
    ASSERT_EQ(errors.As(&again), S_OK);
    EXPECT_EQ(unknown.Get(), again.Get());
    EXPECT_EQ(errors->InterfaceSupportsErrorInfo(IID_IDispatch), S_OK);
    EXPECT_EQ(errors->InterfaceSupportsErrorInfo(IID_IStream), S_FALSE);
    void* none = &none;
    EXPECT_EQ(server->QueryInterface(IID_IStream, &none), E_NOINTERFACE);
    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(server->QueryInterface(IID_IConnectionPointContainer, &none), E_NOINTERFACE);
    EXPECT_EQ(server->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
    // An object that nobody holds over COM any more is served anew.
    errors.Reset();
    again.Reset();
    unknown.Reset();
    server.Reset();
    EXPECT_EQ(Module::count(), 0);
    server = dispatch_of(object);
    EXPECT_EQ(object_of(server.Get()), object);
}

TEST_F(Server, DescribesItself) {
    UINT infos = 0;
    EXPECT_EQ(server->GetTypeInfoCount(&infos), S_OK);
    EXPECT_EQ(infos, 1U);
    ComPtr<ITypeInfo> info;
    EXPECT_EQ(server->GetTypeInfo(1, lcid, &info), DISP_E_BADINDEX);
    ASSERT_EQ(server->GetTypeInfo(0, lcid, &info), S_OK);
    BSTR names[8]{};
    UINT found = 0;
    ASSERT_EQ(info->GetNames(list, names, 8, &found), S_OK);
    std::vector<std::string> read;
    for (UINT i = 0; i < found; ++i) {
        read.push_back(to_utf8({names[i], SysStringLen(names[i])}));
        SysFreeString(names[i]);
    }
    EXPECT_THAT(read, testing::ElementsAre("List", "First", "Second", "Third"));
    EXPECT_EQ(info->GetNames(77, names, 8, &found), TYPE_E_ELEMENTNOTFOUND);
}

// A library that describes one class by one of the system's own dispinterfaces.
ComPtr<ITypeInfo> standard_font(std::string_view class_name) {
    ComPtr<ITypeLib> library;
    ComPtr<ITypeInfo> info;
    if (class_name == "Sample" && SUCCEEDED(LoadTypeLib(L"stdole2.tlb", &library))) {
        library->GetTypeInfoOfGuid(__uuidof(IFontDisp), &info);
    }
    return info;
}

TEST_F(Server, AnswersForTheInterfaceOfItsTypeLibrary) {
    void* none = nullptr;
    EXPECT_EQ(server->QueryInterface(__uuidof(IFontDisp), &none), E_NOINTERFACE);
    use_type_library(standard_font);
    ComPtr<IDispatch> own;
    EXPECT_EQ(server->QueryInterface(__uuidof(IFontDisp), reinterpret_cast<void**>(own.GetAddressOf())), S_OK);
    EXPECT_EQ(own.Get(), server.Get());
    ComPtr<ITypeInfo> info;
    EXPECT_EQ(server->GetTypeInfo(0, lcid, &info), S_OK);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
    EXPECT_TRUE(attributes->guid == __uuidof(IFontDisp));
    info->ReleaseTypeAttr(attributes);
    use_type_library(nullptr);
}

TEST_F(Server, CollectionsAreGoneThrough) {
    RawCall call{DISPID_NEWENUM, method | get, {}, {}};
    ASSERT_EQ(call(server.Get()), S_OK);
    ComPtr<IEnumVARIANT> items;
    ASSERT_EQ(V_UNKNOWN(&call.result.raw())->QueryInterface(IID_PPV_ARGS(&items)), S_OK);
    VARIANT read[5]{};
    ULONG count = 0;
    EXPECT_EQ(items->Next(2, read, &count), S_OK);
    EXPECT_EQ(count, 2U);
    EXPECT_EQ(to_value(read[1]), Value("item 2"));
    ComPtr<IEnumVARIANT> copy;
    ASSERT_EQ(items->Clone(&copy), S_OK);
    EXPECT_EQ(items->Next(2, read + 2, &count), S_FALSE);
    EXPECT_EQ(count, 1U);
    EXPECT_EQ(copy->Skip(1), S_OK);
    EXPECT_EQ(copy->Skip(1), S_FALSE);
    EXPECT_EQ(copy->Reset(), S_OK);
    EXPECT_EQ(copy->Next(1, read + 3, nullptr), S_OK);
    EXPECT_EQ(to_value(read[3]), Value("item 1"));
    for (VARIANT& item : read) VariantClear(&item);
}

TEST(ClassFactory, MakesObjectsAndKeepsTheModule) {
    {
        ComPtr<IClassFactory> factory;
        const auto create = [] { return std::make_shared<Sample>(); };
        ASSERT_EQ(get_class_object(create, IID_PPV_ARGS(&factory)), S_OK);
        ComPtr<IDispatch> one;
        ComPtr<IDispatch> two;
        EXPECT_EQ(factory->CreateInstance(nullptr, IID_PPV_ARGS(&one)), S_OK);
        EXPECT_EQ(factory->CreateInstance(nullptr, IID_PPV_ARGS(&two)), S_OK);
        EXPECT_NE(one.Get(), two.Get());
        void* none = &none;
        EXPECT_EQ(factory->CreateInstance(one.Get(), IID_IUnknown, &none), CLASS_E_NOAGGREGATION);
        EXPECT_EQ(factory->CreateInstance(nullptr, IID_IStream, &none), E_NOINTERFACE);
        EXPECT_EQ(Module::count(), 3);
        factory->LockServer(TRUE);
        EXPECT_EQ(Module::count(), 4);
        factory->LockServer(FALSE);
        const auto none_made = []() -> ObjectRef {
            throw automation::AutomationError(automation::hresult::class_not_registered, "X", "is not there");
        };
        ASSERT_EQ(get_class_object(none_made, __uuidof(IClassFactory),
                                   reinterpret_cast<void**>(factory.ReleaseAndGetAddressOf())),
                  S_OK);
        EXPECT_EQ(factory->CreateInstance(nullptr, IID_IDispatch, &none), REGDB_E_CLASSNOTREG);
        EXPECT_EQ(get_class_object(create, IID_IStream, &none), E_NOINTERFACE);
    }
    EXPECT_TRUE(Module::can_unload());
}

}  // namespace
}  // namespace kestrune::windows
