#pragma once

#include "brvblib/Files.h"

namespace kestrune::native {

// Files by POSIX calls, which can flush a file to the disk where the standard library cannot.
class PosixFiles : public brvblib::Files {
  public:
    [[nodiscard]] std::string read(const std::string& path, std::size_t limit) const override;
    // Keeps the permissions of the file that is replaced. A symbolic link stays one: what it leads to is replaced.
    void write(const std::string& path, const std::string& bytes) const override;
    [[nodiscard]] bool may_write(const std::string& path) const override;
};

}  // namespace kestrune::native
