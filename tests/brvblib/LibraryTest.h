#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "automation/CreateObject.h"
#include "automation/MemberTable.h"
#include "brvblib/register_library.h"
#include "core/bridges/diBRVBLib.h"
#include "forms/ScriptedPresenter.h"

namespace kestrune::brvblib {

// The general library as its clients meet it: created by name, its objects called late-bound or through the wrapper.
struct LibraryTest : testing::Test {
    LibraryTest() {
        trace.listen([this](std::string_view line) { skipped.emplace_back(line); });
    }
    ~LibraryTest() override { automation::unregister_class("BRVBLib.iPublic"); }

    // Makes the library anew from the services as they stand now.
    void load() {
        register_library(services);
        ASSERT_TRUE(wrapper.Create());
        library = wrapper.iPublic();
    }
    [[nodiscard]] automation::ObjectRef part(const char* name) {
        if (!library) load();
        return automation::to_object(automation::get(*library, name));
    }
    // An operation of a sub-object; a failure is its one line, in angle brackets.
    template <class... Arguments>
    std::string answer(const char* object, const char* operation, Arguments... arguments) {
        try {
            return automation::to_text(automation::call(*part(object), operation, {automation::Value(arguments)...}));
        } catch (const automation::AutomationError& error) {
            return std::string("<") + error.what() + ">";
        }
    }

    automation::Trace trace;
    std::vector<std::string> skipped;
    forms::ScriptedPresenter presenter;
    Services services{.trace = trace, .presenter = presenter};
    automation::ObjectRef library;
    core::diBRVBLib wrapper{trace};
};

}  // namespace kestrune::brvblib
