#include "cli/run/HistorySteps.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

#include "automation/Conversion.h"

namespace kestrune::cli {
namespace {

using nlohmann::ordered_json;

struct Way {
    std::string_view name;
    std::string_view member;  // of iGlobal
    std::string_view from;    // of the library: the list that a step is taken from, and the one that it goes to
    std::string_view to;
    std::string_view done;
};
constexpr Way undoing{"undo", "BRUndo", "UndoHistory", "RedoHistory", "undid"};
constexpr Way redoing{"redo", "BRRedo", "RedoHistory", "UndoHistory", "redid"};

std::vector<std::string> history(AddIn& add_in, std::string_view member) {
    const automation::Value listed = automation::get(add_in.undo_redo(), member);
    std::vector<std::string> texts;
    if (const automation::Array* array = listed.array()) {
        for (const automation::Value& text : array->elements()) texts.push_back(automation::to_text(text));
    }
    return texts;
}

HistoryReport press(AddIn& add_in, const Way& way, std::int32_t times) {
    HistoryReport report;
    std::vector<std::string> gone;
    std::string stopped;
    for (std::int32_t i = 0; i < times && stopped.empty(); ++i) {
        const bool nothing = history(add_in, way.from).empty();
        const std::size_t before = history(add_in, way.to).size();
        automation::call(add_in.commands(), way.member);
        const std::vector<std::string> after = history(add_in, way.to);
        if (after.size() > before) {
            gone.push_back(after.front());
        } else {
            stopped = nothing ? fmt::format("nothing to {}", way.name) : "refused";
        }
    }
    report.ran = stopped.empty();
    report.facts["steps"] = gone;
    if (gone.empty()) {
        report.what = stopped;
    } else {
        report.what = fmt::format("{} {}", way.done, fmt::join(gone, "; "));
        if (!stopped.empty()) report.what += fmt::format("; then {}", stopped);
    }
    return report;
}

HistoryReport list(AddIn& add_in, std::int32_t most) {
    HistoryReport report;
    for (const Way& way : {undoing, redoing}) {
        std::vector<std::string> steps = history(add_in, way.from);
        report.what += fmt::format("{}{} to {}", report.what.empty() ? "" : ", ", steps.size(), way.name);
        steps.resize(std::min(steps.size(), static_cast<std::size_t>(most)));
        for (const std::string& step : steps) report.lines.push_back(fmt::format("{} {}", way.name, step));
        report.facts[way.name] = steps;
    }
    report.facts["bytes"] = automation::to_double(automation::get(add_in.undo_redo(), "MemoryUsed"));
    return report;
}

}  // namespace

HistoryReport run_history_step(AddIn& add_in, const HistoryStep& step) {
    using enum HistoryStep::Kind;
    if (step.kind == List) return list(add_in, step.count);
    return press(add_in, step.kind == Undo ? undoing : redoing, step.count);
}

}  // namespace kestrune::cli
