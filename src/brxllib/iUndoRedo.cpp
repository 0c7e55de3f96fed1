#include "brxllib/iUndoRedo.h"

#include <algorithm>
#include <vector>

#include "brxllib/undo/Recorder.h"

namespace kestrune::brxllib {

using automation::AutomationError;
using automation::MemberTable;
using automation::method;
using automation::read_only;
using automation::Value;

namespace {

Value list_of(const std::vector<std::string>& texts) {
    automation::Array list(automation::Array::Bound{1, static_cast<std::int32_t>(texts.size())});
    std::ranges::copy(texts, list.elements().begin());
    return list;
}

std::string first_of(std::vector<std::string> texts) {
    return texts.empty() ? std::string() : std::move(texts.front());
}

[[noreturn]] void wrong(std::string_view member, std::string_view why) {
    throw AutomationError(automation::hresult::bad_index, member, why);
}

}  // namespace

void iUndoRedo::register_callback(const std::string& client_name, const automation::ObjectRef& callback) {
    if (callback) {
        library_->callbacks.insert_or_assign(client_name, callback);
    } else {
        library_->callbacks.erase(client_name);
    }
}

bool iUndoRedo::undo() { return undo::Recorder(*library_).undo(); }
bool iUndoRedo::redo() { return undo::Recorder(*library_).redo(); }
bool iUndoRedo::set_undo_point() { return undo::Recorder(*library_).set_point(); }

bool iUndoRedo::begin_step(const std::string& name, std::int32_t reach, std::int32_t aspects) {
    if (reach < 0 || reach > static_cast<std::int32_t>(undo::Reach::Workbook)) {
        wrong("iUndoRedo.BeginStep", "a reach is 0 to 3");
    }
    constexpr std::int32_t number_formats = 128;
    return undo::Recorder(*library_).begin(name, static_cast<undo::Reach>(reach), undo::Aspects::of_bits(aspects),
                                           (aspects & number_formats) != 0);
}

bool iUndoRedo::record(const automation::ObjectRef& range, std::int32_t aspects) {
    return undo::Recorder(*library_).record(excel::Range(range), undo::Aspects::of_bits(aspects));
}

bool iUndoRedo::record_insertion(const automation::ObjectRef& lines, bool rows) {
    return undo::Recorder(*library_).record_insertion(excel::Range(lines), rows);
}

bool iUndoRedo::record_deletion(const automation::ObjectRef& lines, bool rows) {
    return undo::Recorder(*library_).record_deletion(excel::Range(lines), rows);
}

void iUndoRedo::end_step() { undo::Recorder(*library_).end(); }

std::string iUndoRedo::undo_text() const { return first_of(library_->undo.undoable()); }
std::string iUndoRedo::redo_text() const { return first_of(library_->undo.redoable()); }
Value iUndoRedo::undo_history() const { return list_of(library_->undo.undoable()); }
Value iUndoRedo::redo_history() const { return list_of(library_->undo.redoable()); }

void iUndoRedo::clear() { library_->undo.clear(); }

std::int32_t iUndoRedo::step_limit() const { return static_cast<std::int32_t>(library_->undo.limits().steps); }

void iUndoRedo::set_step_limit(std::int32_t steps) {
    if (steps < 0) wrong("iUndoRedo.StepLimit", "a number of steps is 0 or more");
    undo::Limits limits = library_->undo.limits();
    limits.steps = static_cast<std::size_t>(steps);
    library_->undo.set_limits(limits);
}

double iUndoRedo::memory_limit() const { return static_cast<double>(library_->undo.limits().bytes); }

void iUndoRedo::set_memory_limit(double bytes) {
    constexpr double most = 2e9;
    if (!(bytes >= 0 && bytes <= most)) wrong("iUndoRedo.MemoryLimit", "a limit is 0 to 2,000,000,000 bytes");
    undo::Limits limits = library_->undo.limits();
    limits.bytes = static_cast<std::size_t>(bytes);
    library_->undo.set_limits(limits);
}

double iUndoRedo::memory_used() const { return static_cast<double>(library_->undo.bytes()); }

const MemberTable& iUndoRedo::members() {
    using U = iUndoRedo;
    static constexpr auto rows = automation::member_rows(
        method<&U::register_callback>("RegisterCallback", 1, "ClientName, Callback"), method<&U::undo>("Undo", 2),
        method<&U::redo>("Redo", 3), method<&U::set_undo_point>("SetUndoPoint", 4),
        method<&U::begin_step>("BeginStep", 5, "Name, Reach, Aspects"),
        method<&U::record>("Record", 6, "Range, Aspects"), method<&U::end_step>("EndStep", 7),
        read_only<&U::undo_text>("UndoText", 8), read_only<&U::redo_text>("RedoText", 9),
        read_only<&U::undo_history>("UndoHistory", 10), read_only<&U::redo_history>("RedoHistory", 11),
        method<&U::clear>("Clear", 12), automation::property<&U::step_limit, &U::set_step_limit>("StepLimit", 13),
        automation::property<&U::memory_limit, &U::set_memory_limit>("MemoryLimit", 14),
        read_only<&U::memory_used>("MemoryUsed", 15),
        method<&U::record_insertion>("RecordInsertion", 16, "Lines, Rows"),
        method<&U::record_deletion>("RecordDeletion", 17, "Lines, Rows"));
    static constexpr MemberTable table("iUndoRedo", rows);
    return table;
}

}  // namespace kestrune::brxllib
