#include "brxllib/undo/Snapshot.h"

#include <algorithm>

#include "brxllib/autocolor/ClassReader.h"
#include "brxllib/undo/snapshot/ConditionRecord.h"
#include "brxllib/undo/snapshot/ContentRecord.h"
#include "brxllib/undo/snapshot/FacetRecord.h"
#include "brxllib/undo/snapshot/MergeRecord.h"
#include "brxllib/undo/snapshot/NameRecord.h"
#include "excel/Workbook.h"
#include "formula/A1.h"

namespace kestrune::brxllib::undo {
namespace {

using formula::Area;

// What a used cell takes on record at least, on average: a blank block takes nothing, a full one nine bytes a cell and
// its texts. Areas that are too large by this are not even read.
constexpr std::size_t bytes_of_content = 2;
constexpr std::size_t bytes_of_filled_cell = 9;
// What an area takes whose cells are alike.
constexpr std::size_t bytes_of_area = 8'192;

// Rows, or columns, of areas, each once: the other direction says nothing.
std::vector<Area> lines_of(const std::vector<Area>& areas, bool rows) {
    std::vector<Area> lines;
    for (const Area& area : areas) {
        const Area line =
            rows ? Area{area.first_row, 1, area.last_row, 1} : Area{1, area.first_column, 1, area.last_column};
        if (std::ranges::find(lines, line) == lines.end()) lines.push_back(line);
    }
    return lines;
}

// Changes that are made for somebody else raise no events: nobody should answer to an undo as if a person had typed.
class WithoutEvents {
  public:
    WithoutEvents(const excel::Application& application, const automation::Trace& trace)
        : application_(application), attempt_(trace) {
        attempt_.assign(enabled_, [&] { return application_.EnableEvents(); });
        if (enabled_) attempt_([&] { application_.EnableEvents(false); });
    }
    ~WithoutEvents() {
        if (enabled_) attempt_([&] { application_.EnableEvents(true); });
    }
    WithoutEvents(const WithoutEvents&) = delete;
    WithoutEvents& operator=(const WithoutEvents&) = delete;

