#include "brxllib/undo/Stack.h"

#include <gmock/gmock.h>

#include "automation/AutomationError.h"

namespace kestrune::brxllib::undo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Kind = Outcome::Kind;

using Log = std::vector<std::string>;

// Writes down what happens to it.
struct FakeChange : Change {
    FakeChange(std::string called, Log& told_to, std::size_t held)
        : name(std::move(called)), log(told_to), size(held) {}

    bool finish() override {
        log.push_back("finish " + name);
        return changed;
    }
    [[nodiscard]] std::optional<Obstacle> obstacle(Direction) const override { return in_the_way; }
    void undo() override { move("undo "); }
    void redo() override { move("redo "); }
    void visit_cells(const VisitHeldCells&) const override {}
    [[nodiscard]] std::size_t bytes() const override { return size; }

    void move(const char* way) {
        if (refused) throw automation::AutomationError(automation::hresult::excel_error, "Range", name + " is refused");
        log.push_back(way + name);
    }

    std::string name;
    Log& log;
    std::size_t size;
    bool changed = true;
    bool refused = false;
    std::optional<Obstacle> in_the_way;
};

struct StackTest : testing::Test {
    FakeChange& record(const std::string& name, std::size_t size = 100) {
        auto change = std::make_unique<FakeChange>(name, log, size);
        FakeChange& kept = *change;
        stack.add(std::move(change));
        return kept;
    }
    // A step of its own.
    FakeChange& step(const std::string& name, std::size_t size = 100) {
        stack.begin(name);
        FakeChange& kept = record(name, size);
        stack.end();
        return kept;
    }

    Log log;
    Stack stack;
};

TEST_F(StackTest, GoesBackAndForthInOrder) {
    stack.begin("A");
    record("a1");
    record("a2");
    stack.end();
    step("B");
    EXPECT_THAT(stack.undoable(), ElementsAre("B", "A"));
    log.clear();
    for (const char* name : {"B", "A"}) EXPECT_EQ(stack.undo().description, name);
    EXPECT_EQ(stack.undo().kind, Kind::Nothing);
    EXPECT_THAT(stack.redoable(), ElementsAre("A", "B"));
    EXPECT_EQ(stack.redo().description, "A");
    EXPECT_THAT(log, ElementsAre("undo B", "undo a2", "undo a1", "redo a1", "redo a2"));
    // A new step drops what could be redone; one that changed nothing does not.
    stack.begin("idle");
    record("idle").changed = false;
    stack.end();
    EXPECT_THAT(stack.redoable(), ElementsAre("B"));
    step("C");
    EXPECT_THAT(stack.redoable(), IsEmpty());
    EXPECT_THAT(stack.undoable(), ElementsAre("C", "A"));
}

TEST_F(StackTest, JoinsStepsInsideAStep) {
    stack.begin("outer");
    record("o");
    stack.begin("inner");
    record("i");
    EXPECT_EQ(stack.undo().kind, Kind::Refused) << "while a command runs";
    stack.end();
    stack.begin("not wanted");
    stack.cancel();
    stack.end();
    EXPECT_THAT(stack.undoable(), ElementsAre("outer"));
    stack.end();
    stack.cancel();
    EXPECT_THAT(stack.undoable(), ElementsAre("outer")) << "an end or a cancel without a beginning does nothing";
    EXPECT_THROW(record("no step is open"), automation::AutomationError);
    stack.begin("not wanted at all");
    record("n");
    stack.cancel();
    stack.begin("given up");
    record("g");
    stack.give_up();
    record("after");
    stack.end();
    EXPECT_THAT(stack.undoable(), ElementsAre("outer"));
    EXPECT_FALSE(stack.given_up());
}

