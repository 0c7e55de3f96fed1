#pragma once

#include <stdexcept>

namespace kestrune::host {

// What Excel refuses to do to a sheet's content; the text is for the user, as Excel words it.
class ModelError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace kestrune::host
