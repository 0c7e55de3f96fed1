#include "windows/com/ClassFactory.h"

#include <utility>

#include "windows/com/Failure.h"
#include "windows/com/Objects.h"
#include "windows/com/RefCounted.h"

namespace kestrune::windows {
namespace {

class ClassFactory final : public RefCounted<IClassFactory> {
  public:
    explicit ClassFactory(automation::ClassFactory create) : create_(std::move(create)) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) noexcept override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        return guarded([&] { return dispatch_of(create_())->QueryInterface(id, object); });
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override {
        lock ? Module::hold() : Module::release();
        return S_OK;
    }

  private:
    ~ClassFactory() override = default;

    automation::ClassFactory create_;
};

}  // namespace

HRESULT get_class_object(automation::ClassFactory create, REFIID id, void** object) noexcept {
    if (!object) return E_POINTER;
    *object = nullptr;
    return guarded([&] { return adopt(new ClassFactory(std::move(create)))->QueryInterface(id, object); });
}

}  // namespace kestrune::windows
