#include "undo_histories/History.h"

#include <fmt/format.h>

#include "automation/ResumeNext.h"
#include "core/CommandTable.h"
#include "undo_histories/Edits.h"
#include "undo_histories/Tell.h"

namespace kestrune::histories {
namespace {

// Switches a fault on while undo or redo runs.
class FaultOn {
  public:
    explicit FaultOn(Fault* fault) : fault_(fault) {
        if (fault_) fault_->on = true;
    }
    ~FaultOn() {
        if (fault_) fault_->on = false;
    }
    FaultOn(const FaultOn&) = delete;
    FaultOn& operator=(const FaultOn&) = delete;

  private:
    Fault* fault_;
};

const std::vector<std::int32_t>& undoable_commands() {
    static const std::vector<std::int32_t> numbers = [] {
        std::vector<std::int32_t> found;
        for (const core::Command& command : core::commands()) {
            if (command.touches.undoable()) found.push_back(command.number);
        }
        return found;
    }();
    return numbers;
}

class Player {
  public:
    Player(const World& world, std::uint64_t seed, Fault* fault)
        : world_(world), add_in_(world, fault), dice_(seed ^ 0x5EED5EED), fault_(fault) {}

    void live() {
        const int actions = dice_.number(3, 15);
        for (int i = 0; i < actions; ++i) {
            const std::int32_t kind = dice_.number(1, 100);
            if (kind <= 50) {
                press();
            } else if (kind <= 65) {
                run_a_macro();
            } else if (kind <= 75) {
                take_a_step();
            } else {
                walk();
            }
        }
        // An undo point that is open ends here, whatever the ending.
        automation::call(add_in_.undo_redo(), "BeginStep", {"the end", 0, 0});
        automation::call(add_in_.undo_redo(), "EndStep");
        played_.steps = add_in_.undoable();
    }
    void undo_all() {
        while (add_in_.undoable() > 0 && move("BRUndo")) {
        }
    }
    // What had been undone when the history ended stays so.
    void redo_all() {
        while (add_in_.undoable() < played_.steps && move("BRRedo")) {
        }
        if (add_in_.undoable() != played_.steps) played_.complaints.emplace_back("some steps were not redone");
    }
    [[nodiscard]] const Played& played() const { return played_; }

  private:
    excel::Range select() {
        const excel::Range cells = random_cells(world_.application(), dice_);
        cells.Worksheet().Activate();
        cells.Select();
        return cells;
    }
    void press() {
        const excel::Range cells = select();
        if (dice_.chance(10)) {
            tell("a cycle's style on {}!{}", cells.Worksheet().Name(), cells.Address());
            automation::call(add_in_.global(), "ApplySmartCycleStyle",
                             {dice_.number(1, 15), dice_.number(0, 4), cells.object()});
            return;
        }
        std::string request = std::to_string(dice_.one_of(undoable_commands()));
        if (dice_.chance(40)) request += "." + std::to_string(dice_.number(1, 6));
        tell("{} on {}!{}", request, cells.Worksheet().Name(), cells.Address());
        automation::call(add_in_.global(), "RunMacro", {request});
    }
    // A macro of the user's own, which sets an undo point first.
    void run_a_macro() {
        const excel::Range cells = select();
        tell("a macro on {}!{}", cells.Worksheet().Name(), cells.Address());
        const std::size_t asked = add_in_.messages().size();
        automation::call(add_in_.global(), "SetBRUndo");
        if (add_in_.messages().size() > asked) {
            tell("    {}", add_in_.messages().back().text);
            return;
        }
        for (int i = dice_.number(0, 3); i >= 0; --i) edit(cells, dice_);
        // The point ends before anything else happens elsewhere.
        automation::call(add_in_.undo_redo(), "BeginStep", {"nothing", 0, 0});
        automation::call(add_in_.undo_redo(), "EndStep");
    }
    // A command that records what it writes.
    void take_a_step() {
        constexpr std::int32_t everything = 127;
        tell("a step");
        automation::call(add_in_.undo_redo(), "BeginStep", {"a step", 0, 0});
        for (int i = dice_.number(1, 3); i > 0; --i) {
            const excel::Range cells = random_cells(world_.application(), dice_);
            tell("  records {}!{}", cells.Worksheet().Name(), cells.Address());
            const bool go_on =
                automation::to_boolean(automation::call(add_in_.undo_redo(), "Record", {cells.object(), everything}));
            if (!go_on) {
                tell("    {}", add_in_.messages().back().text);
                break;
            }
            for (int j = dice_.number(0, 2); j >= 0; --j) edit(cells, dice_);
        }
        automation::call(add_in_.undo_redo(), "EndStep");
    }
    void walk() {
        const bool back = dice_.chance(60);
        for (int i = dice_.number(1, 5); i > 0; --i) {
            if (!move(back ? "BRUndo" : "BRRedo")) return;
        }
    }
    bool move(std::string_view member) {
        const std::size_t before = add_in_.undoable();
        const std::size_t told = add_in_.messages().size();
        tell("{}", member);
        {
            const FaultOn on(fault_);
            automation::call(add_in_.global(), member);
        }
        for (std::size_t i = told; i < add_in_.messages().size(); ++i)
            played_.complaints.push_back(add_in_.messages()[i].text);
        return add_in_.undoable() != before;
    }

    const World& world_;
    AddIn add_in_;
    Dice dice_;
    Fault* fault_;
    Played played_;
};

}  // namespace

Played play(const World& world, std::uint64_t seed, Ending ending, Fault* fault) {
    Player player(world, seed, fault);
    player.live();
    if (ending != Ending::AsItIs) player.undo_all();
    if (ending == Ending::UndoneAndRedone) player.redo_all();
    return player.played();
}

std::vector<std::string> faults_of_history(std::uint64_t seed, Fault* fault) {
    const World start(seed);
    std::vector<std::string> faults;
    const auto tell = [&](std::string_view when, const std::vector<std::string>& lines) {
        for (const std::string& line : lines) faults.push_back(fmt::format("{}: {}", when, line));
    };
    {
        const World undone(seed);
        const Played played = play(undone, seed, Ending::Undone, fault);
        tell("said while undoing", played.complaints);
        tell("after undoing everything", differences(start, undone));
    }
    {
        const World end(seed), redone(seed);
        play(end, seed, Ending::AsItIs, nullptr);
        const Played played = play(redone, seed, Ending::UndoneAndRedone, fault);
        tell("said while redoing", played.complaints);
        tell("after redoing everything", differences(end, redone));
    }
    return faults;
}

}  // namespace kestrune::histories
