#pragma once

#include "brvblib/Files.h"

namespace kestrune::windows {

// Files by Windows' own calls: they flush a file to the disk, and replace one that others may be reading.
class Win32Files : public brvblib::Files {
  public:
    [[nodiscard]] std::string read(const std::string& path, std::size_t limit) const override;
    // A file that is replaced keeps its permissions and attributes.
    void write(const std::string& path, const std::string& bytes) const override;
    [[nodiscard]] bool may_write(const std::string& path) const override;
};

}  // namespace kestrune::windows
