#include "windows/com/SafeArray.h"

#include <array>
#include <cstddef>
#include <new>

#include "automation/AutomationError.h"
#include "windows/com/Failure.h"
#include "windows/com/Payload.h"
#include "windows/com/Reference.h"
#include "windows/com/Variant.h"

namespace kestrune::windows {
namespace {

using automation::Array;
using automation::Value;

[[noreturn]] void mismatch(std::string_view what) {
    throw automation::AutomationError(automation::hresult::type_mismatch, "conversion", what);
}

// The elements of an array in memory, for as long as this lives.
class Elements {
  public:
    explicit Elements(SAFEARRAY* array) : array_(array), size_(SafeArrayGetElemsize(array)) {
        check(SafeArrayAccessData(array, &data_), "array");
    }
    ~Elements() { SafeArrayUnaccessData(array_); }
    Elements(const Elements&) = delete;
    Elements& operator=(const Elements&) = delete;

    [[nodiscard]] void* at(std::size_t position) const { return static_cast<std::byte*>(data_) + position * size_; }

  private:
    SAFEARRAY* array_;
    std::size_t size_;
    void* data_ = nullptr;
};

// Calls visit(place in memory, place row by row) for all elements. SAFEARRAYs lie column by column.
template <class Visit>
void for_each_place(const Array& array, Visit&& visit) {
    const auto rows = static_cast<std::size_t>(array.bound(0).count);
    const std::size_t columns = array.dimensions() == 2 ? static_cast<std::size_t>(array.bound(1).count) : 1;
    for (std::size_t column = 0; column < columns; ++column) {
        for (std::size_t row = 0; row < rows; ++row) visit(column * rows + row, row * columns + column);
    }
}

Array::Bound bound_of(SAFEARRAY* array, UINT dimension) {
    LONG lower = 0;
    LONG upper = -1;
    check(SafeArrayGetLBound(array, dimension, &lower), "array");
    check(SafeArrayGetUBound(array, dimension, &upper), "array");
    return {lower, upper - lower + 1};
}

Array shape_of(SAFEARRAY* array) {
    switch (array ? SafeArrayGetDim(array) : 0) {
        case 0:
            return Array(Array::Bound{0, 0});
        case 1:
            return Array(bound_of(array, 1));
        case 2:
            return {bound_of(array, 1), bound_of(array, 2)};
        default:
            mismatch("arrays of more than two dimensions are not supported");
    }
}

bool same_shape(const Array& a, const Array& b) {
    if (a.dimensions() != b.dimensions()) return false;
    for (std::size_t i = 0; i < a.dimensions(); ++i) {
        if (!(a.bound(i) == b.bound(i))) return false;
    }
    return true;
}

SafeArray create(VARTYPE type, const Array& shape) {
    std::array<SAFEARRAYBOUND, 2> bounds{};
    for (std::size_t i = 0; i < shape.dimensions(); ++i) {
        bounds[i] = {static_cast<ULONG>(shape.bound(i).count), shape.bound(i).lower};
    }
    SafeArray result(SafeArrayCreate(type, static_cast<UINT>(shape.dimensions()), bounds.data()));
    if (!result) throw std::bad_alloc();
    return result;
}

VARTYPE element_type_of(SAFEARRAY* array) {
    VARTYPE type = VT_EMPTY;
    // Arrays that were made by hand may not know their type; then the features tell.
    if (SUCCEEDED(SafeArrayGetVartype(array, &type))) return type;
    if (array->fFeatures & FADF_VARIANT) return VT_VARIANT;
    mismatch("an array does not tell the type of its elements");
}

}  // namespace

Array to_array(SAFEARRAY* array) {
    Array result = shape_of(array);
    if (result.elements().empty()) return result;
    const VARTYPE type = element_type_of(array);
    const Elements elements(array);
    for_each_place(result, [&](std::size_t from, std::size_t to) {
        const void* element = elements.at(from);
        result.elements()[to] =
            type == VT_VARIANT ? to_value(*static_cast<const VARIANT*>(element)) : to_value(view_of(type, element));
    });
    return result;
}

SafeArray to_safe_array(const Array& array) {
    SafeArray result = create(VT_VARIANT, array);
    if (array.elements().empty()) return result;
    const Elements elements(result.get());
    for_each_place(array, [&](std::size_t to, std::size_t from) {
        *static_cast<VARIANT*>(elements.at(to)) = to_variant(array.elements()[from]).release();
    });
    return result;
}

void assign(SAFEARRAY*& target, VARTYPE element_type, const Array& array) {
    const bool in_place = target && same_shape(shape_of(target), array);
    if (!in_place && target && (target->fFeatures & (FADF_FIXEDSIZE | FADF_STATIC))) {
        mismatch("the array has a fixed size");
    }
    // The new elements first, so that one that does not convert leaves the old array whole.
    SafeArray fresh = create(element_type, array);
    if (!array.elements().empty()) {
        const Elements elements(fresh.get());
        for_each_place(array, [&](std::size_t to, std::size_t from) {
            Variant element = to_variant(array.elements()[from]);
            if (element_type != VT_VARIANT) {
                coerce(element, element_type);
                move_payload(element.raw(), element_type, elements.at(to));
            } else {
                *static_cast<VARIANT*>(elements.at(to)) = element.release();
            }
        });
    }
    if (in_place) {
        check(SafeArrayCopyData(fresh.get(), target), "array");
        return;
    }
    // A locked array cannot go; then nothing changes.
    if (target) check(SafeArrayDestroy(target), "array");
    target = fresh.release();
}

}  // namespace kestrune::windows
