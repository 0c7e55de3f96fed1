#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "automation/Conversion.h"
#include "automation/Enumeration.h"
#include "automation/Object.h"
#include "contract_application/Excel.h"
#include "host/objects/Constants.h"

namespace kestrune::automation {

// How failures show values.
inline void PrintTo(const Value& value, std::ostream* out) {
    constexpr std::string_view kinds[] = {"Empty", "Null",  "Missing", "Boolean", "Integer", "Double",
                                          "Date",  "Error", "String",  "Object",  "Array"};
    *out << kinds[static_cast<std::size_t>(value.kind())];
    if (value.is_number() || value.is(Value::Kind::String)) *out << ' ' << to_text(value);
    if (const auto* error = value.if_is<Error>()) *out << ' ' << std::hex << error->code << std::dec;
    if (const Array* array = value.array()) *out << testing::PrintToString(array->elements());
}

}  // namespace kestrune::automation

// What Excel's object model does, as a client sees that knows nothing of who serves it: every call is by name. The
// same tests run in one process and through COM. Those of Sure say what is documented or long established, those of
// Likely what experience says: a person with Excel walks through Likely first.
namespace kestrune::contract {

using namespace host;
namespace hresult = automation::hresult;
using automation::Arguments;
using automation::Array;
using automation::Call;
using automation::Date;
using automation::Error;
using automation::HResult;
using automation::Missing;
using automation::Null;
using automation::ObjectRef;
using automation::to_boolean;
using automation::to_double;
using automation::to_object;
using automation::to_text;
using automation::Value;

inline constexpr HResult ok = hresult::ok;
inline constexpr HResult error_1004 = hresult::excel_error;

// A fresh Excel with one new workbook of the sheets Sheet1, which is active, and Sheet2.
class ContractTest : public testing::Test {
  public:
    ContractTest() {
        call(object(application, "Workbooks"), "Add");
        call(object(application, "Worksheets"), "Add", Arguments{}.name("After", sheet("Sheet1")));
        call(sheet("Sheet1"), "Activate");
    }

    static Value get(const ObjectRef& object, std::string_view member, Arguments arguments = {}) {
        return automation::get(*object, member, std::move(arguments));
    }
    static ObjectRef object(const ObjectRef& from, std::string_view member, Arguments arguments = {}) {
        return to_object(automation::get(*from, member, std::move(arguments)));
    }
    static Value call(const ObjectRef& object, std::string_view member, Arguments arguments = {}) {
        return automation::call(*object, member, std::move(arguments));
    }
    static void put(const ObjectRef& object, std::string_view member, Value value) {
        automation::put(*object, member, std::move(value));
    }
    static void put_at(const ObjectRef& object, std::string_view member, Value index, Value value) {
        Arguments arguments{std::move(index), std::move(value)};
        object->invoke(member, Call::Put, arguments);
    }
    static double number(const ObjectRef& object, std::string_view member) { return to_double(get(object, member)); }

    // The code that a call fails with, and ok when it goes through. A failure says why.
    static HResult refused(const ObjectRef& object, std::string_view member, Value value) {
        return code_of(object, member, Call::Put, {std::move(value)});
    }
    static HResult call_refused(const ObjectRef& object, std::string_view member, Arguments arguments = {}) {
        return code_of(object, member, Call::MethodOrGet, std::move(arguments));
    }
    static HResult code_of(const ObjectRef& object, std::string_view member, Call kind, Arguments arguments) {
        try {
            object->invoke(member, kind, arguments);
        } catch (const automation::AutomationError& error) {
            EXPECT_FALSE(error.description().empty()) << member;
            return error.code();
        }
        return ok;
    }

    ObjectRef workbook() { return object(application, "ActiveWorkbook"); }
    ObjectRef sheet(std::string_view name) { return object(application, "Worksheets", {name}); }
    // Cells of the first sheet.
    ObjectRef range(std::string_view address) { return object(sheet("Sheet1"), "Range", {address}); }
    static ObjectRef font(const ObjectRef& range) { return object(range, "Font"); }
    static ObjectRef interior(const ObjectRef& range) { return object(range, "Interior"); }
    static ObjectRef border(const ObjectRef& range, std::int32_t index) { return object(range, "Borders", {index}); }
    static std::string address(const ObjectRef& range) { return to_text(get(range, "Address")); }

    Value style(std::string_view cells, std::int32_t index) { return get(border(range(cells), index), "LineStyle"); }
    void draw(std::string_view cells, std::int32_t index, std::int32_t line = xlContinuous) {
        put(border(range(cells), index), "LineStyle", line);
    }
    static ObjectRef conditions(const ObjectRef& range) { return object(range, "FormatConditions"); }
    static ObjectRef condition(const ObjectRef& range, std::int32_t index) {
        return to_object(call(conditions(range), "Item", {index}));
    }
    ObjectRef names() { return object(workbook(), "Names"); }
    ObjectRef name(const Value& key) { return to_object(call(names(), "Item", {key})); }

    const ObjectRef application = new_excel();
};

class Sure : public ContractTest {};
class Likely : public ContractTest {};

// A 2-D array, 1-based, row by row.
inline Value block(const std::vector<std::vector<Value>>& rows) {
    const auto columns = static_cast<std::int32_t>(rows.front().size());
    Array array({1, static_cast<std::int32_t>(rows.size())}, {1, columns});
    std::size_t at = 0;
    for (const auto& row : rows) {
        for (const Value& value : row) array.elements()[at++] = value;
    }
    return array;
}

}  // namespace kestrune::contract
