#pragma once

#include <windows.h>

#include <oaidl.h>

#include <string>
#include <vector>

#include "windows/com/ComPtr.h"
#include "windows/com/Unicode.h"
#include "windows/com/Variant.h"

namespace kestrune::windows {

// A call through a bare IDispatch, as somebody else's client makes it.
struct RawCall {
    DISPID id = 0;
    WORD flags = DISPATCH_METHOD;
    std::vector<VARIANT> arguments;  // in rgvarg's order: named ones first, positional ones from the last to the first
    std::vector<DISPID> named;

    EXCEPINFO info{};
    UINT wrong = 99;
    Variant result = {};

    HRESULT operator()(IDispatch* object) {
        DISPPARAMS parameters{arguments.data(), named.data(), static_cast<UINT>(arguments.size()),
                              static_cast<UINT>(named.size())};
        return object->Invoke(id, IID_NULL, lcid, flags, &parameters, &result.raw(), &info, &wrong);
    }
    // The texts of `info`, freed.
    std::string description() { return take(info.bstrDescription); }
    std::string source() { return take(info.bstrSource); }

  private:
    static std::string take(BSTR& text) {
        std::string result = to_utf8({text, SysStringLen(text)});
        SysFreeString(text);
        text = nullptr;
        return result;
    }
};

// Plain VARIANTs that own nothing.
inline VARIANT number(LONG value) {
    VARIANT v;
    VariantInit(&v);
    V_VT(&v) = VT_I4;
    V_I4(&v) = value;
    return v;
}
inline VARIANT reference(VARTYPE type, void* to) {
    VARIANT v;
    VariantInit(&v);
    V_VT(&v) = static_cast<VARTYPE>(VT_BYREF | type);
    V_BYREF(&v) = to;
    return v;
}
inline VARIANT missing() {
    VARIANT v;
    VariantInit(&v);
    V_VT(&v) = VT_ERROR;
    V_ERROR(&v) = DISP_E_PARAMNOTFOUND;
    return v;
}

}  // namespace kestrune::windows
