#pragma once

#include <string>

namespace kestrune::host {

/// The whole of a regular file of at most 4 GiB. Throws PackageError.
std::string read_file(const std::string& path);

}  // namespace kestrune::host
