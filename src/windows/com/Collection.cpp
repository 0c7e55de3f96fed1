#include "windows/com/Collection.h"

#include <oaidl.h>

#include "automation/Conversion.h"
#include "windows/com/Failure.h"
#include "windows/com/RefCounted.h"

namespace kestrune::windows {
namespace {

using automation::ObjectRef;

class ItemEnumerator final : public RefCounted<IEnumVARIANT> {
  public:
    ItemEnumerator(ObjectRef collection, std::int32_t next) : collection_(std::move(collection)), next_(next) {}

    HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT* items, ULONG* given) noexcept override {
        if (!items) return E_POINTER;
        ULONG done = 0;
        const HRESULT result = guarded([&]() -> HRESULT {
            const std::int32_t last = count();
            for (; done < wanted && next_ <= last; ++done, ++next_) {
                automation::Arguments position{next_};
                items[done] =
                    to_variant(collection_->invoke("Item", automation::Call::MethodOrGet, position)).release();
            }
            return done == wanted ? S_OK : S_FALSE;
        });
        if (given) *given = done;
        return result;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG items) noexcept override {
        return guarded([&]() -> HRESULT {
            const auto left = static_cast<ULONG>(count() - next_ + 1);
            next_ += static_cast<std::int32_t>(items < left ? items : left);
            return items <= left ? S_OK : S_FALSE;
        });
    }
    HRESULT STDMETHODCALLTYPE Reset() noexcept override {
        next_ = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) noexcept override {
        if (!copy) return E_POINTER;
        *copy = nullptr;
        return guarded([&]() -> HRESULT {
            *copy = new ItemEnumerator(collection_, next_);
            return S_OK;
        });
    }

  private:
    ~ItemEnumerator() override = default;

    [[nodiscard]] std::int32_t count() const {
        const std::int32_t items = automation::to_integer(automation::get(*collection_, "Count"));
        return items < next_ ? next_ - 1 : items;
    }

    ObjectRef collection_;
    std::int32_t next_;
};

}  // namespace

bool is_collection(const automation::MemberTable& table) { return table.find("Count") && table.find("Item"); }

Variant enumerate(const ObjectRef& collection) {
    Variant result;
    V_UNKNOWN(&result.raw()) = new ItemEnumerator(collection, 1);
    V_VT(&result.raw()) = VT_UNKNOWN;
    return result;
}

}  // namespace kestrune::windows
