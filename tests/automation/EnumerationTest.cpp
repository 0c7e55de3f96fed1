#include "automation/Enumeration.h"

#include <gtest/gtest.h>

#include "automation/MemberTable.h"

namespace kestrune::automation {
namespace {

class Shelf : public Served<Shelf> {
  public:
    static const MemberTable& members() {
        static constexpr auto rows = member_rows(read_only<&Shelf::new_enum>(enumeration_member, enumeration_id),
                                                 read_only<&Shelf::count>("Count", 1));
        static constexpr MemberTable table("Shelf", rows);
        return table;
    }
    [[nodiscard]] ObjectRef new_enum() const { return enumerate({"a", 2, Null{}}); }
    [[nodiscard]] std::int32_t count() const { return 3; }
};

TEST(Enumeration, GoesThroughACollection) {
    Shelf shelf;
    EXPECT_EQ(items(shelf), (std::vector<Value>{"a", 2, Null{}}));
    EXPECT_NE(Shelf::members().find(enumeration_id), nullptr);
}

TEST(Enumeration, ClonesKeepTheirPlace) {
    const auto all = enumerate(3, [](std::int64_t at) { return Value(static_cast<double>(at)); });
    EXPECT_EQ(all->next(), Value(0.0));
    const auto copy = all->clone();
    all->reset();
    EXPECT_EQ(all->next(), Value(0.0));
    EXPECT_EQ(copy->next(), Value(1.0));
    EXPECT_EQ(copy->next(), Value(2.0));
    EXPECT_EQ(copy->next(), std::nullopt);
    EXPECT_EQ(copy->next(), std::nullopt);
    EXPECT_THROW(call(*all, "Count"), AutomationError);
}

}  // namespace
}  // namespace kestrune::automation
