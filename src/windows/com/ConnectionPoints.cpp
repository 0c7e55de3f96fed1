#include "windows/com/ConnectionPoints.h"

#include <olectl.h>

#include "windows/com/EventSink.h"
#include "windows/com/Failure.h"
#include "windows/com/Objects.h"
#include "windows/com/RefCounted.h"

namespace kestrune::windows {
namespace {

// Goes through the one connection point that there is.
class OnePoint final : public RefCounted<IEnumConnectionPoints> {
  public:
    OnePoint(IConnectionPoint* point, bool done) : point_(point), done_(done) {}

    HRESULT STDMETHODCALLTYPE Next(ULONG wanted, IConnectionPoint** points, ULONG* given) noexcept override {
        if (!points || (wanted != 1 && !given)) return E_POINTER;
        const ULONG count = wanted > 0 && !done_ ? 1 : 0;
        if (count) point_.CopyTo(points);
        if (given) *given = count;
        done_ = done_ || count;
        return count == wanted ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept override {
        const ULONG left = done_ ? 0 : 1;
        done_ = done_ || count;
        return count <= left ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Reset() noexcept override {
        done_ = false;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumConnectionPoints** copy) noexcept override {
        if (!copy) return E_POINTER;
        *copy = nullptr;
        return guarded([&]() -> HRESULT {
            *copy = new OnePoint(point_.Get(), done_);
            return S_OK;
        });
    }

  private:
    ~OnePoint() override = default;

    ComPtr<IConnectionPoint> point_;
    bool done_;
};

}  // namespace

HRESULT ConnectionPoint::QueryInterface(REFIID id, void** object) noexcept {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (id != IID_IUnknown && id != IID_IConnectionPoint) return E_NOINTERFACE;
    *object = static_cast<IConnectionPoint*>(this);
    AddRef();
    return S_OK;
}

ULONG ConnectionPoint::AddRef() noexcept { return container_.AddRef(); }
ULONG ConnectionPoint::Release() noexcept { return container_.Release(); }

HRESULT ConnectionPoint::GetConnectionInterface(IID* id) noexcept {
    if (!id) return E_POINTER;
    *id = events_ ? events_->source : IID_NULL;
    return S_OK;
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) noexcept {
    if (!container) return E_POINTER;
    *container = &container_;
    container_.AddRef();
    return S_OK;
}

HRESULT ConnectionPoint::Advise(IUnknown* listener, DWORD* cookie) noexcept {
    if (!listener || !cookie) return E_POINTER;
    *cookie = 0;
    return guarded([&]() -> HRESULT {
        ComPtr<IDispatch> sink;
        if (!events_) return CONNECT_E_CANNOTCONNECT;
        if (FAILED(listener->QueryInterface(events_->source, reinterpret_cast<void**>(sink.GetAddressOf()))) &&
            FAILED(listener->QueryInterface(IID_PPV_ARGS(&sink)))) {
            return CONNECT_E_CANNOTCONNECT;
        }
        const EventSet& events = *events_;
        auto listens = [sink, &events](std::string_view event, automation::Arguments& arguments) {
            if (const Event* known = events.find(event)) tell(*sink.Get(), known->id, arguments);
        };
        connections_.emplace(++last_cookie_, automation::subscribe(source_, std::move(listens)));
        *cookie = last_cookie_;
        return S_OK;
    });
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie) noexcept {
    return guarded([&] { return connections_.erase(cookie) ? S_OK : CONNECT_E_NOCONNECTION; });
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections**) noexcept { return E_NOTIMPL; }

HRESULT ConnectionPoints::EnumConnectionPoints(IEnumConnectionPoints** points) noexcept {
    if (!points) return E_POINTER;
    *points = nullptr;
    return guarded([&]() -> HRESULT {
        *points = new OnePoint(&point_, false);
        return S_OK;
    });
}

HRESULT ConnectionPoints::FindConnectionPoint(REFIID id, IConnectionPoint** point) noexcept {
    if (!point) return E_POINTER;
    *point = nullptr;
    if (!point_.raises(id)) return CONNECT_E_NOCONNECTION;
    *point = &point_;
    AddRef();
    return S_OK;
}

}  // namespace kestrune::windows
