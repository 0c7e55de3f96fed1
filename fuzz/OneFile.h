#pragma once

#include <cstddef>
#include <string>

#include "brvblib/Files.h"

namespace kestrune::fuzz {

// The one file of a disk in memory.
struct OneFile : brvblib::Files {
    [[nodiscard]] std::string read(const std::string&, std::size_t) const override { return bytes; }
    void write(const std::string&, const std::string& fresh) const override { bytes = fresh; }
    [[nodiscard]] bool may_write(const std::string&) const override { return true; }
    mutable std::string bytes;
};

}  // namespace kestrune::fuzz
