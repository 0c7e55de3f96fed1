#pragma once

#include <string>

#include "automation/Trace.h"
#include "brvblib/ProductStore.h"

namespace kestrune::native {

// Product values from a text file, a line "Name=Value" each. Blank lines and lines that begin with "#" say nothing, and
// blanks around names and values neither. Of two lines of one name the later counts. All values are texts; they convert
// where a number or a Boolean is wanted.
class ProductFile : public brvblib::ProductStore {
  public:
    // Reads the file now. A file that is not there sets nothing; one that cannot be read, and lines that say nothing
    // sensible, are told to the trace and passed over.
    ProductFile(const std::string& path, const automation::Trace& trace);

    [[nodiscard]] automation::Value value(std::string_view name) const override { return values_.value(name); }

  private:
    brvblib::StatedValues values_;
};

}  // namespace kestrune::native
