#include "core/bridges/Selection.h"

namespace kestrune::core {
namespace {

constexpr double cells_drawn_at_once = 9;

}  // namespace

excel::Range selected_range(const SharedState& shared) {
    const automation::ResumeNext attempt(shared.trace);
    automation::ObjectRef selected;
    attempt.assign(selected, [&] { return excel::Application(shared.application).Selection(); });
    return excel::Range::is(selected) ? excel::Range(selected) : excel::Range();
}

excel::Worksheet active_worksheet(const SharedState& shared) {
    const automation::ResumeNext attempt(shared.trace);
    automation::ObjectRef active;
    attempt.assign(active, [&] { return excel::Application(shared.application).ActiveSheet(); });
    return excel::Worksheet::is(active) ? excel::Worksheet(active) : excel::Worksheet();
}

RedrawingPause::RedrawingPause(const SharedState& shared, const excel::Range& range)
    : attempt_(shared.trace), application_(shared.application) {
    attempt_.assign(paused_, [&] { return range.Cells().CountLarge() > cells_drawn_at_once; });
    if (paused_) attempt_([&] { application_.ScreenUpdating(false); });
}

RedrawingPause::~RedrawingPause() {
    if (paused_) attempt_([&] { application_.ScreenUpdating(true); });
}

}  // namespace kestrune::core
