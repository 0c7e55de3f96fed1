#include "brvblib/CommandBracket.h"

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"

namespace kestrune::brvblib {
namespace {

constexpr std::string_view screen_updating = "ScreenUpdating";

}  // namespace

CommandBracket::~CommandBracket() {
    if (depth_ == 0) return;
    depth_ = 1;
    end();
}

void CommandBracket::begin(const automation::ObjectRef& application) {
    if (depth_++ > 0 || !application) return;
    application_ = application;
    const automation::ResumeNext attempt(trace_);
    attempt.assign(screen_updating_,
                   [&] { return automation::to_boolean(automation::get(*application_, screen_updating)); });
    if (screen_updating_ == true) attempt([&] { automation::put(*application_, screen_updating, false); });
}

void CommandBracket::end() {
    if (depth_ == 0 || --depth_ > 0 || !application_) return;
    const automation::ResumeNext attempt(trace_);
    // Written even when it was off: the command may have switched it on.
    if (screen_updating_) attempt([&] { automation::put(*application_, screen_updating, *screen_updating_); });
    screen_updating_.reset();
    application_ = nullptr;
}

}  // namespace kestrune::brvblib
