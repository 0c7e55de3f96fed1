#include "windows/com/Enumerators.h"

#include <utility>

#include "windows/com/Failure.h"
#include "windows/com/RefCounted.h"
#include "windows/com/Variant.h"

namespace kestrune::windows {
namespace {

using automation::Enumeration;
using automation::Value;

class ServedItems final : public RefCounted<IEnumVARIANT> {
  public:
    explicit ServedItems(std::shared_ptr<Enumeration> items) : items_(std::move(items)) {}

    HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT* items, ULONG* given) noexcept override {
        if (!items) return E_POINTER;
        ULONG done = 0;
        const HRESULT result = guarded([&]() -> HRESULT {
            for (; done < wanted; ++done) {
                const std::optional<Value> item = items_->next();
                if (!item) return S_FALSE;
                items[done] = to_variant(*item).release();
            }
            return S_OK;
        });
        if (given) *given = done;
        return result;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept override {
        return guarded([&]() -> HRESULT {
            for (; count > 0; --count) {
                if (!items_->next()) return S_FALSE;
            }
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE Reset() noexcept override {
        return guarded([&]() -> HRESULT {
            items_->reset();
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) noexcept override {
        if (!copy) return E_POINTER;
        *copy = nullptr;
        return guarded([&]() -> HRESULT {
            *copy = new ServedItems(items_->clone());
            return S_OK;
        });
    }

  private:
    ~ServedItems() override = default;

    std::shared_ptr<Enumeration> items_;
};

class ReceivedItems final : public Enumeration {
  public:
    explicit ReceivedItems(ComPtr<IEnumVARIANT> items) : items_(std::move(items)) {}

    std::optional<Value> next() override {
        Variant item;
        ULONG given = 0;
        const HRESULT result = items_->Next(1, &item.raw(), &given);
        check(result, "Enumeration");
        if (result != S_OK) return std::nullopt;
        return to_value(item.raw());
    }
    void reset() override { check(items_->Reset(), "Enumeration"); }
    [[nodiscard]] std::shared_ptr<Enumeration> clone() const override {
        ComPtr<IEnumVARIANT> copy;
        check(items_->Clone(&copy), "Enumeration");
        return std::make_shared<ReceivedItems>(std::move(copy));
    }

  private:
    ComPtr<IEnumVARIANT> items_;
};

}  // namespace

ComPtr<IUnknown> enumerator_of(std::shared_ptr<Enumeration> items) {
    return adopt<IUnknown>(new ServedItems(std::move(items)));
}

std::shared_ptr<Enumeration> enumeration_of(ComPtr<IEnumVARIANT> items) {
    return std::make_shared<ReceivedItems>(std::move(items));
}

}  // namespace kestrune::windows
