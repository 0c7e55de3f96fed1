#include "windows/com/EventSink.h"

#include <ocidl.h>

#include <vector>

#include "automation/AutomationError.h"
#include "windows/com/EventTable.h"
#include "windows/com/Failure.h"
#include "windows/com/IncomingCall.h"
#include "windows/com/Objects.h"
#include "windows/com/RefCounted.h"
#include "windows/com/Variant.h"

namespace kestrune::windows {
namespace {

using automation::Value;

// What the source calls: an event's identifier becomes its name for the listener.
class EventSink final : public RefCounted<IDispatch> {
  public:
    EventSink(const EventSet& events, automation::EventListener listener)
        : events_(events), listener_(std::move(listener)) {}

    void silence() noexcept { listener_ = nullptr; }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
        if (!count) return E_POINTER;
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override {
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                                     UINT*) noexcept override {
        if (!parameters) return E_INVALIDARG;
        return guarded([&]() -> HRESULT {
            const Event* event = events_.find(id);
            if (!event) return DISP_E_MEMBERNOTFOUND;
            // The listener may let go of its subscription, and so of this sink, while it hears.
            const ComPtr<EventSink> kept(this);
            const automation::EventListener listener = listener_;
            if (!listener) return S_OK;
            IncomingCall call(*parameters);
            call.read(automation::Call::Method, [&](DISPID position) -> IncomingCall::Named {
                if (position < 0 || static_cast<UINT>(position) >= parameters->cArgs)
                    throw automation::WrongCall(DISP_E_PARAMNOTFOUND, "event", "no such argument");
                return {static_cast<std::size_t>(position), {}};
            });
            listener(event->name, call.arguments());
            call.write_back();
            return S_OK;
        });
    }

  private:
    ~EventSink() override = default;
    [[nodiscard]] bool answers(REFIID id) const noexcept override { return id == events_.source; }

    const EventSet& events_;
    automation::EventListener listener_;
};

class Connection final : public automation::Subscription {
  public:
    Connection(ComPtr<IConnectionPoint> point, ComPtr<EventSink> sink) : point_(point), sink_(sink) {
        check(point_->Advise(sink_.Get(), &cookie_), "events");
    }
    ~Connection() override {
        sink_->silence();
        point_->Unadvise(cookie_);
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

  private:
    ComPtr<IConnectionPoint> point_;
    ComPtr<EventSink> sink_;
    DWORD cookie_ = 0;
};

}  // namespace

std::unique_ptr<automation::Subscription> connect(IDispatch& source, std::string_view class_name,
                                                  automation::EventListener listener) {
    ComPtr<IConnectionPointContainer> container;
    if (SUCCEEDED(source.QueryInterface(IID_PPV_ARGS(&container)))) {
        for (const EventSet& events : event_sets()) {
            ComPtr<IConnectionPoint> point;
            if (FAILED(container->FindConnectionPoint(events.source, &point)) || !point) continue;
            return std::make_unique<Connection>(point, adopt(new EventSink(events, std::move(listener))));
        }
    }
    throw automation::AutomationError(automation::hresult::member_not_found, class_name, "raises no known events");
}

void tell(IDispatch& sink, DISPID event, automation::Arguments& arguments) {
    const std::size_t count = arguments.positional.size();
    std::vector<Variant> held(count);
    std::vector<VARIANT> slots(count);
    for (std::size_t i = 0; i < count; ++i) {
        held[i] = to_variant(arguments.positional[i]);
        VARIANT& slot = slots[count - 1 - i];
        if (held[i].type() == VT_BOOL) {
            V_VT(&slot) = VT_BYREF | VT_BOOL;
            V_BOOLREF(&slot) = &V_BOOL(&held[i].raw());
        } else {
            slot = held[i].raw();
        }
    }
    DISPPARAMS parameters{slots.data(), nullptr, static_cast<UINT>(count), 0};
    sink.Invoke(event, IID_NULL, lcid, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
    for (std::size_t i = 0; i < count; ++i) {
        if (held[i].type() == VT_BOOL) arguments.positional[i] = to_value(held[i].raw());
    }
}

}  // namespace kestrune::windows
