// What other programs send: every type of VARIANT, by value and by reference, alone and in arrays.
#include "windows/com/Variant.h"

#include <gmock/gmock.h>

#include <bit>
#include <limits>

#include "RawCall.h"
#include "Sample.h"
#include "automation/AutomationError.h"
#include "windows/com/Objects.h"
#include "windows/com/Payload.h"
#include "windows/com/Reference.h"
#include "windows/com/SafeArray.h"

namespace kestrune::windows {
namespace {

using automation::Array;
using automation::Date;
using automation::Empty;
using automation::Error;
using automation::Missing;
using automation::Null;

template <class Number>
VARIANT of(VARTYPE type, Number number) {
    return view_of(type, &number);
}

DECIMAL decimal(ULONGLONG digits, BYTE scale) {
    DECIMAL number{};
    number.Lo64 = digits;
    number.scale = scale;
    number.sign = DECIMAL_NEG;
    return number;
}

TEST(FromVariant, EveryTypeByValueAndByReference) {
    struct Row {
        VARIANT sent;
        Value expected;
    };
    constexpr double two_to_63 = 9223372036854775808.0;
    const BSTR text = SysAllocString(L"\u00E9");
    const std::pair<VARIANT, Value> rows[] = {
        {of<signed char>(VT_I1, -128), -128},
        {of<BYTE>(VT_UI1, 255), 255},
        {of<SHORT>(VT_I2, -32768), -32768},
        {of<USHORT>(VT_UI2, 65535), 65535},
        {of<LONG>(VT_I4, std::numeric_limits<LONG>::min()), std::numeric_limits<std::int32_t>::min()},
        {of<INT>(VT_INT, -5), -5},
        {of<ULONG>(VT_UI4, 2147483647), 2147483647},
        {of<ULONG>(VT_UI4, 4294967295), 4294967295.0},
        {of<UINT>(VT_UINT, 7), 7},
        {of<LONGLONG>(VT_I8, -5000000000), -5e9},
        {of<LONGLONG>(VT_I8, -5), -5},
        {of<ULONGLONG>(VT_UI8, 1ULL << 63), two_to_63},
        {of<FLOAT>(VT_R4, 0.5F), 0.5},
        {of<DOUBLE>(VT_R8, 1e300), 1e300},
        {of<LONGLONG>(VT_CY, -123456), -12.3456},
        {of<DATE>(VT_DATE, -1.25), Date{-1.25}},
        {of<VARIANT_BOOL>(VT_BOOL, VARIANT_TRUE), true},
        {of<VARIANT_BOOL>(VT_BOOL, 1), true},
        {of<VARIANT_BOOL>(VT_BOOL, 0), false},
        {of<SCODE>(VT_ERROR, DISP_E_PARAMNOTFOUND), Missing{}},
        {of<SCODE>(VT_ERROR, static_cast<SCODE>(0x800A07EA)), Error{static_cast<SCODE>(0x800A07EA)}},
        {of(VT_DECIMAL, decimal(12345, 2)), -123.45},
        {of(VT_BSTR, text), "\xC3\xA9"},
        {of<BSTR>(VT_BSTR, nullptr), ""},
        {of<IDispatch*>(VT_DISPATCH, nullptr), nullptr},
        {of<IUnknown*>(VT_UNKNOWN, nullptr), nullptr},
        {of<SAFEARRAY*>(VT_ARRAY | VT_I2, nullptr), Array({0, 0})},
    };
    for (const auto& [sent, expected] : rows) {
        SCOPED_TRACE(V_VT(&sent));
        VARIANT direct = sent;
        EXPECT_EQ(to_value(direct), expected);
        VARIANT by_reference =
            reference(V_VT(&sent), V_VT(&sent) == VT_DECIMAL ? static_cast<void*>(&direct) : &V_I8(&direct));
        EXPECT_EQ(to_value(by_reference), expected);
        EXPECT_EQ(to_value(reference(VT_VARIANT, &direct)), expected);
        EXPECT_EQ(to_value(reference(VT_VARIANT, &by_reference)), expected);
    }
    SysFreeString(text);
    VARIANT v;
    VariantInit(&v);
    EXPECT_EQ(to_value(v), Value(Empty{}));
    EXPECT_EQ(to_value(reference(VT_VARIANT, &v)), Value(Empty{}));
    V_VT(&v) = VT_NULL;
    EXPECT_EQ(to_value(v), Value(Null{}));
}

TEST(FromVariant, ReferencesInACircleEnd) {
    VARIANT circle;
    circle = reference(VT_VARIANT, &circle);
    EXPECT_THROW(to_value(circle), automation::AutomationError);
}

TEST(FromVariant, ArraysOfTypedElements) {
    struct Row {
        VARTYPE type;
        Value element;
    };
    const Row rows[] = {
        {VT_UI1, 200}, {VT_I2, -2}, {VT_I4, 3},         {VT_R4, 0.25},  {VT_R8, 0.1},        {VT_BOOL, true},
        {VT_CY, 1.5},  {VT_I8, -7}, {VT_DATE, Date{2}}, {VT_BSTR, "t"}, {VT_VARIANT, "any"}, {VT_DECIMAL, 2.5},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.type);
        SAFEARRAYBOUND bounds[] = {{3, -1}, {2, 10}};
        SAFEARRAY* raw = SafeArrayCreate(row.type, 2, bounds);
        SafeArray owned(raw);
        Array expected({-1, 3}, {10, 2});
        // Row 1, column 10: the last row of the first column.
        LONG at[] = {1, 10};
        Variant element = to_variant(row.element);
        if (row.type != VT_VARIANT) coerce(element, row.type);
        void* payload = row.type == VT_VARIANT || row.type == VT_DECIMAL ? static_cast<void*>(&element.raw())
                        : row.type == VT_BSTR                            ? static_cast<void*>(V_BSTR(&element.raw()))
                                                                         : &V_I8(&element.raw());
        ASSERT_EQ(SafeArrayPutElement(raw, at, payload), S_OK);
        expected.at(1, 10) = row.element;
        const Array read = to_array(raw);
        EXPECT_EQ(read.at(1, 10), row.element);
        EXPECT_TRUE(read.bound(0) == expected.bound(0) && read.bound(1) == expected.bound(1));
    }
    SAFEARRAYBOUND cube[] = {{1, 0}, {1, 0}, {1, 0}};
    const SafeArray deep(SafeArrayCreate(VT_I4, 3, cube));
    EXPECT_THROW(to_array(deep.get()), automation::AutomationError);
}

TEST(ToVariant, ArraysLieColumnByColumn) {
    Array array({4, 2}, {-3, 3});
    std::int32_t next = 0;
    for (Value& element : array.elements()) element = next++;
    const SafeArray raw = to_safe_array(array);
    LONG at[] = {5, -2};
    Variant element;
    ASSERT_EQ(SafeArrayGetElement(raw.get(), at, &element.raw()), S_OK);
    EXPECT_EQ(to_value(element.raw()), array.at(5, -2));
    LONG bound = 0;
    SafeArrayGetLBound(raw.get(), 1, &bound);
    EXPECT_EQ(bound, 4);
    SafeArrayGetUBound(raw.get(), 2, &bound);
    EXPECT_EQ(bound, -1);
}

// A member of ours that writes to its argument, called with a reference of each type.
class WriteBack : public testing::Test {
  protected:
    HRESULT change(VARIANT argument, const Value& to, UINT* wrong = nullptr) {
        const Variant value = to_variant(to);
        RawCall call{4, DISPATCH_METHOD, {value.raw(), argument}, {}};
        const HRESULT result = call(server.Get());
        if (wrong) *wrong = call.wrong;
        return result;
    }

