#pragma once

#include <cstddef>
#include <string>

namespace kestrune::brvblib {

// Files that are read and written whole. Paths are UTF-8.
// A failure is an AutomationError whose description is "PATH: what is wrong".
class Files {
  public:
    virtual ~Files() = default;

    // What a file holds. Fails when it is no file, cannot be read or is longer than limit bytes.
    [[nodiscard]] virtual std::string read(const std::string& path, std::size_t limit) const = 0;
    // Puts a file under its name whole or not at all: it is written beside, flushed to the disk and renamed.
    virtual void write(const std::string& path, const std::string& bytes) const = 0;
    // Whether this user may change a file that is there.
    [[nodiscard]] virtual bool may_write(const std::string& path) const = 0;
};

}  // namespace kestrune::brvblib
