#pragma once

#include <functional>
#include <memory>
#include <string>

#include "automation/Trace.h"
#include "automation/Value.h"
#include "brvblib/Calendar.h"
#include "brvblib/Desktop.h"
#include "brvblib/Files.h"
#include "brvblib/ProductStore.h"
#include "brvblib/ScreenPlacer.h"
#include "brvblib/xml/XmlParser.h"
#include "forms/Presenter.h"

namespace kestrune::brvblib {

// What the library needs of the system that it runs on. The program that wires things together gives it; what is left
// out makes the operations fail that need it. Folders end in a separator.
struct Services {
    const automation::Trace& trace;  // outlives every object of the library
    forms::Presenter& presenter;     // the same
    std::shared_ptr<const ProductStore> products = std::make_shared<StatedValues>();
    std::shared_ptr<const Files> files = nullptr;
    std::shared_ptr<const XmlParser> xml = nullptr;
    std::shared_ptr<const Desktop> desktop = nullptr;
    std::shared_ptr<const ScreenPlacer> screen = nullptr;  // without one, Excel places its window itself
    std::string data_folder = {};          // of the user, for the product; made when it is first asked for
    std::string installation_folder = {};  // where the product's help lies
    std::function<automation::Date()> now = &local_now;
};

}  // namespace kestrune::brvblib
