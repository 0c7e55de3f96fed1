#include "idl/libraries/libraries.h"

#include "brvblib/iPublic.h"
#include "brxllib/iPublic.h"
#include "core/iGlobal.h"
#include "core/iPublic.h"
#include "host/objects/ApplicationObject.h"
#include "host/objects/AreasObject.h"
#include "host/objects/BorderObject.h"
#include "host/objects/BordersObject.h"
#include "host/objects/ChartSheetObject.h"
#include "host/objects/FontObject.h"
#include "host/objects/FormatConditionObject.h"
#include "host/objects/FormatConditionsObject.h"
#include "host/objects/InteriorObject.h"
#include "host/objects/NameObject.h"
#include "host/objects/NamesObject.h"
#include "host/objects/OutlineObject.h"
#include "host/objects/RangeObject.h"
#include "host/objects/SheetsObject.h"
#include "host/objects/StyleObject.h"
#include "host/objects/StylesObject.h"
#include "host/objects/WindowObject.h"
#include "host/objects/WindowsObject.h"
#include "host/objects/WorkbookObject.h"
#include "host/objects/WorkbooksObject.h"
#include "host/objects/WorksheetObject.h"

namespace kestrune::idl {

std::vector<Library> libraries() {
    return {
        {"KestruneXL", &core::iPublic::members, {}},
        {"BRVBLib", &brvblib::iPublic::members, {}},
        {"BRXLLib", &brxllib::iPublic::members, {}},
        // Its members answer whatever Excel's would, so no C++ type names the classes.
        {"KestruneHost",
         &host::ApplicationObject::members,
         {&host::AreasObject::members,
          &host::BorderObject::members,
          &host::BordersObject::members,
          &host::ChartSheetObject::members,
          &host::FontObject::members,
          &host::FormatConditionObject::members,
          &host::FormatConditionsObject::members,
          &host::InteriorObject::members,
          &host::NameObject::members,
          &host::NamesObject::members,
          &host::OutlineObject::members,
          &host::RangeObject::members,
          &host::SheetsObject::members,
          &host::StyleObject::members,
          &host::StylesObject::members,
          &host::WindowObject::members,
          &host::WindowsObject::members,
          &host::WorkbookObject::members,
          &host::WorkbooksObject::members,
          &host::WorksheetObject::members,
          &host::WorksheetsObject::members}},
    };
}

}  // namespace kestrune::idl