    ComPtr<IDispatch> server = dispatch_of(std::make_shared<Sample>());
};

TEST_F(WriteBack, InTheTypeOfTheReference) {
    struct Row {
        VARTYPE type;
        Value before;
        Value written;
        Value after;
        HRESULT result = S_OK;
    };
    const Row rows[] = {
        {VT_I4, 1, 2.5, 2},
        {VT_I2, 1, "300", 300},
        {VT_UI1, 1, 300, 1, DISP_E_OVERFLOW},
        {VT_R8, 1.5, "2.25", 2.25},
        {VT_BOOL, false, 7, true},
        {VT_BSTR, "old", 12, "12"},
        {VT_BSTR, "old", "new", "new"},
        {VT_DATE, Date{1}, Date{2.5}, Date{2.5}},
        {VT_CY, 1.0, 2.125, 2.125},
        {VT_DECIMAL, 1.0, 2.125, 2.125},
        {VT_I4, 1, "no number", 1, DISP_E_TYPEMISMATCH},
        {VT_I4, 1, Null{}, 1, DISP_E_TYPEMISMATCH},
        {VT_DISPATCH, nullptr, 5, nullptr, DISP_E_TYPEMISMATCH},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(&row - rows);
        Variant target = to_variant(row.before);
        coerce(target, row.type);
        UINT wrong = 99;
        const VARIANT argument =
            reference(row.type, row.type == VT_DECIMAL ? static_cast<void*>(&target.raw()) : &V_I8(&target.raw()));
        EXPECT_EQ(static_cast<ULONG>(change(argument, row.written, &wrong)), static_cast<ULONG>(row.result));
        EXPECT_EQ(wrong, row.result == S_OK ? 99U : 1U);
        V_VT(&target.raw()) = row.type;
        EXPECT_EQ(to_value(target.raw()), row.after);
    }
}

TEST_F(WriteBack, ThroughNestedReferences) {
    Variant inner = to_variant("old");
    EXPECT_EQ(change(reference(VT_VARIANT, &inner.raw()), 5), S_OK);
    EXPECT_EQ(inner.type(), VT_I4);
    LONG typed = 1;
    VARIANT outer = reference(VT_I4, &typed);
    EXPECT_EQ(change(reference(VT_VARIANT, &outer), "8"), S_OK);
    EXPECT_EQ(typed, 8);
}

TEST_F(WriteBack, Arrays) {
    const auto of_longs = [](LONG lower, ULONG count) { return SafeArrayCreateVector(VT_I4, lower, count); };
    Array two({1, 2});
    two.at(1) = "10";
    two.at(2) = 20.0;
    SAFEARRAY* same = of_longs(1, 2);
    SAFEARRAY* const where = same;
    EXPECT_EQ(change(reference(VT_ARRAY | VT_I4, &same), two), S_OK);
    EXPECT_EQ(same, where);
    EXPECT_EQ(to_array(same).at(1), Value(10));
    SAFEARRAY* resized = of_longs(0, 5);
    EXPECT_EQ(change(reference(VT_ARRAY | VT_I4, &resized), two), S_OK);
    EXPECT_EQ(to_array(resized).bound(0), (Array::Bound{1, 2}));
    VARTYPE type = VT_EMPTY;
    SafeArrayGetVartype(resized, &type);
    EXPECT_EQ(type, VT_I4);
    SAFEARRAY* undimensioned = nullptr;
    EXPECT_EQ(change(reference(VT_ARRAY | VT_VARIANT, &undimensioned), two), S_OK);
    EXPECT_EQ(to_array(undimensioned), two);
    SAFEARRAY* fixed = of_longs(0, 5);
    fixed->fFeatures |= FADF_FIXEDSIZE;
    EXPECT_EQ(change(reference(VT_ARRAY | VT_I4, &fixed), two), DISP_E_TYPEMISMATCH);
    two.at(2) = "no number";
    EXPECT_EQ(change(reference(VT_ARRAY | VT_I4, &same), two), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(to_array(same).at(1), Value(10));
    EXPECT_EQ(change(reference(VT_ARRAY | VT_I4, &same), 5), DISP_E_TYPEMISMATCH);
    for (SAFEARRAY* array : {same, resized, undimensioned, fixed}) SafeArrayDestroy(array);
}

}  // namespace
}  // namespace kestrune::windows
