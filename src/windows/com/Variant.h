#pragma once

#include <windows.h>

#include <oaidl.h>

#include <utility>

#include "automation/Value.h"

namespace kestrune::windows {

// A VARIANT that clears itself.
class Variant {
  public:
    Variant() noexcept { VariantInit(&raw_); }
    ~Variant() { VariantClear(&raw_); }
    Variant(Variant&& other) noexcept : raw_(other.release()) {}
    Variant& operator=(Variant&& other) noexcept {
        std::swap(raw_, other.raw_);
        return *this;
    }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;

    [[nodiscard]] VARIANT& raw() noexcept { return raw_; }
    [[nodiscard]] const VARIANT& raw() const noexcept { return raw_; }
    [[nodiscard]] VARTYPE type() const noexcept { return V_VT(&raw_); }

    // The VARIANT itself, which the caller clears from now on.
    [[nodiscard]] VARIANT release() noexcept {
        const VARIANT given = raw_;
        VariantInit(&raw_);
        return given;
    }

  private:
    VARIANT raw_;
};

// The LCID of every call: US English, in which formulas and number formats have one spelling.
inline constexpr LCID lcid = 1033;

// What a VARIANT says. References are followed, arrays of any element type and of one or two dimensions are copied.
// 64-bit numbers and unsigned ones that do not fit 32 bits, currency and decimals become Doubles; DISP_E_PARAMNOTFOUND
// is Missing. Fails with type-mismatch for types that automation has no use for (records, more dimensions).
automation::Value to_value(const VARIANT& variant);

// A Value as VT_EMPTY, VT_NULL, VT_ERROR, VT_BOOL, VT_I4, VT_R8, VT_DATE, VT_BSTR, VT_DISPATCH or an array of VARIANTs.
Variant to_variant(const automation::Value& value);

}  // namespace kestrune::windows
