#include "brvblib/iScreen.h"

#include <fmt/format.h>

#include <array>

#include "automation/ResumeNext.h"

namespace kestrune::brvblib {
namespace {

using automation::Object;

constexpr std::int32_t xlMaximized = -4137;
constexpr std::int32_t xlNormal = -4143;

constexpr std::int32_t maximise = 1;
constexpr std::int32_t first_share = 2;

// Shares of the screen by placement, from 2 on.
constexpr std::array<Share, 5> shares{{
    {0, 0, 1, 0.5},             // top half
    {0, 0.5, 1, 0.5},           // bottom half
    {0, 0, 0.5, 1},             // left half
    {0.5, 0, 0.5, 1},           // right half
    {0.125, 0.125, 0.75, 0.75}  // centred, three quarters each way
}};

[[noreturn]] void bad_index(std::string_view what, std::int32_t index) {
    throw automation::AutomationError(automation::hresult::bad_index, "iScreen.Place",
                                      fmt::format("there is no {} {}", what, index));
}

// The part of the screen that a window may use, in points, learnt from the maximised window: Excel answers its place in
// points of the screen it stands on, task bars taken off, where the screen's own size would be in pixels of any screen.
Share usable_area(Object& application) {
    const auto points = [&](std::string_view member) {
        return automation::to_double(automation::get(application, member));
    };
    Share area{points("Left"), points("Top"), points("Width"), points("Height")};
    // Windows lets a maximised window's frame hang over the screen's edges by a few points, the same at each.
    constexpr double widest_frame = 12;
    if (area.left < 0 && area.left >= -widest_frame) {
        const double frame = -area.left;
        area = {area.left + frame, area.top + frame, area.width - 2 * frame, area.height - 2 * frame};
    }
    return area;
}

}  // namespace

void iScreen::place(std::int32_t window, std::int32_t placement) const {
    if (window != 0) bad_index("window", window);
    if (placement < maximise || placement - first_share >= static_cast<std::int32_t>(shares.size())) {
        bad_index("placement", placement);
    }
    Object& application = automation::to_required_object(library_->application);
    if (const auto& screen = library_->services.screen) {
        std::optional<Share> wanted;
        if (placement != maximise) wanted = shares[static_cast<std::size_t>(placement - first_share)];
        if (screen->place(application, wanted)) return;
    }
    automation::put(application, "WindowState", xlMaximized);
    if (placement == maximise) return;

    const Share area = usable_area(application);
    const Share& share = shares[static_cast<std::size_t>(placement - first_share)];
    // Excel refuses a place and a size to a maximised window.
    automation::put(application, "WindowState", xlNormal);
    const automation::ResumeNext attempt(library_->services.trace);
    attempt([&] { automation::put(application, "Left", area.left + share.left * area.width); });
    attempt([&] { automation::put(application, "Top", area.top + share.top * area.height); });
    attempt([&] { automation::put(application, "Width", share.width * area.width); });
    attempt([&] { automation::put(application, "Height", share.height * area.height); });
}

const automation::MemberTable& iScreen::members() {
    static constexpr auto rows =
        automation::member_rows(automation::method<&iScreen::place>("Place", 1, "Window, Placement"));
    static constexpr automation::MemberTable table("iScreen", rows);
    return table;
}

}  // namespace kestrune::brvblib
