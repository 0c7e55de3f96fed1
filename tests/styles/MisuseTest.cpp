// Every member of the add-in's classes and of its two libraries', called with what nobody should hand over: each call
// answers or fails with an AutomationError.
#include <gtest/gtest.h>

#include <filesystem>
#include <limits>
#include <map>

#include "automation/Conversion.h"
#include "automation/MemberTable.h"
#include "styles/AddInInHost.h"

namespace kestrune::styles {
namespace {

using automation::Arguments;
using automation::Array;
using automation::AutomationError;
using automation::Call;
using automation::ObjectRef;
using automation::Value;

class Misuse : public AddInInHost {
  protected:
    // What asks for a folder by an odd name gets one.
    Misuse() : folder_(testing::TempDir() + "kestrune-misuse"), before_(std::filesystem::current_path()) {
        std::filesystem::create_directories(folder_);
        std::filesystem::current_path(folder_);
    }
    ~Misuse() override {
        std::filesystem::current_path(before_);
        std::filesystem::remove_all(folder_);
    }

    // The objects that properties without arguments lead to, one of each class.
    void collect(const std::string& prefix, const ObjectRef& object) {
        if (!object || !object->member_table()) return;
        const std::string name = prefix + "." + std::string(object->type_name());
        if (!classes.emplace(name, object).second) return;
        for (const automation::Member& member : object->member_table()->rows()) {
            if (member.is_method || member.required_count > 0) continue;
            try {
                Arguments none;
                const Value answer = object->invoke(member.name, Call::Get, none);
                if (const auto* part = answer.if_is<ObjectRef>()) collect(prefix, *part);
            } catch (const AutomationError&) {
                // Some properties need an Excel that has more than this one.
            }
        }
    }

    std::vector<Value> odd_values() const {
        Array many({-5, 3}, {7, 2});
        many.at(-5, 7) = application.object();
        return {automation::Empty{},
                automation::Null{},
                automation::Missing{},
                automation::Error{-1},
                true,
                -1,
                std::numeric_limits<std::int32_t>::max(),
                1e300,
                std::numeric_limits<double>::quiet_NaN(),
                "",
                "no such thing",
                "=1+",
                "[;;\"",
                std::string(40000, 'x'),
                std::string("a\0b", 3),
                "\xFF\xFE",
                nullptr,
                application.object(),
                cells("A1").object(),
                many,
                Array({1, 0})};
    }

    void misuse(const std::string& name, const ObjectRef& object, const automation::Member& member, Call kind,
                Arguments arguments) {
        try {
            object->invoke(member.name, kind, arguments);
        } catch (const AutomationError&) {
            // What it should be.
        } catch (const std::exception& error) {
            ADD_FAILURE() << name << "." << member.name << " fails with " << error.what();
        }
    }

    std::map<std::string, ObjectRef> classes;

  private:
    std::filesystem::path folder_;
    std::filesystem::path before_;
};

TEST_F(Misuse, FailsWithAutomationErrorsOnly) {
    collect("KestruneXL", entry);
    collect("KestruneXL", global);
    collect("BRVBLib", automation::CreateObject("BRVBLib.iPublic"));
    collect("BRXLLib", automation::CreateObject("BRXLLib.iPublic"));
    EXPECT_GT(classes.size(), 15U);
    const std::vector<Value> odd = odd_values();
    for (const auto& [name, object] : classes) {
        for (const automation::Member& member : object->member_table()->rows()) {
            for (const Value& value : odd) {
                misuse(name, object, member, Call::MethodOrGet, {value});
                misuse(name, object, member, Call::Put, {value});
                misuse(name, object, member, Call::Method, {value, value});
                misuse(name, object, member, Call::Method, {value, value, value, value});
            }
        }
    }
}

}  // namespace
}  // namespace kestrune::styles
