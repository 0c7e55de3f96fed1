#pragma once

#include <windows.h>

#include <oaidl.h>
#include <ocidl.h>

#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include "automation/MemberTable.h"
#include "automation/Object.h"
#include "windows/com/Module.h"

namespace kestrune::windows {

class ConnectionPoints;

// One of our objects, served over IDispatch. Members have the identifiers of the class's member table, named arguments
// the places of the parameters; an object without a table gets identifiers for names as they are asked for. Objects
// that raise events are connectable.
class ComServer final : public IDispatch, public ISupportErrorInfo, public IProvideClassInfo {
  public:
    // Begins with one reference, the maker's.
    explicit ComServer(automation::ObjectRef object);
    ComServer(const ComServer&) = delete;
    ComServer& operator=(const ComServer&) = delete;

    [[nodiscard]] const automation::ObjectRef& object() const noexcept { return object_; }
    // Takes a reference unless the last one is gone already.
    bool try_hold() noexcept;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override;
    ULONG STDMETHODCALLTYPE AddRef() noexcept override;
    ULONG STDMETHODCALLTYPE Release() noexcept override;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** info) noexcept override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID,
                                            DISPID* ids) noexcept override;
    // DISP_E_EXCEPTION for what a member throws, with the code, the description and the member's name as the source;
    // a call that does not fit the member is its own HRESULT, with the argument at fault where one is.
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* info, UINT* wrong) noexcept override;

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID id) noexcept override;
    // The coclass, for a class that the module's type library describes.
    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) noexcept override;

  private:
    ~ComServer();

    [[nodiscard]] bool is_own_interface(REFIID id) const;
    [[nodiscard]] DISPID id_of(std::string_view name);
    [[nodiscard]] std::string_view name_of(DISPID id) const;
    [[nodiscard]] DISPID id_of_argument(DISPID member, std::string_view name);

    automation::ObjectRef object_;
    const automation::MemberTable* table_;
    std::vector<std::string> names_;  // of an object without a table; the identifier is the place, from 1
    std::unique_ptr<ConnectionPoints> connection_points_;
    std::atomic<long> references_ = 1;
    Module::Use use_;
};

}  // namespace kestrune::windows
