#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "automation/Conversion.h"
#include "automation/Object.h"
#include "host/model/Workbook.h"
#include "host/objects/HostSession.h"

namespace kestrune::host {

using automation::Arguments;
using automation::Empty;
using automation::Missing;
using automation::Null;
using automation::ObjectRef;
using automation::Value;

// Excel with one workbook, "Model.xlsx", of the sheets "Inputs" and "It's Output", called as its callers do.
class HostTest : public testing::Test {
  protected:
    HostTest() {
        auto fresh = std::make_unique<Workbook>();
        fresh->name = "Model.xlsx";
        fresh->path = "/models";
        inputs_sheet = &fresh->add_sheet("Inputs");
        fresh->add_sheet("It's Output");
        workbook = &session.open(std::move(fresh));
    }

    static Value get(const ObjectRef& object, std::string_view member, Arguments arguments = {}) {
        return automation::get(*object, member, std::move(arguments));
    }
    static ObjectRef object(const ObjectRef& from, std::string_view member, Arguments arguments = {}) {
        const Value answer = automation::get(*from, member, std::move(arguments));
        return automation::to_object(answer);
    }
    static Value call(const ObjectRef& object, std::string_view member, Arguments arguments = {}) {
        return automation::call(*object, member, std::move(arguments));
    }
    static void put(const ObjectRef& object, std::string_view member, Value value) {
        automation::put(*object, member, std::move(value));
    }
    static double number(const ObjectRef& object, std::string_view member) {
        return automation::to_double(get(object, member));
    }

    // The code that a write fails with; ok when it goes through.
    static automation::HResult refused(const ObjectRef& object, std::string_view member, Value value) {
        try {
            put(object, member, std::move(value));
        } catch (const automation::AutomationError& error) {
            EXPECT_FALSE(error.description().empty());
            return error.code();
        }
        return automation::hresult::ok;
    }
    static automation::HResult call_refused(const ObjectRef& object, std::string_view member,
                                            Arguments arguments = {}) {
        try {
            object->invoke(member, automation::Call::MethodOrGet, arguments);
        } catch (const automation::AutomationError& error) {
            return error.code();
        }
        return automation::hresult::ok;
    }

    ObjectRef sheet(std::string_view name) { return object(application, "Worksheets", {name}); }
    // Cells of the first sheet.
    ObjectRef range(std::string_view address) { return object(sheet("Inputs"), "Range", {address}); }
    static ObjectRef font(const ObjectRef& range) { return object(range, "Font"); }
    static ObjectRef interior(const ObjectRef& range) { return object(range, "Interior"); }
    static ObjectRef border(const ObjectRef& range, std::int32_t index) { return object(range, "Borders", {index}); }
    static std::string address(const ObjectRef& range) { return automation::to_text(get(range, "Address")); }

    static constexpr automation::HResult ok = automation::hresult::ok;
    static constexpr automation::HResult error_1004 = automation::hresult::excel_error;

    HostSession session;
    ObjectRef application = make_application(session);
    Workbook* workbook = nullptr;
    Sheet* inputs_sheet = nullptr;
};

// A 2-D array, 1-based, row by row.
inline Value block(const std::vector<std::vector<Value>>& rows) {
    const auto columns = static_cast<std::int32_t>(rows.front().size());
    automation::Array array({1, static_cast<std::int32_t>(rows.size())}, {1, columns});
    std::size_t at = 0;
    for (const auto& row : rows) {
        for (const Value& value : row) array.elements()[at++] = value;
    }
    return array;
}

}  // namespace kestrune::host
