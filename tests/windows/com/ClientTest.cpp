// What another program's object is asked, and that nothing of it is kept.
#include "windows/com/ComClient.h"

#include <gmock/gmock.h>

#include "FakeDispatch.h"
#include "Sample.h"
#include "automation/AutomationError.h"
#include "windows/com/Objects.h"
#include "windows/com/Variant.h"

namespace kestrune::windows {
namespace {

using automation::Arguments;
using automation::AutomationError;
using automation::Call;
using automation::Missing;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr VARTYPE by_reference = VT_BYREF | VT_VARIANT;

class Client : public testing::Test {
  protected:
    void SetUp() override { fake.names = {{L"Do", 40}, {L"First", 7}, {L"Second", 8}}; }
    void TearDown() override {
        client.reset();
        EXPECT_EQ(fake.references, 0);
    }
    Value ask(std::string_view member, Call kind, Arguments arguments) {
        fake.asked.clear();
        return client->invoke(member, kind, arguments);
    }

    FakeDispatch fake;
    std::shared_ptr<ComClient> client = std::make_shared<ComClient>(&fake);
};

TEST_F(Client, AsksInOlesOrder) {
    Arguments named{1, "b"};
    named.name("second", 2.5).name("First", true);
    fake.names[L"second"] = 8;
    struct Row {
        Call kind;
        Arguments arguments;
        std::vector<VARTYPE> types;
        std::vector<DISPID> names;
        bool wants_result;
    };
    const Row rows[] = {
        {Call::Method, {}, {}, {}, true},
        {Call::Get, {1, "b"}, {by_reference, by_reference}, {}, true},
        {Call::MethodOrGet, {Missing{}, 1}, {by_reference, VT_ERROR}, {}, true},
        {Call::Method, named, {VT_R8, VT_BOOL, by_reference, by_reference}, {8, 7}, true},
        {Call::Put, {"new"}, {VT_BSTR}, {DISPID_PROPERTYPUT}, false},
        {Call::Put, {1, "b", 0.5}, {VT_R8, VT_BSTR, VT_I4}, {DISPID_PROPERTYPUT}, false},
        {Call::PutReference, {nullptr}, {VT_DISPATCH}, {DISPID_PROPERTYPUT}, false},
        {Call::Put, named, {VT_BSTR, VT_R8, VT_BOOL, VT_I4}, {DISPID_PROPERTYPUT, 8, 7}, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(&row - rows);
        ask("Do", row.kind, row.arguments);
        ASSERT_EQ(fake.asked.size(), 1U);
        const FakeDispatch::Asked& asked = fake.asked[0];
        EXPECT_EQ(asked.id, 40);
        EXPECT_EQ(asked.flags, static_cast<WORD>(row.kind));
        EXPECT_EQ(asked.lcid, 1033U);
        EXPECT_EQ(asked.types, row.types);
        EXPECT_EQ(asked.named, row.names);
        EXPECT_EQ(asked.wants_result, row.wants_result);
    }
}

TEST_F(Client, AsksForEitherWhatIsRefusedAsOneKind) {
    for (const Call kind : {Call::Get, Call::Method, Call::MethodOrGet, Call::Put}) {
        fake.answer = [&](DISPPARAMS&, VARIANT*, EXCEPINFO*) {
            const bool either = fake.asked.back().flags == (DISPATCH_METHOD | DISPATCH_PROPERTYGET);
            return either && kind != Call::MethodOrGet ? S_OK : DISP_E_MEMBERNOTFOUND;
        };
        if (kind == Call::Get || kind == Call::Method) {
            ask("Do", kind, {1});
            EXPECT_EQ(fake.asked.size(), 2U);
        } else {
            EXPECT_THROW(ask("Do", kind, {1}), AutomationError);
            EXPECT_EQ(fake.asked.size(), 1U);
        }
    }
}

TEST_F(Client, LooksANameUpOnce) {
    for (int i = 0; i < 3; ++i) ask("Do", Call::Get, {});
    EXPECT_EQ(fake.look_ups, 1);
    ask("", Call::Get, {});
    EXPECT_EQ(fake.asked[0].id, DISPID_VALUE);
    EXPECT_EQ(fake.look_ups, 1);
    EXPECT_THROW(ask("Unknown", Call::Get, {}), AutomationError);
    EXPECT_THAT(fake.asked, IsEmpty());
}

TEST_F(Client, CountsReferencesExactly) {
    EXPECT_EQ(fake.references, 1);
    FakeDispatch other;
    fake.answer = [&](DISPPARAMS& parameters, VARIANT* result, EXCEPINFO*) {
        for (UINT i = 0; i < parameters.cArgs; ++i) {
            EXPECT_EQ(V_DISPATCH(V_ISBYREF(&parameters.rgvarg[i]) ? V_VARIANTREF(&parameters.rgvarg[i])
                                                                  : &parameters.rgvarg[i]),
                      &other);
        }
        if (result) {
            V_VT(result) = VT_UNKNOWN;
            V_UNKNOWN(result) = &other;
            other.AddRef();
        }
        return S_OK;
    };
    {
        const Value object(object_of(static_cast<IDispatch*>(&other)));
        EXPECT_EQ(other.references, 1);
        const Value answer = ask("Do", Call::Method, {object, object});
        EXPECT_EQ(other.references, 2);
        EXPECT_EQ(dispatch_of(*answer.if_is<ObjectRef>()).Get(), &other);
        ask("Do", Call::PutReference, {object});
        EXPECT_EQ(other.references, 2);
        Arguments kept{object};
        client->invoke("Do", Call::Method, kept);
        EXPECT_EQ(kept.positional[0], object);
    }
    EXPECT_EQ(other.references, 0);
    fake.answer = [](DISPPARAMS&, VARIANT*, EXCEPINFO*) { return DISP_E_TYPEMISMATCH; };
    EXPECT_THROW(ask("Do", Call::Method, {object_of(static_cast<IDispatch*>(&other))}), AutomationError);
    EXPECT_EQ(other.references, 0);
}

TEST_F(Client, ReadsWhatTheCalleeChanged) {
    fake.answer = [](DISPPARAMS& parameters, VARIANT*, EXCEPINFO*) {
        Variant text = to_variant("changed");
        VARIANT& last = *V_VARIANTREF(&parameters.rgvarg[0]);
        VariantClear(&last);
        last = text.release();
        return S_OK;
    };
    Arguments arguments{1, "as it was"};
    client->invoke("Do", Call::Method, arguments);
    EXPECT_THAT(arguments.positional, ElementsAre(Value(1), Value("changed")));
}

TEST_F(Client, FailuresTellTheRealCode) {
    struct Row {
        const char* what;
        FakeDispatch::Answer answer;
        std::uint32_t code;
        const char* text;  // null: the system's
    };
    const Row rows[] = {
        {"Excel's own",
         [](DISPPARAMS&, VARIANT*, EXCEPINFO* info) {
             info->wCode = 0;
             info->scode = automation::hresult::excel_error;
             info->bstrDescription = SysAllocString(L"Unable to set the Zoom property");
             info->bstrSource = SysAllocString(L"Microsoft Excel");
             info->bstrHelpFile = SysAllocString(L"xlmain11.chm");
             return DISP_E_EXCEPTION;
         },
         0x800A03EC, "Unable to set the Zoom property"},
        {"filled in later",
         [](DISPPARAMS&, VARIANT*, EXCEPINFO* info) {
             info->pfnDeferredFillIn = [](EXCEPINFO* later) -> HRESULT {
                 later->scode = DISP_E_OVERFLOW;
                 later->bstrDescription = SysAllocString(L"later");
                 return S_OK;
             };
             return DISP_E_EXCEPTION;
         },
         0x8002000A, "later"},
        {"a run-time error's number",
         [](DISPPARAMS&, VARIANT*, EXCEPINFO* info) {
             info->wCode = 1004;
             info->bstrDescription = SysAllocString(L"by number");
             return DISP_E_EXCEPTION;
         },
         0x800A03EC, "by number"},
        {"nothing told", [](DISPPARAMS&, VARIANT*, EXCEPINFO*) { return DISP_E_EXCEPTION; }, 0x80020009, nullptr},
        {"no exception", [](DISPPARAMS&, VARIANT*, EXCEPINFO*) { return DISP_E_BADINDEX; }, 0x8002000B, nullptr},
        {"gone", [](DISPPARAMS&, VARIANT*, EXCEPINFO*) { return RPC_E_DISCONNECTED; }, 0x80010108, nullptr},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        fake.answer = row.answer;
        try {
            ask("Do", Call::Method, {});
            ADD_FAILURE() << "nothing failed";
        } catch (const AutomationError& error) {
            EXPECT_EQ(static_cast<std::uint32_t>(error.code()), row.code);
            EXPECT_EQ(error.member(), "Object.Do");
            EXPECT_FALSE(error.description().empty());
            if (row.text) {
                EXPECT_EQ(error.description(), row.text);
            }
        }
    }
}

TEST_F(Client, ResultsWithoutAMeaningFail) {
    fake.answer = [](DISPPARAMS&, VARIANT* result, EXCEPINFO*) {
        V_VT(result) = VT_RECORD;
        V_RECORD(result) = nullptr;
        return S_OK;
    };
    EXPECT_THROW(ask("Do", Call::Get, {}), AutomationError);
}

}  // namespace
}  // namespace kestrune::windows