TEST_F(StackTest, EndsAnUndoPointWithTheNextStepUndoOrRedo) {
    step("A");
    stack.undo();
    stack.begin_point("point 1");
    record("p1");
    EXPECT_THAT(stack.undoable(), ElementsAre("point 1"));
    step("B");
    EXPECT_THAT(stack.undoable(), ElementsAre("B", "point 1"));
    stack.begin_point("point 2");
    record("p2");
    EXPECT_EQ(stack.undo().description, "point 2");
    stack.begin_point("point 3");
    record("p3").changed = false;
    EXPECT_EQ(stack.redo().description, "point 2") << "an idle point drops nothing";
    stack.begin_point("point 4");
    record("p4");
    EXPECT_EQ(stack.redo().kind, Kind::Nothing);
    EXPECT_THAT(stack.undoable(), ElementsAre("point 4", "point 2", "B", "point 1"));
    stack.begin("outer");
    stack.begin_point("inside");
    record("o");
    stack.end();
    EXPECT_THAT(stack.undoable(), testing::Contains("outer"));
}

TEST_F(StackTest, MovesAStepWholeOrNotAtAll) {
    step("below");
    stack.begin("step");
    FakeChange& first = record("1");
    record("2");
    FakeChange& last = record("3");
    stack.end();

    first.refused = true;
    log.clear();
    Outcome outcome = stack.undo();
    EXPECT_EQ(outcome.kind, Kind::Refused);
    EXPECT_EQ(outcome.why, "1 is refused");
    EXPECT_THAT(log, ElementsAre("undo 3", "undo 2", "redo 2", "redo 3"));
    EXPECT_THAT(stack.undoable(), ElementsAre("step", "below")) << "what may pass is worth another try";
    first.refused = false;

    last.in_the_way = Obstacle{"the sheet is protected", false};
    log.clear();
    EXPECT_EQ(stack.undo().kind, Kind::Refused);
    EXPECT_THAT(log, IsEmpty());
    last.in_the_way.reset();
    ASSERT_EQ(stack.undo().kind, Kind::Done);

    last.in_the_way = Obstacle{"the sheet has gone", true};
    log.clear();
    outcome = stack.redo();
    EXPECT_EQ(outcome.kind, Kind::Withdrawn);
    EXPECT_EQ(outcome.why, "the sheet has gone");
    EXPECT_THAT(log, ElementsAre("redo 1", "redo 2", "undo 2", "undo 1"));
    EXPECT_THAT(stack.redoable(), IsEmpty());
    EXPECT_EQ(stack.undo().description, "below") << "the rest stays right";
}

TEST_F(StackTest, FinishesAChangeWhenTheNextOneBegins) {
    stack.begin("step");
    record("1");
    record("2").changed = false;
    record("3");
    stack.end();
    EXPECT_THAT(log, ElementsAre("finish 1", "finish 2", "finish 3"));
    log.clear();
    stack.undo();
    EXPECT_THAT(log, ElementsAre("undo 3", "undo 1"));
}

TEST_F(StackTest, LetsTheOldestGoFirst) {
    stack.set_limits({3, 10'000});
    for (const char* name : {"A", "B", "C", "D"}) step(name);
    EXPECT_THAT(stack.undoable(), ElementsAre("D", "C", "B"));
    stack.undo();
    stack.undo();
    stack.set_limits({2, 10'000});
    EXPECT_THAT(stack.undoable(), IsEmpty()) << "the oldest is the one that was not undone";
    EXPECT_THAT(stack.redoable(), ElementsAre("C", "D"));
    stack.clear();
    EXPECT_EQ(stack.bytes(), 0U);

    stack.set_limits({100, 10'000});
    for (const char* name : {"A", "B", "C"}) step(name, 3'000);
    EXPECT_THAT(stack.undoable(), ElementsAre("C", "B", "A"));
    step("D", 3'000);
    EXPECT_THAT(stack.undoable(), ElementsAre("D", "C", "B"));
    EXPECT_LE(stack.bytes(), 10'000U);
    step("E", 20'000);
    EXPECT_THAT(stack.undoable(), IsEmpty()) << "more than there is room for";
    stack.set_limits({0, 10'000});
    step("F");
    EXPECT_THAT(stack.undoable(), IsEmpty());
}

}  // namespace
}  // namespace kestrune::brxllib::undo
