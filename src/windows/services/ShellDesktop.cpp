#include "windows/services/ShellDesktop.h"

#include <windows.h>

#include <fmt/format.h>
#include <shellapi.h>

#include "automation/AutomationError.h"
#include "windows/com/Unicode.h"
#include "windows/services/LastFailure.h"

namespace kestrune::windows {

void ShellDesktop::open(const std::string& target) const {
    const std::wstring file = to_utf16(target);
    SHELLEXECUTEINFOW what{};
    what.cbSize = sizeof what;
    what.fMask = SEE_MASK_FLAG_NO_UI;
    what.lpFile = file.c_str();
    what.nShow = SW_SHOWNORMAL;
    if (!::ShellExecuteExW(&what)) {
        throw automation::AutomationError(automation::hresult::exception, "Desktop",
                                          fmt::format("{}: {}", target, last_failure()));
    }
}

}  // namespace kestrune::windows
