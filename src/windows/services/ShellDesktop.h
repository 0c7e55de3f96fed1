#pragma once

#include "brvblib/Desktop.h"

namespace kestrune::windows {

// Opens things as the Explorer does.
class ShellDesktop : public brvblib::Desktop {
  public:
    void open(const std::string& target) const override;
};

}  // namespace kestrune::windows
