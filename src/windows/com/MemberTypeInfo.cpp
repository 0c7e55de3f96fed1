#include "windows/com/MemberTypeInfo.h"

#include "automation/MemberTable.h"
#include "windows/com/Failure.h"
#include "windows/com/Objects.h"
#include "windows/com/RefCounted.h"
#include "windows/com/Unicode.h"

namespace kestrune::windows {
namespace {

using automation::Member;
using automation::ObjectRef;

class MemberTypeInfo final : public RefCounted<ITypeInfo> {
  public:
    explicit MemberTypeInfo(ObjectRef object) : object_(std::move(object)) {}

    HRESULT STDMETHODCALLTYPE GetTypeAttr(TYPEATTR** attributes) noexcept override {
        if (!attributes) return E_POINTER;
        *attributes = static_cast<TYPEATTR*>(CoTaskMemAlloc(sizeof(TYPEATTR)));
        if (!*attributes) return E_OUTOFMEMORY;
        **attributes = {};
        (*attributes)->typekind = TKIND_DISPATCH;
        (*attributes)->wTypeFlags = TYPEFLAG_FDISPATCHABLE;
        (*attributes)->cbSizeInstance = sizeof(void*);
        (*attributes)->memidConstructor = MEMBERID_NIL;
        (*attributes)->memidDestructor = MEMBERID_NIL;
        return S_OK;
    }
    void STDMETHODCALLTYPE ReleaseTypeAttr(TYPEATTR* attributes) noexcept override { CoTaskMemFree(attributes); }

    HRESULT STDMETHODCALLTYPE GetDocumentation(MEMBERID id, BSTR* name, BSTR* text, DWORD* context,
                                               BSTR* file) noexcept override {
        return guarded([&]() -> HRESULT {
            if (text) *text = nullptr;
            if (context) *context = 0;
            if (file) *file = nullptr;
            if (!name) return S_OK;
            *name = nullptr;
            if (id == MEMBERID_NIL) {
                *name = to_bstr(object_->type_name());
                return S_OK;
            }
            const Member* member = member_of(id);
            if (!member) return TYPE_E_ELEMENTNOTFOUND;
            *name = to_bstr(member->name);
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE GetNames(MEMBERID id, BSTR* names, UINT room, UINT* count) noexcept override {
        return guarded([&]() -> HRESULT {
            if (!names || !count) return E_POINTER;
            *count = 0;
            const Member* member = member_of(id);
            if (!member) return TYPE_E_ELEMENTNOTFOUND;
            if (*count < room) names[(*count)++] = to_bstr(member->name);
            std::string_view list = member->parameters;
            while (!list.empty() && *count < room) {
                names[(*count)++] = to_bstr(automation::detail::take_parameter(list).name);
            }
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(LPOLESTR* names, UINT count, MEMBERID* ids) noexcept override {
        return guarded([&] { return dispatch_of(object_)->GetIDsOfNames(IID_NULL, names, count, LCID{1033}, ids); });
    }
    HRESULT STDMETHODCALLTYPE Invoke(PVOID instance, MEMBERID id, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* info, UINT* wrong) noexcept override {
        if (!instance) return E_INVALIDARG;
        return static_cast<IDispatch*>(instance)->Invoke(id, IID_NULL, LCID{1033}, flags, parameters, result, info,
                                                         wrong);
    }

    HRESULT STDMETHODCALLTYPE GetTypeComp(ITypeComp**) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetFuncDesc(UINT, FUNCDESC**) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetVarDesc(UINT, VARDESC**) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetRefTypeOfImplType(UINT, HREFTYPE*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetImplTypeFlags(UINT, INT*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetDllEntry(MEMBERID, INVOKEKIND, BSTR*, BSTR*, WORD*) noexcept override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetRefTypeInfo(HREFTYPE, ITypeInfo**) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddressOfMember(MEMBERID, INVOKEKIND, PVOID*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID, PVOID*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMops(MEMBERID, BSTR*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetContainingTypeLib(ITypeLib**, UINT*) noexcept override { return E_NOTIMPL; }
    void STDMETHODCALLTYPE ReleaseFuncDesc(FUNCDESC*) noexcept override {}
    void STDMETHODCALLTYPE ReleaseVarDesc(VARDESC*) noexcept override {}

  private:
    ~MemberTypeInfo() override = default;

    [[nodiscard]] const Member* member_of(MEMBERID id) const {
        const automation::MemberTable* table = object_->member_table();
        return table ? table->find(static_cast<std::int32_t>(id)) : nullptr;
    }

    ObjectRef object_;
};

}  // namespace

ComPtr<ITypeInfo> member_type_info(const ObjectRef& object) { return adopt<ITypeInfo>(new MemberTypeInfo(object)); }

}  // namespace kestrune::windows
