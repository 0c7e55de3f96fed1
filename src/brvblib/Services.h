#pragma once

#include <memory>

#include "automation/Trace.h"
#include "brvblib/Files.h"
#include "brvblib/ProductStore.h"
#include "brvblib/xml/XmlParser.h"
#include "forms/Presenter.h"

namespace kestrune::brvblib {

// What the library needs of the system that it runs on. The program that wires things together gives it; what is left
// out makes the operations fail that need it.
struct Services {
    const automation::Trace& trace;  // outlives every object of the library
    forms::Presenter& presenter;     // the same
    std::shared_ptr<const ProductStore> products = std::make_shared<StatedValues>();
    std::shared_ptr<const Files> files = nullptr;
    std::shared_ptr<const XmlParser> xml = nullptr;
};

}  // namespace kestrune::brvblib
