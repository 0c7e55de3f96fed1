#include "windows/services/services.h"

#include <windows.h>

#include <shlobj.h>

#include "brvblib/Paths.h"
#include "windows/com/Unicode.h"
#include "windows/services/MsxmlParser.h"
#include "windows/services/RegistryProductStore.h"
#include "windows/services/ShellDesktop.h"
#include "windows/services/Win32Files.h"
#include "windows/services/Win32Screen.h"

namespace kestrune::windows {

std::string data_folder() {
    wchar_t folder[MAX_PATH];
    if (FAILED(::SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, folder))) return {};
    return brvblib::with_separator(to_utf8(folder)) + "Brannoch\\Kestrune\\";
}

brvblib::Services services(const automation::Trace& trace, forms::Presenter& presenter,
                           const std::string& installation_folder) {
    return {.trace = trace,
            .presenter = presenter,
            .products = std::make_shared<RegistryProductStore>(),
            .files = std::make_shared<Win32Files>(),
            .xml = std::make_shared<MsxmlParser>(),
            .desktop = std::make_shared<ShellDesktop>(),
            .screen = std::make_shared<Win32Screen>(),
            .data_folder = data_folder(),
            .installation_folder = brvblib::with_separator(installation_folder)};
}

}  // namespace kestrune::windows
