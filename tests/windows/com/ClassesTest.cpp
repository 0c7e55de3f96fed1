// Classes by their names: this module's own, those that COM knows, and those that nobody knows.
#include "windows/com/ComClasses.h"

#include <gmock/gmock.h>
#include <objbase.h>

#include "Sample.h"
#include "automation/AutomationError.h"
#include "automation/CreateObject.h"
#include "windows/com/ComClient.h"

namespace kestrune::windows {
namespace {

using automation::Arguments;
using automation::AutomationError;
using automation::Call;
using automation::call;
using automation::get;

class Classes : public testing::Test {
  protected:
    Classes() {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        use_com_classes();
    }
    ~Classes() override {
        automation::use_class_source(nullptr);
        CoUninitialize();
    }
};

TEST_F(Classes, TheModulesOwnComeFirst) {
    automation::register_class("Scripting.Dictionary", [] { return std::make_shared<Sample>(); });
    EXPECT_EQ(automation::CreateObject("scripting.dictionary")->type_name(), "Sample");
    automation::unregister_class("Scripting.Dictionary");
}

TEST_F(Classes, NobodyKnowsTheName) {
    for (const char* name : {"Kestrune.NoSuchClass", "", "{00000000-0000-0000-0000-000000000000}", "\xFF"}) {
        try {
            automation::CreateObject(name);
            ADD_FAILURE() << name << " was made";
        } catch (const AutomationError& error) {
            EXPECT_EQ(error.code(), automation::hresult::class_not_registered);
            EXPECT_EQ(error.member(), name);
        }
    }
}

// A server that others wrote, with a type library and typed parameters.
TEST_F(Classes, AnotherMakersObjectIsCalledAsOurs) {
    const ObjectRef dictionary = automation::CreateObject("Scripting.Dictionary");
    EXPECT_TRUE(dynamic_cast<ComClient*>(dictionary.get()));
    EXPECT_EQ(dictionary->type_name(), "Dictionary");
    const auto held = std::make_shared<Sample>();
    call(*dictionary, "Add", {"one", 1});
    call(*dictionary, "Add", {"object", ObjectRef(held)});
    Arguments item{"two", 2.5};
    dictionary->invoke("Item", Call::Put, item);
    EXPECT_EQ(get(*dictionary, "Count"), Value(3));
    EXPECT_EQ(get(*dictionary, "Item", {"two"}), Value(2.5));
    EXPECT_EQ(get(*dictionary, "", {"object"}), Value(ObjectRef(held)));
    EXPECT_EQ(call(*dictionary, "Exists", {"three"}), Value(false));
    EXPECT_THAT(automation::items(*dictionary), testing::ElementsAre(Value("one"), Value("object"), Value("two")));
    const Value keys = call(*dictionary, "Keys");
    ASSERT_TRUE(keys.array());
    EXPECT_EQ(keys.array()->at(2), Value("two"));
    try {
        call(*dictionary, "Add", {"one", 2});
        FAIL() << "a key was added twice";
    } catch (const AutomationError& error) {
        EXPECT_EQ(static_cast<std::uint32_t>(error.code()), 0x800A01C9U);  // run-time error 457
        EXPECT_EQ(error.member(), "Dictionary.Add");
    }
}

}  // namespace
}  // namespace kestrune::windows
