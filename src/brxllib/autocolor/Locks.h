#pragma once

#include "brxllib/autocolor/ClassReader.h"
#include "excel/Worksheet.h"

namespace kestrune::brxllib {

// Which cells of a sheet its protection keeps from being formatted.
class Locks {
  public:
    Locks(excel::Worksheet sheet, const automation::Trace& trace);

    // Takes the cells that cannot be formatted out of a block: they count as empty from here on.
    void take_out(ClassBlock& block) const;

  private:
    excel::Worksheet sheet_;
    bool protected_ = false;
};

}  // namespace kestrune::brxllib
