#include "companion/Files.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace kestrune::companion {

std::string content_of(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(in), {}};
    if (!in.is_open() || in.bad()) throw std::runtime_error(file.string() + ": cannot be read");
    return bytes;
}

void write_file(const std::filesystem::path& file, std::string_view bytes) {
    std::ofstream out(file, std::ios::binary);
    out << bytes << std::flush;
    if (!out) throw std::runtime_error(file.string() + ": cannot be written");
}

}  // namespace kestrune::companion
