#pragma once

#include <stdexcept>

namespace kestrune::vba {

// Bytes that are no compound file, no compressed stream or no project, or a project that cannot be written; one line
// for a person.
class VbaError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace kestrune::vba
