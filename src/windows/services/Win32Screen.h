#pragma once

#include "brvblib/ScreenPlacer.h"

namespace kestrune::windows {

// Places Excel's window by the handle that it gives (Application.Hwnd), on the screen on which it stands, in the part
// that task bars leave free. A maximised or minimised window is restored first. The thin invisible borders that Windows
// 10 gives windows lie outside the share, so that two windows side by side meet.
class Win32Screen : public brvblib::ScreenPlacer {
  public:
    bool place(automation::Object& application, const std::optional<brvblib::Share>& share) const override;
};

}  // namespace kestrune::windows
