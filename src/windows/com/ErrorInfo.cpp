#include "windows/com/ErrorInfo.h"

#include "windows/com/ComPtr.h"
#include "windows/com/Objects.h"
#include "windows/com/Unicode.h"

namespace kestrune::windows {
namespace {

// A BSTR that frees itself; whoever fills it in writes to `text`.
struct Bstr {
    BSTR text = nullptr;
    Bstr() = default;
    explicit Bstr(BSTR owned) : text(owned) {}
    ~Bstr() { SysFreeString(text); }
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    [[nodiscard]] std::string utf8() const { return to_utf8({text, SysStringLen(text)}); }
};

void set_error_object(const Caught& failure) {
    ComPtr<ICreateErrorInfo> fresh;
    if (FAILED(CreateErrorInfo(&fresh))) return;
    fresh->SetSource(to_utf16(failure.member).data());
    fresh->SetDescription(to_utf16(failure.description).data());
    ComPtr<IErrorInfo> error;
    if (SUCCEEDED(fresh.As(&error))) SetErrorInfo(0, error.Get());
}

// What the thread's error object says, if the object that failed is one that fills it in.
std::string error_object_text(IUnknown& object) {
    ComPtr<ISupportErrorInfo> supports;
    if (FAILED(object.QueryInterface(IID_PPV_ARGS(&supports)))) return {};
    if (supports->InterfaceSupportsErrorInfo(IID_IDispatch) != S_OK) return {};
    ComPtr<IErrorInfo> error;
    if (GetErrorInfo(0, &error) != S_OK) return {};
    Bstr description;
    error->GetDescription(&description.text);
    return description.utf8();
}

}  // namespace

HRESULT report(const Caught& failure, EXCEPINFO* info) noexcept {
    return guarded([&]() -> HRESULT {
        if (failure.code == E_OUTOFMEMORY) return failure.code;
        set_error_object(failure);
        if (failure.wrong_call) return failure.code;
        if (info) {
            *info = {};
            info->scode = failure.code;
            info->bstrSource = to_bstr(failure.member);
            info->bstrDescription = to_bstr(failure.description);
        }
        return DISP_E_EXCEPTION;
    });
}

Failed read_failure(HRESULT result, EXCEPINFO& info, IUnknown& object) {
    if (result != DISP_E_EXCEPTION) {
        std::string text = error_object_text(object);
        return {result, text.empty() ? system_text(result) : std::move(text)};
    }
    // The thread's error object says the same, and would be taken for that of a later failure.
    SetErrorInfo(0, nullptr);
    if (info.pfnDeferredFillIn) info.pfnDeferredFillIn(&info);
    const Bstr source(info.bstrSource);
    const Bstr description(info.bstrDescription);
    const Bstr help(info.bstrHelpFile);
    HRESULT code = info.scode;
    // Visual Basic's own classes tell a run-time error's number instead of an HRESULT.
    if (code == 0 && info.wCode != 0) code = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, info.wCode);
    if (SUCCEEDED(code)) code = DISP_E_EXCEPTION;
    std::string text = description.utf8();
    return {code, text.empty() ? system_text(code) : std::move(text)};
}

}  // namespace kestrune::windows
