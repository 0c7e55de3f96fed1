#pragma once

#include "brxllib/Library.h"
#include "excel/Workbook.h"

namespace kestrune::brxllib {

// All fonts of a workbook in black, to present or to print it, and back in their colours.
//
// No font is written: a conditional format of the product's own lies over the sheets, above all others. So the colours
// are there all the time, whatever happens to the cells meanwhile, the state is the workbook's own and is saved with
// it, and taking the conditional format away gives back exactly what was. Cells in a colour that clients want left
// alone stay as they are: white on a dark fill is not to be read in black.
class BlackFonts {
  public:
    // The library outlives the object.
    explicit BlackFonts(const Library& library) : library_(library) {}

    // Whether any worksheet of the workbook is shown in black.
    [[nodiscard]] bool in(const excel::Workbook& workbook) const;
    // Shows all its worksheets in black, or, when any is, all in their colours. A sheet that refuses stays as it is;
    // the trace is told.
    void toggle(const excel::Workbook& workbook) const;

  private:
    const Library& library_;
};

}  // namespace kestrune::brxllib
