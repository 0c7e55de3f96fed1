#include "brxllib/undo/Snapshot.h"

#include "automation/ResumeNext.h"
#include "brxllib/autocolor/ClassReader.h"
#include "brxllib/autocolor/Parting.h"
#include "excel/Worksheet.h"
#include "formula/A1.h"

namespace kestrune::brxllib::undo {

using automation::Value;
using formula::Area;

struct Snapshot::State {
    excel::Application application;
    excel::Range range;
    excel::Worksheet sheet;
    Aspects aspects;
    std::vector<Area> areas;
    std::vector<Value> formulas;  // one for each area
    std::vector<std::pair<Area, Value>> number_formats{};
    std::vector<std::string> irreplaceable{};
};

std::optional<Snapshot> Snapshot::take(const excel::Application& application, const excel::Range& area, Aspects aspects,
                                       std::size_t most_bytes, const automation::Trace& trace) {
    (void)trace;
    State state{application, area, area.Worksheet(), aspects, areas_of(area), {}};
    for (const Area& part : state.areas) {
        if (aspects.has(Aspect::Contents)) {
            state.formulas.push_back(state.sheet.Range(formula::area_text(part)).Formula());
        }
        if (!aspects.has(Aspect::Formats)) continue;
        visit_uniform_parts(
            part, [&](const Area& at) { return state.sheet.Range(formula::area_text(at)).NumberFormat(); },
            [&](const Area& at, const Value& code) { state.number_formats.emplace_back(at, code); });
    }
    Snapshot taken(std::make_shared<const State>(std::move(state)));
    if (taken.bytes() > most_bytes) return std::nullopt;
    return taken;
}

std::size_t Snapshot::estimate(const excel::Range& area, Aspects aspects) {
    return aspects.empty() ? 0 : static_cast<std::size_t>(area.CountLarge()) * sizeof(Value);
}

std::vector<std::string> Snapshot::restore(const automation::Trace& trace) const {
    const automation::ResumeNext attempt(trace);
    std::vector<std::string> refusals;
    const auto write = [&](const Area& at, auto&& statement) {
        const std::string address = formula::area_text(at);
        if (!attempt([&] { statement(state_->sheet.Range(address)); })) refusals.push_back(address + " is refused");
    };
    for (std::size_t i = 0; i < state_->formulas.size(); ++i) {
        write(state_->areas[i], [&](const excel::Range& range) { range.Formula(state_->formulas[i]); });
    }
    for (const auto& [at, code] : state_->number_formats) {
        write(at, [&](const excel::Range& range) { range.NumberFormat(code); });
    }
    return refusals;
}

std::optional<Snapshot> Snapshot::again(std::size_t most_bytes, const automation::Trace& trace) const {
    return take(state_->application, state_->range, state_->aspects, most_bytes, trace);
}

bool Snapshot::operator==(const Snapshot& other) const {
    return state_->areas == other.state_->areas && state_->formulas == other.state_->formulas &&
           state_->number_formats == other.state_->number_formats;
}

const std::vector<std::string>& Snapshot::irreplaceable() const { return state_->irreplaceable; }

bool Snapshot::in_place() const {
    try {
        return areas_of(state_->range) == state_->areas;
    } catch (const automation::AutomationError&) {
        return false;
    }
}

const excel::Range& Snapshot::area() const { return state_->range; }
Aspects Snapshot::aspects() const { return state_->aspects; }

std::size_t Snapshot::bytes() const {
    std::size_t sum = sizeof(State);
    for (const Area& area : state_->areas) sum += static_cast<std::size_t>(area.cells()) * sizeof(Value);
    return sum;
}

}  // namespace kestrune::brxllib::undo
