#pragma once

#include <vector>

#include "automation/ResumeNext.h"
#include "brxllib/Library.h"
#include "brxllib/autocolor/Paints.h"
#include "brxllib/autocolor/RespectedColors.h"
#include "brxllib/autocolor/Settings.h"
#include "excel/Workbook.h"
#include "formula/Area.h"

namespace kestrune::brxllib {

// One run of AutoColor: gives the fonts of cells the colours of what the cells hold. Cells without content, and classes
// that the settings leave out, keep what they have; so does what Excel refuses to change, which the trace is told.
class AutoColor {
  public:
    // The library outlives the run.
    AutoColor(const Library& library, const AutoColorSettings& settings);
    ~AutoColor();
    AutoColor(const AutoColor&) = delete;
    AutoColor& operator=(const AutoColor&) = delete;

    void color(const excel::Range& range);
    void color(const excel::Worksheet& sheet);
    void color(const excel::Workbook& workbook);  // all its worksheets, hidden ones too

  private:
    using Areas = std::vector<formula::Area>;

    void color_cells(const excel::Worksheet& sheet, const Areas& cells);
    void pause_redrawing();

    const Library& library_;
    bool hyperlinks_;
    Paints paints_;
    automation::ResumeNext attempt_;
    RespectedColors respected_;
    bool paused_ = false;
};

}  // namespace kestrune::brxllib
