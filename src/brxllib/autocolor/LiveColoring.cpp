#include "brxllib/autocolor/LiveColoring.h"

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "brxllib/autocolor/AutoColor.h"
#include "brxllib/autocolor/ClassReader.h"

namespace kestrune::brxllib {
namespace {

// Whether the cells were filled at once by an entry that covers the whole selection. What is pasted covers it, too, but
// leaves Excel in copy mode.
bool fills_selection(const excel::Application& application, const excel::Range& changed) {
    const automation::ObjectRef selected = application.Selection();
    if (!excel::Range::is(selected) || changed.CountLarge() < 2) return false;
    return areas_of(excel::Range(selected)) == areas_of(changed) && !application.CutCopyMode();
}

}  // namespace

void LiveColoring::update() {
    const automation::ObjectRef& application = library_.application.object();
    const bool listens = application && (settings_.bAutoColorOn || ctrl_enter.while_off);
    if (listens && subscription_ && heard_ == application) return;
    subscription_.reset();
    heard_.reset();
    if (!listens) return;
    subscription_ = automation::subscribe(application, [this](std::string_view event, automation::Arguments& told) {
        if (automation::same_text(event, "SheetChange")) hear(event, told);
    });
    heard_ = application;
}

void LiveColoring::hear(std::string_view event, const automation::Arguments& arguments) const {
    // What undo and redo give back has its colours with it.
    if (library_.undo.is_moving()) return;
    const automation::ResumeNext attempt(library_.trace);
    attempt([&] {
        if (arguments.positional.size() < 2) {
            throw automation::AutomationError(automation::hresult::bad_argument_count, event, "names no cells");
        }
        const automation::ObjectRef target = automation::to_object(arguments.positional[1]);
        if (!excel::Range::is(target)) return;
        const excel::Range changed(target);
        if (wanted(changed)) AutoColor(library_, settings_).color(changed);
    });
}

bool LiveColoring::wanted(const excel::Range& changed) const {
    const bool usually = settings_.bAutoColorOn;
    const bool fills = usually ? ctrl_enter.while_on : ctrl_enter.while_off;
    // Whether it is such a fill matters only where it makes a difference.
    return usually == fills || !fills_selection(library_.application, changed) ? usually : fills;
}

}  // namespace kestrune::brxllib
