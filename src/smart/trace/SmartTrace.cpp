#include "smart/trace/SmartTrace.h"

#include "automation/ResumeNext.h"
#include "core/bridges/Selection.h"
#include "smart/trace/fSmartDependents.h"
#include "smart/trace/fSmartPrecedents.h"

namespace kestrune::smart {
namespace {

template <class Dialog>
void show(core::SharedState& shared) {
    if (!core::selected_range(shared)) return;
    const automation::ResumeNext attempt(shared.trace);
    attempt([&] {
        // A person looks at the cells behind the dialog; the command's bracket keeps Excel from drawing them.
        const excel::Application application(shared.application);
        attempt([&] { application.ScreenUpdating(true); });
        Dialog(shared).Show(shared.presenter);
    });
}

}  // namespace

void SmartPrecedents(core::SharedState& shared, std::int32_t) { show<fSmartPrecedents>(shared); }

void SmartDependents(core::SharedState& shared, std::int32_t) { show<fSmartDependents>(shared); }

}  // namespace kestrune::smart
