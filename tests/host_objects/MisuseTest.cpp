// Every member of the served classes, called with what nobody should hand over: each call answers or fails with an
// AutomationError, and the workbook stays whole.
#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "automation/Conversion.h"
#include "automation/MemberTable.h"
#include "host/objects/HostSession.h"

namespace kestrune::host {
namespace {

using automation::Arguments;
using automation::Array;
using automation::AutomationError;
using automation::Call;
using automation::ObjectRef;
using automation::to_object;
using automation::Value;

class Workbench {
  public:
    Workbench() {
        automation::call(*object(application, "Workbooks"), "Add");
        put(*cells("B2:C3"), "Value", 5);
        automation::call(*object(cells("B2:C3"), "FormatConditions"), "Add", {1, 3, "=5"});
        automation::call(*object(application, "Names"), "Add", {"total", "=Sheet1!$B$2"});
    }
    static ObjectRef object(const ObjectRef& from, std::string_view member, Arguments arguments = {}) {
        return to_object(from->invoke(member, Call::MethodOrGet, arguments));
    }
    ObjectRef cells(std::string_view address) const { return object(application, "Range", {address}); }

    std::shared_ptr<HostSession> session = std::make_shared<HostSession>();
    ObjectRef application = make_application(*session);
};

ObjectRef path(const Workbench& bench, std::initializer_list<std::pair<std::string_view, Arguments>> members) {
    ObjectRef at = bench.application;
    for (const auto& [member, arguments] : members) at = Workbench::object(at, member, arguments);
    return at;
}

using Find = std::function<ObjectRef(const Workbench&)>;
std::vector<Find> objects() {
    const std::pair<std::string_view, Arguments> range{"Range", {"B2:C3"}};
    const std::pair<std::string_view, Arguments> conditions{"FormatConditions", {}};
    const std::pair<std::string_view, Arguments> condition{"Item", {1}};
    return {
        [](const Workbench& b) { return b.application; },
        [](const Workbench& b) {
            return path(b, {{"Workbooks", {}}});
        },
        [](const Workbench& b) {
            return path(b, {{"ActiveWorkbook", {}}});
        },
        [](const Workbench& b) {
            return path(b, {{"ActiveWindow", {}}});
        },
        [](const Workbench& b) {
            return path(b, {{"Windows", {}}});
        },
        [](const Workbench& b) {
            return path(b, {{"Worksheets", {}}});
        },
        [](const Workbench& b) {
            return path(b, {{"ActiveSheet", {}}});
        },
        [](const Workbench& b) {
            return path(b, {{"ActiveSheet", {}}, {"Outline", {}}});
        },
        [](const Workbench& b) {
            return path(b, {{"Names", {}}});
        },
        [](const Workbench& b) {
            return path(b, {{"Names", {}}, {"Item", {"total"}}});
        },
        [=](const Workbench& b) { return path(b, {range}); },
        [=](const Workbench& b) {
            return path(b, {range, {"Areas", {}}});
        },
        [=](const Workbench& b) {
            return path(b, {range, {"Font", {}}});
        },
        [=](const Workbench& b) {
            return path(b, {range, {"Interior", {}}});
        },
        [=](const Workbench& b) {
            return path(b, {range, {"Borders", {}}});
        },
        [=](const Workbench& b) {
            return path(b, {range, {"Borders", {8}}});
        },
        [=](const Workbench& b) {
            return path(b, {range, conditions});
        },
        [=](const Workbench& b) {
            return path(b, {range, conditions, condition});
        },
        [=](const Workbench& b) {
            return path(b, {range, conditions, condition, {"Font", {}}});
        },
        [=](const Workbench& b) {
            return path(b, {range, conditions, condition, {"Interior", {}}});
        },
        [=](const Workbench& b) {
            return path(b, {range, conditions, condition, {"Borders", {}}});
        },
    };
}

std::vector<Value> odd_values(const Workbench& bench) {
    Array many({-5, 3}, {7, 2});
    many.at(-5, 7) = bench.application;
    return {automation::Empty{},
            automation::Null{},
            automation::Missing{},
            automation::Error{-1},
            true,
            0,
            -1,
            2147483647,
            -2147483647 - 1,
            1e300,
            -0.5,
            std::numeric_limits<double>::quiet_NaN(),
            std::numeric_limits<double>::infinity(),
            automation::Date{-1e9},
            "",
            "no such thing",
            "=1+",
            "A1:",
            "'",
            std::string(40000, 'x'),
            std::string("a\0b", 3),
            "\xFF\xFE",
            "$XFD$1048576:A1",
            nullptr,
            bench.application,
            bench.cells("A1"),
            many,
            Array({1, 0})};
}

// Calls a member and tells whether it did what a member may do.
void misuse(const ObjectRef& object, const automation::Member& member, Call kind, Arguments arguments) {
    try {
        object->invoke(member.name, kind, arguments);
    } catch (const AutomationError&) {
        // What it should be.
    } catch (const std::exception& error) {
        ADD_FAILURE() << object->type_name() << "." << member.name << " fails with " << error.what();
    }
}

TEST(Misuse, FailsWithAutomationErrorsOnly) {
    for (const Find& find : objects()) {
        std::string_view name;
        {
            const Workbench bench;
            name = find(bench)->type_name();
        }
        SCOPED_TRACE(name);
        const automation::MemberTable* table = [&] {
            const Workbench bench;
            return find(bench)->member_table();
        }();
        for (const automation::Member& member : table->rows()) {
            const Workbench bench;
            const ObjectRef object = find(bench);
            for (const Value& odd : odd_values(bench)) {
                misuse(object, member, Call::MethodOrGet, {odd});
                misuse(object, member, Call::Put, {odd});
                misuse(object, member, Call::Put, {odd, odd});
                misuse(object, member, Call::Method, {odd, odd, odd, odd, odd, odd, odd});
            }
        }
    }
}

}  // namespace
}  // namespace kestrune::host
