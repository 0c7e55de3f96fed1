#include "automation/MemberTable.h"

#include <gtest/gtest.h>

namespace kestrune::automation {
namespace {

class Shelf : public Served<Shelf> {
  public:
    static const MemberTable& members();
    Value item(std::int32_t position) const { return position * 10; }
};

class Desk : public Served<Desk> {
  public:
    static const MemberTable& members();

    double height() const { return height_; }
    void set_height(double value) { height_ = value; }
    std::string describe(const std::string& what, std::optional<std::int32_t> count, const Value& note) const {
        return what + (count ? std::to_string(*count) : "-") + (note.is(Value::Kind::Missing) ? "?" : to_text(note));
    }
    void grow(Value& by) { by = to_integer(by) + 1; }
    std::string corner(std::int32_t which) const { return corners_[which == 2]; }
    void set_corner(std::int32_t which, const std::string& text) { corners_[which == 2] = text; }
    ObjectRef shelf() const { return std::make_shared<Shelf>(); }

  private:
    double height_ = 70;
    std::string corners_[2];
};

const MemberTable& Shelf::members() {
    static constexpr auto rows = member_rows(method<&Shelf::item>("Item", 0, "Position"));
    static constexpr MemberTable table("Shelf", rows);
    return table;
}

const MemberTable& Desk::members() {
    static constexpr auto rows = member_rows(
        property<&Desk::height, &Desk::set_height>("Height", 1),
        method<&Desk::describe>("Describe", 2, "What, [Count], [Note]"), method<&Desk::grow>("Grow", 3, "By"),
        property<&Desk::corner, &Desk::set_corner>("Corner", 4, "Which"), read_only<&Desk::shelf>("Shelf", 5));
    static constexpr MemberTable table("Desk", rows);
    return table;
}

HResult failure_of(Object& object, std::string_view member, Call kind, Arguments arguments) {
    try {
        object.invoke(member, kind, arguments);
    } catch (const AutomationError& error) {
        return error.code();
    }
    return hresult::ok;
}

struct MemberTableTest : testing::Test {
    std::shared_ptr<Desk> desk = std::make_shared<Desk>();
};

TEST_F(MemberTableTest, ArgumentsReachTheirParameters) {
    EXPECT_EQ(call(*desk, "describe", {"a", 2, "n"}), Value("a2n"));
    EXPECT_EQ(call(*desk, "DESCRIBE", {"a"}), Value("a-?"));
    EXPECT_EQ(call(*desk, "Describe", Arguments{"a"}.name("note", 5)), Value("a-5"));
    EXPECT_EQ(call(*desk, "Describe", Arguments{}.name("Count", "7").name("What", true)), Value("True7?"));
    Arguments by_reference{41};
    desk->invoke("Grow", Call::Method, by_reference);
    EXPECT_EQ(by_reference.positional[0], Value(42));
}

TEST_F(MemberTableTest, PropertiesAreReadAndWritten) {
    put(*desk, "Height", "81.5");
    EXPECT_EQ(get(*desk, "height"), Value(81.5));
    Arguments indexed{2, "oak"};
    desk->invoke("Corner", Call::Put, indexed);
    EXPECT_EQ(get(*desk, "Corner", {2}), Value("oak"));
    EXPECT_EQ(get(*desk, "Corner", {1}), Value(""));
    EXPECT_EQ(get(*desk, "Shelf", {4}), Value(40)) << "arguments go on to the default member of the object answered";
}

TEST_F(MemberTableTest, EachFaultHasItsCode) {
    EXPECT_EQ(failure_of(*desk, "Chair", Call::Get, {}), hresult::unknown_name);
    EXPECT_EQ(failure_of(*desk, "", Call::Get, {}), hresult::unknown_name);
    EXPECT_EQ(failure_of(*desk, "Describe", Call::Method, {}), hresult::not_optional);
    EXPECT_EQ(failure_of(*desk, "Describe", Call::Method, {"a", 1, 2, 3}), hresult::bad_argument_count);
    EXPECT_EQ(failure_of(*desk, "Describe", Call::Method, Arguments{"a"}.name("Depth", 1)), hresult::unknown_name);
    EXPECT_EQ(failure_of(*desk, "Describe", Call::Method, Arguments{"a"}.name("What", 1)), hresult::bad_argument_count);
    EXPECT_EQ(failure_of(*desk, "Describe", Call::Get, {"a"}), hresult::member_not_found);
    EXPECT_EQ(failure_of(*desk, "Shelf", Call::Put, {1}), hresult::member_not_found);
    EXPECT_EQ(failure_of(*desk, "Height", Call::Put, {}), hresult::not_optional);
    EXPECT_EQ(failure_of(*desk, "Height", Call::Put, {"high"}), hresult::type_mismatch);
    EXPECT_EQ(failure_of(*desk, "Describe", Call::Method, {"a", 3e9}), hresult::overflow);
}

}  // namespace
}  // namespace kestrune::automation
