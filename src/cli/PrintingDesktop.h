#pragma once

#include <fmt/format.h>

#include <cstdio>
#include <string>

#include "brvblib/Desktop.h"

namespace kestrune::cli {

// A command line opens no windows: it says where the document is.
class PrintingDesktop : public brvblib::Desktop {
  public:
    void open(const std::string& target) const override { fmt::print(stderr, "open: {}\n", target); }
};

}  // namespace kestrune::cli
