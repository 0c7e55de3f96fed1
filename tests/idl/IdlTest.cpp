#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "automation/MemberTable.h"
#include "idl/Library.h"

namespace kestrune::idl {
namespace {

using automation::Date;
using automation::MemberTable;
using automation::ObjectRef;
using automation::Served;
using automation::Value;

// Under names that have identifiers.
struct Shelf : Served<Shelf> {
    static const MemberTable& members();
    Value item(std::int32_t) const { return {}; }
    void set_item(std::int32_t, const std::string&) {}
};

struct Desk : Served<Desk> {
    static const MemberTable& members();
    Date measure(bool, double) { return {}; }
    std::string describe(const std::string&, std::optional<std::int32_t>, const Value&) const { return {}; }
    void grow(Value&) {}
    std::shared_ptr<Shelf> shelf() const { return nullptr; }
    void set_shelf(const std::shared_ptr<Shelf>&) {}
    ObjectRef owner() const { return nullptr; }
    std::string_view name() const { return {}; }
};

struct Stranger : Served<Stranger> {
    static const MemberTable& members();
    std::shared_ptr<Stranger> self() const { return nullptr; }
};

const MemberTable& Shelf::members() {
    static constexpr auto rows =
        automation::member_rows(automation::property<&Shelf::item, &Shelf::set_item>("Item", 0, "[Position]"));
    static constexpr MemberTable table("iConst", rows);
    return table;
}

const MemberTable& Desk::members() {
    static constexpr auto rows = automation::member_rows(
        automation::method<&Desk::measure>("Measure", 1, "Whole, Width"),
        automation::method<&Desk::describe>("Describe", 2, "What, [Count], [Note]"),
        automation::method<&Desk::grow>("Grow", 3, "By"),
        automation::property<&Desk::shelf, &Desk::set_shelf>("Shelf", 4),
        automation::read_only<&Desk::owner>("Owner", 5), automation::read_only<&Desk::name>("Name", 6));
    static constexpr MemberTable table("iPublic", rows);
    return table;
}

const MemberTable& Stranger::members() {
    static constexpr auto rows = automation::member_rows(automation::read_only<&Stranger::self>("Self", 1));
    static constexpr MemberTable table("Stranger", rows);
    return table;
}

TEST(Idl, MembersReadAsTheirFunctionsDo) {
    const std::string text = idl_of({"BRVBLib", &Desk::members, {}});
    for (const auto* line : {
             "[id(1)] DATE Measure([in] VARIANT_BOOL Whole, [in] double Width);",
             "[id(2)] BSTR Describe([in] BSTR What, [in, optional] VARIANT Count, [in, optional] VARIANT Note);",
             "[id(3)] void Grow([in, out] VARIANT* By);",
             "[id(4), propget] _iConst* Shelf();",
             "[id(4), propputref] void Shelf([in] _iConst* NewValue);",
             "[id(5), propget] IDispatch* Owner();",
             "[id(6), propget] BSTR Name();",
             "[id(0), propget] VARIANT Item([in, optional] VARIANT Position);",
             "[id(0), propput] void Item([in, optional] VARIANT Position, [in] BSTR NewValue);",
         }) {
        EXPECT_THAT(text, testing::HasSubstr(std::string("            ") + line + "\n"));
    }
}

TEST(Idl, ClassesThatMembersAnswerAreMetOnceAndNotCreatable) {
    const auto classes = classes_of({"BRVBLib", &Desk::members, {&Shelf::members}});
    EXPECT_THAT(classes, testing::ElementsAre(&Desk::members(), &Shelf::members()));
    const std::string text = idl_of({"BRVBLib", &Desk::members, {}});
    EXPECT_THAT(text, testing::ContainsRegex("uuid\\([-0-9a-f]{36}\\)\\]\n    coclass iPublic\n"));
    EXPECT_THAT(text, testing::ContainsRegex("uuid\\([-0-9a-f]{36}\\), noncreatable\\]\n    coclass iConst\n"));
}

TEST(Idl, AClassWithoutIdentifiersIsNamed) {
    try {
        idl_of({"BRVBLib", &Stranger::members, {}});
        FAIL() << "made a library of a class that COM could not know";
    } catch (const std::runtime_error& error) {
        EXPECT_THAT(error.what(), testing::StartsWith("BRVBLib.Stranger has no identifiers"));
    }
}

}  // namespace
}  // namespace kestrune::idl
