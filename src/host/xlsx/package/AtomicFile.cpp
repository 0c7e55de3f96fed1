#include "host/xlsx/package/AtomicFile.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <random>
#include <system_error>
#include <utility>

#include "host/xlsx/PackageError.h"

namespace kestrune::host {
namespace {

constexpr int MaximumLinks = 40;  // what Linux allows on one path
constexpr int MaximumTries = 100;
constexpr std::size_t PendingSize = std::size_t{1} << 16;
constexpr mode_t PermissionBits = 07777;
constexpr std::size_t LongestStem = 200;  // a file name has 255 bytes at most; ours adds a few

std::string random_suffix() {
    std::random_device device;
    return fmt::format("{:08x}{:08x}", device(), device());
}

}  // namespace

AtomicFile::AtomicFile(std::string path) : path_(std::move(path)), target_(path_) {
    follow_links();
    check_target();
    open_beside();
}

AtomicFile::~AtomicFile() {
    if (!beside_.empty()) ::unlink(beside_.c_str());
}

void AtomicFile::fail(int error) const {
    throw PackageError(path_, "", "cannot be written: " + std::generic_category().message(error));
}

void AtomicFile::follow_links() {
    if (target_.empty()) fail(ENOENT);
    std::error_code error;
    for (int links = 0; std::filesystem::is_symlink(std::filesystem::symlink_status(target_, error)); ++links) {
        if (links == MaximumLinks) fail(ELOOP);
        const std::filesystem::path next = std::filesystem::read_symlink(target_, error);
        if (error) fail(error.value());
        // An absolute path replaces what it is appended to.
        target_ = (std::filesystem::path(target_).parent_path() / next).string();
    }
    folder_ = std::filesystem::path(target_).parent_path().string();
    if (folder_.empty()) folder_ = ".";
}

void AtomicFile::check_target() {
    struct stat status = {};
    if (::stat(target_.c_str(), &status) != 0) {
        if (errno != ENOENT) fail(errno);
        if (target_.back() == '/') fail(EISDIR);
        return;
    }
    if (S_ISDIR(status.st_mode)) fail(EISDIR);
    if (!S_ISREG(status.st_mode)) throw PackageError(path_, "", "cannot be written: it is not a regular file");
    // Renaming over a write-protected file would succeed; its owner protected it all the same.
    if (::faccessat(AT_FDCWD, target_.c_str(), W_OK, AT_EACCESS) != 0) fail(errno);
    replaces_ = true;
    mode_ = status.st_mode & PermissionBits;
    owner_ = status.st_uid;
    group_ = status.st_gid;
}

void AtomicFile::open_beside() {
    const std::string name = std::filesystem::path(target_).filename().string().substr(0, LongestStem);
    for (int tries = 0; tries < MaximumTries; ++tries) {
        std::string beside = fmt::format("{}/.{}.{}.tmp", folder_, name, random_suffix());
        // A replaced file may be private: nobody else gets to see the new one before it has the same permissions.
        file_ = Descriptor(
            ::open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, replaces_ ? 0600 : 0666));
        if (file_) {
            beside_ = std::move(beside);
            return;
        }
        if (errno != EEXIST) fail(errno);
    }
    fail(EEXIST);
}

void AtomicFile::write(std::string_view bytes) {
    if (pending_.size() + bytes.size() <= PendingSize) {
        pending_ += bytes;
        return;
    }
    put(pending_);
    pending_.clear();
    put(bytes);
}

void AtomicFile::put(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(file_.number(), bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) fail(errno);
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

void AtomicFile::commit() {
    put(pending_);
    pending_.clear();
    if (replaces_) {
        // Only root may give files away; for everybody else the file becomes their own, as with any editor. The
        // owner goes first: changing it takes set-user-id bits away.
        const bool given = ::fchown(file_.number(), owner_, group_) == 0;
        if (::fchmod(file_.number(), given ? mode_ : mode_ & 0777) != 0) fail(errno);
    }
    if (::fsync(file_.number()) != 0) fail(errno);
    if (!file_.close()) fail(errno);
    if (std::rename(beside_.c_str(), target_.c_str()) != 0) fail(errno);
    beside_.clear();
    // The new file is in place. A folder that cannot be flushed (some network file systems) is no failure any more.
    const Descriptor folder(::open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder) ::fsync(folder.number());
}

}  // namespace kestrune::host
