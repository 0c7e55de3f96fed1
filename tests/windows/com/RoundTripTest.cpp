// Every kind of value, argument and failure through ComClient and ComServer, as between two programs.
#include <gmock/gmock.h>

#include <limits>

#include "Sample.h"
#include "automation/AutomationError.h"
#include "windows/com/ComClient.h"
#include "windows/com/ComServer.h"
#include "windows/com/Module.h"
#include "windows/com/Objects.h"

namespace kestrune::windows {
namespace {

using automation::Arguments;
using automation::Array;
using automation::AutomationError;
using automation::Call;
using automation::call;
using automation::Date;
using automation::Empty;
using automation::Error;
using automation::get;
using automation::Missing;
using automation::Null;
using automation::put;

class RoundTrip : public testing::Test {
  protected:
    void TearDown() override {
        const std::weak_ptr<Sample> last = object;
        client.reset();
        object.reset();
        EXPECT_TRUE(last.expired());
        EXPECT_EQ(Module::count(), 0);
    }

    std::shared_ptr<Sample> object = std::make_shared<Sample>();
    // A client of the object's interface that does not know that the object is at hand.
    std::shared_ptr<ComClient> client = std::make_shared<ComClient>(dispatch_of(object).Get());
};

Array grid() {
    Array array({-2, 2}, {5, 3});
    std::int32_t next = 1;
    for (Value& element : array.elements()) element = next++;
    return array;
}

TEST_F(RoundTrip, EveryKindComesBackAsItWent) {
    Array nested({0, 2});
    nested.at(0) = grid();
    nested.at(1) = "text";
    const Value values[] = {
        Empty{},
        Null{},
        true,
        false,
        0,
        std::numeric_limits<std::int32_t>::min(),
        0.1,
        -0.0,
        std::numeric_limits<double>::infinity(),
        Date{45000.75},
        Error{automation::hresult::of(0x800A07D0)},
        "",
        "plain",
        std::string("zero\0inside", 11),
        "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80",
        "\xED\xA0\x80lonely surrogates\xED\xB0\x80",
        nullptr,
        Array({7, 0}),
        Array({1, 0}, {1, 4}),
        grid(),
        nested,
    };
    for (const Value& value : values) {
        SCOPED_TRACE(&value - values);
        EXPECT_EQ(call(*client, "Echo", {value}), value);
        put(*client, "Held", value);
        EXPECT_EQ(object->held(), value);
        EXPECT_EQ(get(*client, "Held"), value);
    }
}

TEST_F(RoundTrip, BytesThatAreNoTextBecomeReplacements) {
    EXPECT_EQ(call(*client, "Echo", {"a\xFFz\xC0\x80\xE2\x82"}),
              Value("a\xEF\xBF\xBDz\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"));
}

TEST_F(RoundTrip, OwnObjectsComeBackAsThemselves) {
    const ObjectRef other = std::make_shared<Sample>();
    call(*client, "Keep", {other});
    EXPECT_EQ(object->held(), Value(other));
    EXPECT_EQ(get(*client, "Self"), Value(ObjectRef(object)));
    EXPECT_EQ(dispatch_of(object).Get(), dispatch_of(object).Get());
    // Another program's object goes out as what it is, not wrapped.
    EXPECT_EQ(dispatch_of(client).Get(), dispatch_of(object).Get());
}

TEST_F(RoundTrip, ArgumentsFindTheirPlaces) {
    Arguments swapped{};
    swapped.name("third", 3).name("FIRST", 1);
    Arguments mixed{1};
    mixed.name("Third", "c");
    const std::pair<Arguments, const char*> rows[] = {
        {{1}, "1|-|-"}, {{1, Missing{}, 3}, "1|-|3"}, {{1, 2, 3}, "1|2|3"}, {swapped, "1|-|3"}, {mixed, "1|-|c"},
    };
    for (const auto& [arguments, expected] : rows) {
        EXPECT_EQ(call(*client, "list", arguments), Value(expected));
    }
}

TEST_F(RoundTrip, DefaultMemberAndIndexedWrites) {
    EXPECT_EQ(get(*client, "", {4}), Value("item 4"));
    EXPECT_EQ(get(*client, "Item", {4, "b"}), Value("item 4/b"));
    Arguments arguments{4, "b", "new"};
    client->invoke("", Call::Put, arguments);
    EXPECT_EQ(object->written, "item 4/b = new");
    Arguments without{5, "newer"};
    client->invoke("Item", Call::Put, without);
    EXPECT_EQ(object->written, "item 5 = newer");
    Arguments named{"newest"};
    named.name("Column", 9).name("Index", 6);
    client->invoke("Item", Call::PutReference, named);
    EXPECT_EQ(object->written, "item 6/9 = newest");
}

TEST_F(RoundTrip, CalleesChangeArguments) {
    const Value changes[] = {7, "text", grid(), nullptr, Null{}, Value(ObjectRef(object))};
    for (const Value& to : changes) {
        Arguments arguments{"before", to};
        client->invoke("Change", Call::Method, arguments);
        EXPECT_EQ(arguments.positional[0], to);
        EXPECT_EQ(arguments.positional[1], to);
    }
}

TEST_F(RoundTrip, FailuresKeepTheirCodeAndText) {
    struct Row {
        const char* member;
        Call kind;
        Arguments arguments;
        std::uint32_t code;
        const char* text;
    };
    Arguments unknown{1};
    unknown.name("Fourth", 4);
    Arguments twice{1};
    twice.name("First", 2);
    const Row rows[] = {
        {"Fail", Call::Method, {1}, 0x800A03EC, "It \xC3\xBC failed"},
        {"Fail", Call::Method, {3}, 0x8000FFFF, "a fault of ours"},
        {"Fail", Call::Method, {4}, 0x8000FFFF, nullptr},
        {"Fail", Call::Method, {5}, 0x80020006, "there is no such member"},
        {"Fail", Call::Method, {"x"}, 0x80020005, "the value is not a number"},
        {"Fail", Call::Method, {1e10}, 0x8002000A, "the number does not fit 32 bits"},
        {"Fail", Call::Method, {}, 0x8002000F, "argument 1 is missing"},
        {"Add", Call::Method, {1, 2, 3}, 0x8002000E, "takes 2 arguments, not 3"},
        {"Count", Call::Put, {1}, 0x80020003, "cannot be written"},
        {"Held", Call::Put, {}, 0x8002000F, "the new value is missing"},
        {"Nothing", Call::Get, {}, 0x80020006, "there is no such member or argument"},
        {"List", Call::Method, unknown, 0x80020006, "there is no such member or argument"},
        {"List", Call::Method, twice, 0x8002000E, "an argument is given twice"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.member << " " << &row - rows);
        Arguments arguments = row.arguments;
        try {
            client->invoke(row.member, row.kind, arguments);
            ADD_FAILURE() << "nothing failed";
        } catch (const AutomationError& error) {
            EXPECT_EQ(static_cast<std::uint32_t>(error.code()), row.code);
            EXPECT_EQ(error.member(), std::string("Sample.") + row.member);
            if (row.text) {
                EXPECT_EQ(error.description(), row.text);
            }
        }
        EXPECT_EQ(arguments.positional, row.arguments.positional);
    }
    Arguments out_of_memory{2};
    EXPECT_THROW(client->invoke("Fail", Call::Method, out_of_memory), std::bad_alloc);
}

TEST_F(RoundTrip, CollectionsAreGoneThrough) {
    EXPECT_THAT(automation::items(*client), testing::ElementsAre(Value("item 1"), Value("item 2"), Value("item 3")));
    const Value answer = get(*client, "_newenum");
    const auto items = std::dynamic_pointer_cast<automation::Enumeration>(*answer.if_is<ObjectRef>());
    ASSERT_TRUE(items);
    items->next();
    const auto copy = items->clone();
    items->reset();
    EXPECT_EQ(copy->next(), Value("item 2"));
    EXPECT_EQ(items->next(), Value("item 1"));
}

TEST_F(RoundTrip, TellsItsTypesName) { EXPECT_EQ(client->type_name(), "Sample"); }

TEST_F(RoundTrip, ObjectsWithoutATableTakeNamesAsTheyCome) {
    const auto speaker = std::make_shared<Speaker>();
    ComClient other(dispatch_of(speaker).Get());
    Arguments arguments{1};
    arguments.name("B", 2).name("a", 3);
    EXPECT_EQ(other.invoke("Do", Call::MethodOrGet, arguments), Value("Do 1 B:=2 a:=3"));
    EXPECT_EQ(get(other, "", {5}), Value(" 5"));
}

}  // namespace
}  // namespace kestrune::windows
