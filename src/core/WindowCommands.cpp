#include "core/WindowCommands.h"

#include "automation/ResumeNext.h"
#include "excel/Application.h"
#include "excel/Constants.h"
#include "settings/cUserSettings.h"

namespace kestrune::core {
namespace {

using automation::ResumeNext;
using excel::Application;
using excel::Window;

constexpr std::int64_t least_zoom = 10;  // per cent, Excel's own limits
constexpr std::int64_t most_zoom = 400;

enum class Direction { In, Out };

void zoom(SharedState& shared, Direction direction) {
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        const Window window = Application(shared.application).ActiveWindow();
        const std::int64_t step = shared.settings().ZoomInterval;
        const std::int64_t now = window.Zoom();
        const std::int64_t then = direction == Direction::In ? now + step : now - step;
        // Each direction minds the limit ahead of it.
        const bool inside = direction == Direction::In ? then <= most_zoom : then >= least_zoom;
        if (inside) window.Zoom(static_cast<std::int32_t>(then));
    });
}

}  // namespace

void zoom_in(SharedState& shared, std::int32_t) { zoom(shared, Direction::In); }

void zoom_out(SharedState& shared, std::int32_t) { zoom(shared, Direction::Out); }

void toggle_window_size(SharedState& shared, std::int32_t) {
    const ResumeNext attempt(shared.trace);
    const Application application(shared.application);
    std::int32_t state = 0;
    if (!attempt.assign(state, [&] { return application.WindowState(); })) return;
    if (state == excel::xlNormal) {
        attempt([&] { application.WindowState(excel::xlMaximized); });
        return;
    }
    attempt([&] { application.WindowState(excel::xlNormal); });
    attempt([&] { application.ActiveWindow().WindowState(excel::xlMaximized); });
    // Points: 368 wide and 381 high, tall enough for rows below Excel's own bars, in the lower right corner of the
    // smallest screen in use (1024 by 768 pixels are 768 by 576 points), where a lesson fits beside it. The size
    // comes first, so that the place is given to a window that fits there.
    attempt([&] { application.Width(368); });
    attempt([&] { application.Height(381); });
    attempt([&] { application.Left(385); });
    attempt([&] { application.Top(176); });
}

void maximise_window(SharedState& shared, std::int32_t) {
    const ResumeNext attempt(shared.trace);
    attempt([&] { Application(shared.application).WindowState(excel::xlMaximized); });
}

void toggle_gridlines(SharedState& shared, std::int32_t) {
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        const Window window = Application(shared.application).ActiveWindow();
        window.DisplayGridlines(!window.DisplayGridlines());
    });
}

void place_window(SharedState& shared, std::int32_t placement) {
    const ResumeNext attempt(shared.trace);
    attempt([&] { shared.general().place_window(placement); });
}

}  // namespace kestrune::core
