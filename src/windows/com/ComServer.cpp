#include "windows/com/ComServer.h"

#include <algorithm>

#include "automation/AutomationError.h"
#include "automation/Events.h"
#include "windows/com/ConnectionPoints.h"
#include "windows/com/ErrorInfo.h"
#include "windows/com/IncomingCall.h"
#include "windows/com/Objects.h"
#include "windows/com/TypeInfoSource.h"
#include "windows/com/Unicode.h"
#include "windows/com/Variant.h"

namespace kestrune::windows {
namespace {

using automation::Call;
using automation::Member;
using automation::ObjectRef;
using automation::Value;
using automation::WrongCall;

constexpr WORD known_flags = DISPATCH_METHOD | DISPATCH_PROPERTYGET | DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;

}  // namespace

ComServer::ComServer(ObjectRef object) : object_(std::move(object)), table_(object_->member_table()) {
    if (dynamic_cast<automation::EventSource*>(object_.get())) {
        connection_points_ = std::make_unique<ConnectionPoints>(static_cast<IDispatch&>(*this), object_);
    }
}

ComServer::~ComServer() { forget(*this); }

bool ComServer::try_hold() noexcept {
    long count = references_;
    while (count != 0) {
        if (references_.compare_exchange_weak(count, count + 1)) return true;
    }
    return false;
}

HRESULT ComServer::QueryInterface(REFIID id, void** object) noexcept {
    if (!object) return E_POINTER;
    *object = nullptr;
    return guarded([&]() -> HRESULT {
        if (id == IID_IUnknown || id == IID_IDispatch) {
            *object = static_cast<IDispatch*>(this);
        } else if (id == IID_ISupportErrorInfo) {
            *object = static_cast<ISupportErrorInfo*>(this);
        } else if (id == IID_IProvideClassInfo && library_type_info(object_->type_name())) {
            *object = static_cast<IProvideClassInfo*>(this);
        } else if (id == IID_IConnectionPointContainer && connection_points_) {
            *object = static_cast<IConnectionPointContainer*>(connection_points_.get());
        } else if (is_own_interface(id)) {
            *object = static_cast<IDispatch*>(this);
        } else {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    });
}

bool ComServer::is_own_interface(REFIID id) const {
    const auto info = library_type_info(object_->type_name());
    TYPEATTR* attributes = nullptr;
    if (!info || FAILED(info->GetTypeAttr(&attributes))) return false;
    const bool same = attributes->guid == id;
    info->ReleaseTypeAttr(attributes);
    return same;
}

ULONG ComServer::AddRef() noexcept { return static_cast<ULONG>(++references_); }

ULONG ComServer::Release() noexcept {
    const long left = --references_;
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
}

HRESULT ComServer::GetTypeInfoCount(UINT* count) noexcept {
    if (!count) return E_POINTER;
    *count = 1;
    return S_OK;
}

HRESULT ComServer::GetTypeInfo(UINT index, LCID, ITypeInfo** info) noexcept {
    if (!info) return E_POINTER;
    *info = nullptr;
    if (index != 0) return DISP_E_BADINDEX;
    return guarded([&] {
        *info = type_info_of(object_).Detach();
        return S_OK;
    });
}

HRESULT ComServer::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept {
    if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (!names || !ids || count == 0) return E_INVALIDARG;
    std::fill_n(ids, count, DISPID_UNKNOWN);
    return guarded([&]() -> HRESULT {
        ids[0] = id_of(to_utf8(names[0]));
        bool all_known = ids[0] != DISPID_UNKNOWN;
        for (UINT i = 1; i < count && ids[0] != DISPID_UNKNOWN; ++i) {
            ids[i] = id_of_argument(ids[0], to_utf8(names[i]));
            all_known = all_known && ids[i] != DISPID_UNKNOWN;
        }
        return all_known ? S_OK : DISP_E_UNKNOWNNAME;
    });
}

DISPID ComServer::id_of(std::string_view name) {
    if (name.empty()) return DISPID_VALUE;
    if (table_) {
        const Member* member = table_->find(name);
        return member ? member->id : DISPID_UNKNOWN;
    }
    const auto known = std::ranges::find_if(names_, [&](const auto& n) { return automation::same_text(n, name); });
    const auto place = static_cast<DISPID>(known - names_.begin());
    if (known == names_.end()) names_.emplace_back(name);
    return place + 1;
}

DISPID ComServer::id_of_argument(DISPID id, std::string_view name) {
    if (!table_) return id_of(name);
    const Member* member = table_->find(static_cast<std::int32_t>(id));
    std::string_view list = member ? member->parameters : std::string_view();
    for (DISPID position = 0; !list.empty(); ++position) {
        if (automation::same_text(automation::detail::take_parameter(list).name, name)) return position;
    }
    return DISPID_UNKNOWN;
}

std::string_view ComServer::name_of(DISPID id) const {
    if (table_) {
        if (const Member* member = table_->find(static_cast<std::int32_t>(id))) return member->name;
    } else if (id == DISPID_VALUE) {
        return {};
    } else if (id > 0 && static_cast<std::size_t>(id) <= names_.size()) {
        return names_[static_cast<std::size_t>(id) - 1];
    }
    throw WrongCall(DISP_E_MEMBERNOTFOUND, object_->type_name(), "there is no such member");
}

HRESULT ComServer::Invoke(DISPID id, REFIID reserved, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                          EXCEPINFO* info, UINT* wrong) noexcept {
    if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (!parameters || !(flags & known_flags)) return E_INVALIDARG;
    if (result) VariantInit(result);
    // The last reference may go during the call.
    const ObjectRef object = object_;
    IncomingCall call(*parameters);
    try {
        const std::string name(name_of(id));
        const auto kind = static_cast<Call>(flags & known_flags);
        const auto named = [&](DISPID argument) -> IncomingCall::Named {
            if (!table_) return {std::nullopt, std::string(name_of(argument))};
            const Member* member = table_->find(static_cast<std::int32_t>(id));
            if (argument < 0 || argument >= member->parameter_count) {
                throw WrongCall(DISP_E_PARAMNOTFOUND, name, "there is no such argument");
            }
            return {static_cast<std::size_t>(argument), {}};
        };
        call.read(kind, named);
        Variant answer = to_variant(object->invoke(name, kind, call.arguments()));
        call.write_back();
        if (result) *result = answer.release();
        return S_OK;
    } catch (...) {
        const Caught failure = caught();
        if (wrong && failure.argument) *wrong = call.place_of(*failure.argument);
        return report(failure, info);
    }
}

HRESULT ComServer::InterfaceSupportsErrorInfo(REFIID id) noexcept {
    return id == IID_IDispatch || id == IID_IUnknown ? S_OK : S_FALSE;
}

HRESULT ComServer::GetClassInfo(ITypeInfo** info) noexcept {
    if (!info) return E_POINTER;
    *info = nullptr;
    return guarded([&]() -> HRESULT {
        *info = library_class_info(object_->type_name()).Detach();
        return *info ? S_OK : TYPE_E_ELEMENTNOTFOUND;
    });
}

}  // namespace kestrune::windows
