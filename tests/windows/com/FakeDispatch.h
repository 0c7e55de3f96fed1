#pragma once

#include <windows.h>

#include <oaidl.h>
#include <ocidl.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace kestrune::windows {

// An IDispatch written by hand, as another program's object: it lives on the test's stack, counts its references and
// keeps what it was asked.
class FakeDispatch : public IDispatch {
  public:
    struct Asked {
        DISPID id = 0;
        WORD flags = 0;
        LCID lcid = 0;
        std::vector<VARTYPE> types;  // of rgvarg, in its order
        std::vector<DISPID> named;
        bool wants_result = false;
    };
    // Answers a call; rgvarg may be written to.
    using Answer = std::function<HRESULT(DISPPARAMS& parameters, VARIANT* result, EXCEPINFO* info)>;

    long references = 0;
    std::map<std::wstring, DISPID> names;
    std::vector<Asked> asked;
    int look_ups = 0;
    Answer answer = [](DISPPARAMS&, VARIANT*, EXCEPINFO*) { return S_OK; };

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        *object = nullptr;
        if (id != IID_IUnknown && id != IID_IDispatch) return E_NOINTERFACE;
        *object = static_cast<IDispatch*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references); }
    ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references); }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* wanted, UINT count, LCID, DISPID* ids) override {
        ++look_ups;
        HRESULT result = S_OK;
        for (UINT i = 0; i < count; ++i) {
            const auto known = names.find(wanted[i]);
            ids[i] = known == names.end() ? DISPID_UNKNOWN : known->second;
            if (known == names.end()) result = DISP_E_UNKNOWNNAME;
        }
        return result;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID lcid, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* info, UINT*) override {
        Asked call{id, flags, lcid, {}, {}, result != nullptr};
        for (UINT i = 0; i < parameters->cArgs; ++i) call.types.push_back(V_VT(&parameters->rgvarg[i]));
        for (UINT i = 0; i < parameters->cNamedArgs; ++i) call.named.push_back(parameters->rgdispidNamedArgs[i]);
        asked.push_back(call);
        return answer(*parameters, result, info);
    }
};

}  // namespace kestrune::windows
