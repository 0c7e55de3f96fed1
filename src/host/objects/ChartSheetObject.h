#pragma once

#include "host/objects/SheetObject.h"

namespace kestrune::host {

// A chart on a sheet of its own, and any other sheet without cells; only its place among the sheets is served.
class ChartSheetObject final : public SheetObject<ChartSheetObject> {
  public:
    static const MemberTable& members();

    ChartSheetObject(HostSession& session, Sheet& sheet) : SheetObject(session, sheet) {}
};

}  // namespace kestrune::host
