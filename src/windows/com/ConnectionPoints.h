#pragma once

#include <windows.h>

#include <ocidl.h>

#include <map>
#include <memory>

#include "automation/Events.h"
#include "automation/Object.h"
#include "windows/com/EventTable.h"

namespace kestrune::windows {

class ConnectionPoints;

// Where clients connect to hear an object's events. It lives as long as the object that it belongs to.
class ConnectionPoint final : public IConnectionPoint {
  public:
    ConnectionPoint(ConnectionPoints& container, automation::ObjectRef source, const EventSet* events)
        : container_(container), source_(std::move(source)), events_(events) {}

    [[nodiscard]] bool raises(REFIID id) const { return events_ && events_->source == id; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override;
    ULONG STDMETHODCALLTYPE AddRef() noexcept override;
    ULONG STDMETHODCALLTYPE Release() noexcept override;
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* id) noexcept override;
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** container) noexcept override;
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* listener, DWORD* cookie) noexcept override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) noexcept override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** connections) noexcept override;

  private:
    ConnectionPoints& container_;
    automation::ObjectRef source_;
    const EventSet* events_;
    std::map<DWORD, std::unique_ptr<automation::Subscription>> connections_;
    DWORD last_cookie_ = 0;
};

// The connection points of a served object: one, for the events that its class raises.
class ConnectionPoints final : public IConnectionPointContainer {
  public:
    ConnectionPoints(IUnknown& owner, const automation::ObjectRef& source)
        : owner_(owner), point_(*this, source, events_of(source->type_name())) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
        return owner_.QueryInterface(id, object);
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return owner_.AddRef(); }
    ULONG STDMETHODCALLTYPE Release() noexcept override { return owner_.Release(); }
    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) noexcept override;
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID id, IConnectionPoint** point) noexcept override;

  private:
    IUnknown& owner_;
    ConnectionPoint point_;
};

}  // namespace kestrune::windows
