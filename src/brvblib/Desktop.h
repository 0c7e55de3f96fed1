#pragma once

#include <string>

namespace kestrune::brvblib {

// The desktop on which a program opens documents and web pages for its user.
class Desktop {
  public:
    virtual ~Desktop() = default;

    // Opens a file or a web address in the program that the user has for it. Fails with an AutomationError whose
    // description names the target.
    virtual void open(const std::string& target) const = 0;
};

}  // namespace kestrune::brvblib
