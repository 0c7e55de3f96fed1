#include "windows/com/ComClient.h"

#include <fmt/format.h>

#include <cstring>
#include <new>
#include <vector>

#include "automation/AutomationError.h"
#include "windows/com/ErrorInfo.h"
#include "windows/com/EventSink.h"
#include "windows/com/TypeName.h"
#include "windows/com/Unicode.h"
#include "windows/com/Variant.h"

namespace kestrune::windows {
namespace {

using automation::Arguments;
using automation::AutomationError;
using automation::Call;
using automation::Value;

// The arguments of one call, in OLE's order: the new value of a writing, the named ones, the positional ones from the
// last to the first.
class CallFrame {
  public:
    CallFrame(Call kind, const Arguments& arguments, const DISPID* named_ids) : by_reference_(!is_put(kind)) {
        const std::size_t put = is_put(kind) ? 1 : 0;
        if (put > arguments.positional.size()) {
            throw AutomationError(automation::hresult::not_optional, "conversion", "the new value is missing");
        }
        const std::size_t positional = arguments.positional.size() - put;
        held_.reserve(positional);
        slots_.reserve(arguments.positional.size() + arguments.named.size());
        if (put) {
            ids_.push_back(DISPID_PROPERTYPUT);
            slots_.push_back(to_variant(arguments.positional.back()));
        }
        for (std::size_t i = 0; i < arguments.named.size(); ++i) {
            ids_.push_back(named_ids[i]);
            slots_.push_back(to_variant(arguments.named[i].second));
        }
        for (std::size_t i = 0; i < positional; ++i) {
            held_.push_back(to_variant(arguments.positional[i]));
            handed_.push_back(held_.back().raw());
        }
        for (std::size_t i = positional; i-- > 0;) {
            Variant slot;
            // A missing argument is told by its value; what stands behind a reference is somebody's variable.
            if (by_reference_ && !arguments.positional[i].is(Value::Kind::Missing)) {
                V_VT(&slot.raw()) = VT_BYREF | VT_VARIANT;
                V_VARIANTREF(&slot.raw()) = &held_[i].raw();
            } else {
                std::swap(slot, held_[i]);
            }
            slots_.push_back(std::move(slot));
        }
        static_assert(sizeof(Variant) == sizeof(VARIANT));
        parameters_.rgvarg = slots_.empty() ? nullptr : &slots_.front().raw();
        parameters_.cArgs = static_cast<UINT>(slots_.size());
        parameters_.rgdispidNamedArgs = ids_.empty() ? nullptr : ids_.data();
        parameters_.cNamedArgs = static_cast<UINT>(ids_.size());
    }

    [[nodiscard]] DISPPARAMS* parameters() { return &parameters_; }

    // What the callee changed, back into the arguments.
    void read_back(Arguments& arguments) const {
        if (!by_reference_) return;
        for (std::size_t i = 0; i < held_.size(); ++i) {
            if (!untouched(held_[i].raw(), handed_[i])) arguments.positional[i] = to_value(held_[i].raw());
        }
    }

  private:
    // Texts and arrays may have changed where they lie; all else is compared as it stands, which also lets an object
    // that was handed over stay the same reference.
    static bool untouched(const VARIANT& now, const VARIANT& before) {
        return V_VT(&now) == V_VT(&before) && V_VT(&now) != VT_BSTR && !V_ISARRAY(&now) &&
               std::memcmp(&V_I8(&now), &V_I8(&before), sizeof V_I8(&now)) == 0;
    }

    bool by_reference_;
    std::vector<Variant> held_;
    std::vector<VARIANT> handed_;  // copies of the bits; nothing of theirs is owned
    std::vector<Variant> slots_;
    std::vector<DISPID> ids_;
    DISPPARAMS parameters_{};
};

}  // namespace

Value ComClient::invoke(std::string_view member, Call kind, Arguments& arguments) {
    DISPID id = DISPID_VALUE;
    std::vector<DISPID> named_ids;
    try {
        if (arguments.named.empty()) {
            id = id_of(member);
        } else {
            std::vector<std::wstring> names{to_utf16(member)};
            for (const auto& [name, value] : arguments.named) names.push_back(to_utf16(name));
            std::vector<wchar_t*> pointers;
            for (std::wstring& name : names) pointers.push_back(name.data());
            named_ids.assign(names.size(), DISPID_UNKNOWN);
            const HRESULT result = object_->GetIDsOfNames(IID_NULL, pointers.data(), static_cast<UINT>(names.size()),
                                                          lcid, named_ids.data());
            if (FAILED(result)) fail_look_up(result, member);
            id = named_ids.front();
        }
        CallFrame frame(kind, arguments, named_ids.data() + (named_ids.empty() ? 0 : 1));
        Variant answer;
        EXCEPINFO info{};
        const auto ask = [&](Call as) {
            UINT wrong = 0;
            return object_->Invoke(id, IID_NULL, lcid, static_cast<WORD>(as), frame.parameters(),
                                   is_put(as) ? nullptr : &answer.raw(), &info, &wrong);
        };
        HRESULT result = ask(kind);
        // Excel's type library has some members as methods that its reference calls properties, and the reverse. Visual
        // Basic asks for either at once; what is refused as the one has not run and is asked for as either, too.
        if (result == DISP_E_MEMBERNOTFOUND && (kind == Call::Get || kind == Call::Method)) {
            result = ask(Call::MethodOrGet);
        }
        if (FAILED(result)) fail(result, info, member);
        frame.read_back(arguments);
        return to_value(answer.raw());
    } catch (const AutomationError& error) {
        if (error.member() != "conversion") throw;
        throw AutomationError(error.code(), full_name(member), error.description());
    }
}

DISPID ComClient::id_of(std::string_view member) {
    if (member.empty()) return DISPID_VALUE;
    const auto known = ids_.find(member);
    if (known != ids_.end()) return known->second;
    std::wstring name = to_utf16(member);
    wchar_t* pointer = name.data();
    DISPID id = DISPID_UNKNOWN;
    const HRESULT result = object_->GetIDsOfNames(IID_NULL, &pointer, 1, lcid, &id);
    if (FAILED(result)) fail_look_up(result, member);
    ids_.emplace(member, id);
    return id;
}

void ComClient::fail(HRESULT result, EXCEPINFO& info, std::string_view member) const {
    if (result == E_OUTOFMEMORY) throw std::bad_alloc();
    const Failed failed = read_failure(result, info, *object_.Get());
    throw AutomationError(failed.code, full_name(member), failed.description);
}

void ComClient::fail_look_up(HRESULT result, std::string_view member) const {
    const bool unknown = result == DISP_E_UNKNOWNNAME || result == DISP_E_MEMBERNOTFOUND;
    throw AutomationError(result, full_name(member),
                          unknown ? "there is no such member or argument" : system_text(result));
}

std::string ComClient::full_name(std::string_view member) const {
    return fmt::format("{}.{}", type_name(), member.empty() ? "default member" : member);
}

std::string_view ComClient::type_name() const {
    if (!type_name_) type_name_ = read_type_name(*object_.Get());
    return *type_name_;
}

std::unique_ptr<automation::Subscription> ComClient::subscribe(automation::EventListener listener) {
    return connect(*object_.Get(), type_name(), std::move(listener));
}

}  // namespace kestrune::windows
