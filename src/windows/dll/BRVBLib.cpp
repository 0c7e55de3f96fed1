#include <memory>

#include "automation/Trace.h"
#include "brvblib/register_library.h"
#include "windows/Win32Presenter.h"
#include "windows/dll/Component.h"
#include "windows/services/MsxmlParser.h"
#include "windows/services/Win32Files.h"

namespace kestrune::windows {

void wire_component() {
    static Win32Presenter presenter;
    static const automation::Trace trace;
    brvblib::register_library({.trace = trace,
                               .presenter = presenter,
                               .files = std::make_shared<Win32Files>(),
                               .xml = std::make_shared<MsxmlParser>()});
}

}  // namespace kestrune::windows
