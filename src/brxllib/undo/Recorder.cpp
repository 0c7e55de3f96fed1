#include "brxllib/undo/Recorder.h"

#include <fmt/format.h>

#include <memory>
#include <utility>

#include "automation/AutomationError.h"
#include "automation/ResumeNext.h"
#include "brxllib/undo/CellsChange.h"
#include "brxllib/undo/DeletedLines.h"
#include "brxllib/undo/InsertedLines.h"
#include "brxllib/undo/NumberFormatsChange.h"
#include "excel/Constants.h"
#include "excel/Workbook.h"
#include "excel/Worksheet.h"
#include "forms/MsgBox.h"
#include "formula/SheetName.h"

namespace kestrune::brxllib::undo {

using automation::AutomationError;

namespace {

// Before and after: a change is recorded twice.
constexpr std::size_t records_of_a_change = 2;

constexpr std::string_view too_much = "it changes more than undo can hold";

// The first few clauses, as one.
std::string listed(const std::vector<std::string>& clauses) {
    constexpr std::size_t most = 4;
    std::string text;
    for (std::size_t i = 0; i < clauses.size() && i < most; ++i) text += (i > 0 ? "; " : "") + clauses[i];
    if (clauses.size() > most) text += fmt::format("; and {} more", clauses.size() - most);
    return text;
}

}  // namespace

std::string place_of(const excel::Range& cells) {
    constexpr std::int32_t most_areas = 3;
    const excel::Areas areas = cells.Areas();
    const std::int32_t count = areas.Count();
    std::string place = formula::quoted_sheet(cells.Worksheet().Name()) + "!";
    for (std::int32_t i = 1; i <= count && i <= most_areas; ++i) {
        if (i > 1) place += ",";
        place += areas.Item(i).Address(false, false, excel::xlA1, false);
    }
    if (count > most_areas) place += fmt::format(" and {} more areas", count - most_areas);
    return place;
}

Recorder::Target Recorder::target_of(Reach reach) const {
    Target target;
    const excel::Application& application = library_.application;
    if (reach == Reach::Selection) {
        const automation::ObjectRef selected = application.Selection();
        if (!excel::Range::is(selected)) return target;
        target.ranges.emplace_back(selected);
        target.place = place_of(target.ranges.front());
    } else if (reach == Reach::Sheet) {
        const automation::ObjectRef active = application.ActiveSheet();
        if (!excel::Worksheet::is(active)) return target;
        const excel::Worksheet sheet(active);
        target.ranges.push_back(sheet.Cells());
        target.place = formula::quoted_sheet(sheet.Name());
    } else if (reach == Reach::Workbook) {
        const excel::Workbook workbook = application.ActiveWorkbook();
        const excel::Worksheets sheets = workbook.Worksheets();
        const std::int32_t count = sheets.Count();
        for (std::int32_t i = 1; i <= count; ++i) target.ranges.push_back(sheets.Item(i).Cells());
        target.place = workbook.Name();
    }
    return target;
}

bool Recorder::begin(std::string name, Reach reach, Aspects aspects, bool number_formats) {
    library_.undo.begin(std::move(name));
    bool wanted = false;
    try {
        const Target target = target_of(reach);
        Step& step = *library_.undo.open();
        if (step.place.empty()) {
            step.place = target.place;
            if (reach == Reach::Selection && !target.ranges.empty())
                step.cells = std::make_shared<HeldCells>(library_.application, target.ranges.front());
        }
        wanted = record_all(target, aspects);
        if (number_formats && library_.around.formats) {
            library_.undo.add(
                std::make_unique<NumberFormatsChange>(library_.application.ActiveWorkbook(), *library_.around.formats));
        }
    } catch (const AutomationError& error) {
        wanted = give_up(error.description());
    }
    if (!wanted) library_.undo.cancel();
    return wanted;
}

bool Recorder::set_point() {
    const Target target = target_of(Reach::Selection);
    if (target.ranges.empty()) return false;
    library_.undo.begin_point("Changes");
    Step& step = *library_.undo.open();
    if (step.place.empty()) {
        step.place = target.place;
        step.cells = std::make_shared<HeldCells>(library_.application, target.ranges.front());
    }
    if (record_all(target, Aspects::all())) return true;
    library_.undo.cancel();
    return false;
}

bool Recorder::record_all(const Target& target, Aspects aspects) {
    for (const excel::Range& cells : target.ranges) {
        if (!record(cells, aspects)) return false;
    }
    return true;
}

bool Recorder::records() const {
    const Stack& stack = library_.undo;
    if (!stack.open()) {
        throw AutomationError(automation::hresult::excel_error, "iUndoRedo.Record", "no step is open");
    }
    return !stack.given_up() && stack.limits().steps > 0;
}

std::size_t Recorder::free_bytes() const {
    const Stack& stack = library_.undo;
    const std::size_t open_bytes = stack.open()->bytes() * records_of_a_change;
    const std::size_t most = stack.limits().bytes;
    return open_bytes < most ? (most - open_bytes) / records_of_a_change : 0;
}

bool Recorder::record_insertion(const excel::Range& lines, bool rows) {
    return record_lines(lines, [&](Stack& stack) {
        auto change = InsertedLines::take(library_.application, lines, rows, free_bytes(), library_.trace);
        if (!change) return give_up(too_much);
        stack.add(std::move(change));
        return true;
    });
}

bool Recorder::record_deletion(const excel::Range& lines, bool rows) {
    return record_lines(lines, [&](Stack& stack) {
        auto change = DeletedLines::take(library_.application, lines, rows, free_bytes(), library_.trace);
        if (!change) return give_up(too_much);
        if (const auto lost = change->irreplaceable(); !lost.empty()) return give_up(listed(lost));
        stack.add(std::move(change));
        return true;
    });
}

// What Excel does not let record is asked about, too: it must not go unnoticed.
template <class Record>
bool Recorder::record_lines(const excel::Range& lines, Record&& record) {
    if (!records()) return true;
    Stack& stack = library_.undo;
    if (stack.open()->place.empty()) stack.open()->place = place_of(lines);
    try {
        return record(stack);
    } catch (const AutomationError& error) {
        return give_up(error.description());
    }
}

bool Recorder::record(const excel::Range& cells, Aspects aspects) {
    if (!records() || aspects.empty()) return true;
    Stack& stack = library_.undo;
    if (stack.open()->place.empty()) {
        stack.open()->place = place_of(cells);
        stack.open()->cells = std::make_shared<HeldCells>(library_.application, cells);
    }
    const std::size_t most = stack.limits().bytes;
    const std::size_t free = free_bytes();
    if (Snapshot::estimate(cells, aspects) > free) return give_up(too_much);
    auto before = Snapshot::take(library_.application, cells, aspects, free, library_.trace);
    if (!before) return give_up(too_much);
    if (!before->irreplaceable().empty()) return give_up(before->irreplaceable().front());
    auto& changes = stack.open()->changes;
    auto* cells_so_far = changes.empty() ? nullptr : dynamic_cast<CellsChange*>(changes.back().get());
    if (!cells_so_far) {
        auto change = std::make_unique<CellsChange>(most, library_.trace);
        cells_so_far = change.get();
        stack.add(std::move(change));
    }
    cells_so_far->add(std::move(*before));
    return true;
}

std::string Recorder::caption() const {
    return library_.clients.empty() ? std::string() : library_.clients.begin()->second.title;
}

bool Recorder::give_up(std::string_view why) {
    Stack& stack = library_.undo;
    if (!stack.open() || stack.given_up()) return true;
    const std::string question =
        fmt::format("{} cannot be undone: {}.  Do you wish to proceed?", stack.open()->description(), why);
    const bool proceed =
        library_.around.presenter && forms::MsgBox(*library_.around.presenter, question,
                                                   forms::vbOKCancel | forms::vbExclamation, caption()) == forms::vbOK;
    if (proceed) stack.give_up();
    return proceed;
}

bool Recorder::tell(const Outcome& outcome, std::string_view what) const {
    using Kind = Outcome::Kind;
    if (outcome.kind == Kind::Done) {
        // As Excel's own undo shows what it did. A hidden sheet stays where it is.
        const automation::ResumeNext attempt(library_.trace);
        attempt([&] {
            if (outcome.cells && outcome.cells.Worksheet().Visible() == excel::xlSheetVisible) {
                library_.application.Goto(outcome.cells);
            }
        });
        return true;
    }
    if (outcome.kind == Kind::Nothing || outcome.description.empty()) return false;
    const std::string_view cannot = outcome.kind == Kind::Withdrawn ? "can no longer be" : "cannot be";
    const std::string line = fmt::format("{} {} {}: {}.", outcome.description, cannot, what, outcome.why);
    if (!library_.around.presenter) {
        library_.trace.skipped(line);
        return false;
    }
    forms::MsgBox(*library_.around.presenter, line, forms::vbOKOnly | forms::vbExclamation, caption());
    return false;
}

}  // namespace kestrune::brxllib::undo
