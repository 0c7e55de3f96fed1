#include "host/xlsx/package/FileBytes.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdint>
#include <system_error>

#include "host/xlsx/PackageError.h"
#include "host/xlsx/package/Descriptor.h"

namespace kestrune::host {
namespace {

constexpr std::int64_t Limit = std::int64_t{4} << 30;

[[noreturn]] void fail(const std::string& path, int error) {
    if (error == ENOENT) throw PackageError(path, "", "does not exist");
    throw PackageError(path, "", "cannot be read: " + std::generic_category().message(error));
}

}  // namespace

std::string read_file(const std::string& path) {
    // Without O_NONBLOCK, opening a pipe that nobody writes to would wait for ever.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file) fail(path, errno);
    struct stat status = {};
    if (::fstat(file.number(), &status) != 0) fail(path, errno);
    if (S_ISDIR(status.st_mode)) throw PackageError(path, "", "is a directory, not a workbook");
    if (!S_ISREG(status.st_mode)) throw PackageError(path, "", "is not a regular file");
    if (status.st_size > Limit) throw PackageError(path, "", "is larger than 4 GiB");
    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t got = 0;
    while (got < bytes.size()) {
        const ssize_t count = ::read(file.number(), bytes.data() + got, bytes.size() - got);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) fail(path, errno);
        if (count == 0) break;  // somebody cut it meanwhile
        got += static_cast<std::size_t>(count);
    }
    bytes.resize(got);
    return bytes;
}

}  // namespace kestrune::host