  private:
    const excel::Application& application_;
    automation::ResumeNext attempt_;
    bool enabled_ = false;
};

}  // namespace

struct Snapshot::State {
    excel::Application application;
    HeldCellsRef held;
    excel::Worksheet sheet;
    Aspects aspects;
    std::vector<Area> areas{};
    Area used{};  // by which the areas are cut into pieces
    std::vector<Piece> pieces{};
    ContentRecord contents{};
    FacetRecord formats{};
    FacetRecord rows{};
    FacetRecord columns{};
    MergeRecord merges{};
    ConditionRecord conditions{};
    NameRecord names{};
    std::vector<std::string> irreplaceable{};
};

std::optional<Snapshot> Snapshot::take(const excel::Application& application, const excel::Range& area, Aspects aspects,
                                       std::size_t most_bytes, const automation::Trace& trace) {
    auto held = std::make_shared<HeldCells>(application, area);
    State state{application, held, held->sheet(), aspects};
    state.areas = areas_of(area);
    state.used = used_area(state.sheet);
    return record(std::move(state), most_bytes, trace);
}

std::optional<Snapshot> Snapshot::again(std::size_t most_bytes, const automation::Trace& trace) const {
    State state{state_->application, state_->held, state_->sheet, state_->aspects};
    state.areas = areas_of(state.held->range());
    state.used = state_->used;
    // Records of the same cells are cut alike, so that they compare, as long as no cell beyond holds anything.
    const Area used = used_area(state.sheet);
    if (state.aspects.has(Aspect::Contents) && ContentRecord::any_beyond(state.sheet, state_->pieces, used)) {
        state.used.last_row = std::max(state.used.last_row, used.last_row);
        state.used.last_column = std::max(state.used.last_column, used.last_column);
    }
    return record(std::move(state), most_bytes, trace);
}

std::optional<Snapshot> Snapshot::record(State state, std::size_t most_bytes, const automation::Trace& trace) {
    const excel::Worksheet& sheet = state.sheet;
    const Aspects aspects = state.aspects;
    Budget budget(most_bytes);
    try {
        budget.spend(sizeof(State));
        state.pieces = pieces_of(state.areas, state.used);
        if (aspects.has(Aspect::Contents)) state.contents = ContentRecord::take(sheet, state.pieces, budget);
        if (aspects.has(Aspect::Formats)) {
            state.formats = FacetRecord::take(format_facets(), sheet, state.pieces, budget, trace);
            state.formats.tell_gradients(state.irreplaceable);
        } else if (aspects.has(Aspect::Contents)) {
            state.formats = FacetRecord::take(number_format_facet(), sheet, state.pieces, budget, trace);
        }
        if (aspects.has(Aspect::Rows)) {
            const auto rows = pieces_of(lines_of(state.areas, true), state.used);
            state.rows = FacetRecord::take(row_facets(), sheet, rows, budget, trace);
        }
        if (aspects.has(Aspect::Columns)) {
            std::vector<Piece> columns;
            for (const Area& line : lines_of(state.areas, false)) columns.push_back({line, true});
            state.columns = FacetRecord::take(column_facets(), sheet, columns, budget, trace);
        }
        if (aspects.has(Aspect::Merges)) state.merges = MergeRecord::take(sheet, state.areas, budget);
        if (aspects.has(Aspect::Conditions)) {
            state.conditions = ConditionRecord::take(state.held->range(), budget, trace);
            state.conditions.tell_irreplaceable(state.areas, state.irreplaceable);
        }
        if (aspects.has(Aspect::Names)) state.names = NameRecord::take(sheet.Parent(), budget, trace);
    } catch (const RecordTooLarge&) {
        return std::nullopt;
    }
    return Snapshot(std::make_shared<const State>(std::move(state)));
}

std::size_t Snapshot::estimate(const excel::Range& area, Aspects aspects) {
    const Area used = used_area(area.Worksheet());
    std::size_t sum = sizeof(State);
    for (const Area& part : areas_of(area)) {
        sum += bytes_of_area;
        const auto common = part.intersection(used);
        if (aspects.has(Aspect::Filled))
            sum += static_cast<std::size_t>(part.cells()) * bytes_of_filled_cell;
        else if (common && aspects.has(Aspect::Contents))
            sum += static_cast<std::size_t>(common->cells()) * bytes_of_content;
    }
    return aspects.empty() ? 0 : sum;
}

std::vector<std::string> Snapshot::restore(const automation::Trace& trace) const {
    const State& state = *state_;
    const WithoutEvents quiet(state.application, trace);
    Restoring restoring(state.application, state.sheet, trace);
    try {
        // A merged area takes contents in its first cell only, and formats of its own.
        if (state.aspects.has(Aspect::Merges)) state.merges.split_others(state.areas, restoring);
        if (state.aspects.has(Aspect::Contents)) state.contents.restore(state.pieces, restoring);
        if (state.aspects.has(Aspect::Merges)) state.merges.merge(restoring);
        state.formats.restore(restoring);
        if (state.aspects.has(Aspect::Conditions)) state.conditions.restore(state.held->range(), restoring);
        state.rows.restore(restoring);
        state.columns.restore(restoring);
        if (state.aspects.has(Aspect::Names)) state.names.restore(state.sheet.Parent(), restoring);
    } catch (const automation::AutomationError& error) {
        // Excel does not even tell how the cells are now.
        restoring.refuse(formula::area_text(state.areas.front()), error.member(), error.description());
    }
    return restoring.take_refusals();
}

bool Snapshot::operator==(const Snapshot& other) const {
    const State& a = *state_;
    const State& b = *other.state_;
    return a.areas == b.areas && a.aspects == b.aspects && a.contents == b.contents && a.formats == b.formats &&
           a.rows == b.rows && a.columns == b.columns && a.merges == b.merges && a.conditions == b.conditions &&
           a.names == b.names;
}

const std::vector<std::string>& Snapshot::irreplaceable() const { return state_->irreplaceable; }

bool Snapshot::in_place() const { return state_->held->areas() == state_->areas; }

const HeldCellsRef& Snapshot::held() const { return state_->held; }
Aspects Snapshot::aspects() const { return state_->aspects; }

std::size_t Snapshot::bytes() const {
    const State& state = *state_;
    std::size_t sum = sizeof(State) + state.areas.capacity() * sizeof(Area) + state.pieces.capacity() * sizeof(Piece);
    sum += state.contents.bytes() + state.formats.bytes() + state.rows.bytes() + state.columns.bytes() +
           state.merges.bytes() + state.conditions.bytes() + state.names.bytes();
    for (const std::string& line : state.irreplaceable) sum += sizeof(line) + line.capacity();
    return sum;
}

}  // namespace kestrune::brxllib::undo
