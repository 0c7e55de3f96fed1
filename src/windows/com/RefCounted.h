#pragma once

#include <windows.h>

#include <unknwn.h>

#include <atomic>

#include "windows/com/Module.h"

namespace kestrune::windows {

// A COM object with one interface besides IUnknown, counted, and deleted by its last Release. It begins with one
// reference, its maker's.
template <class Interface>
class RefCounted : public Interface {
  public:
    RefCounted() = default;
    RefCounted(const RefCounted&) = delete;
    RefCounted& operator=(const RefCounted&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (id != IID_IUnknown && id != __uuidof(Interface) && !answers(id)) return E_NOINTERFACE;
        *object = static_cast<Interface*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return static_cast<ULONG>(++references_); }
    ULONG STDMETHODCALLTYPE Release() noexcept override {
        const long left = --references_;
        if (left == 0) delete this;
        return static_cast<ULONG>(left);
    }

  protected:
    virtual ~RefCounted() = default;

    // Further names under which the same interface is asked for.
    [[nodiscard]] virtual bool answers(REFIID) const noexcept { return false; }

  private:
    std::atomic<long> references_ = 1;
    Module::Use use_;
};

}  // namespace kestrune::windows
