#include "native/PosixFiles.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

#include "automation/AutomationError.h"

namespace kestrune::native {
namespace {

[[noreturn]] void fail(const std::string& path, std::string_view what) {
    throw automation::AutomationError(automation::hresult::exception, "iFile", fmt::format("{}: {}", path, what));
}

[[noreturn]] void fail_errno(const std::string& path) { fail(path, std::strerror(errno)); }

class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    [[nodiscard]] int get() const { return number_; }

  private:
    int number_;
};

// A file that vanishes unless it got its name.
class Beside {
  public:
    explicit Beside(const std::string& path) : name_(path + ".XXXXXX"), file_(::mkstemp(name_.data())) {
        if (file_.get() < 0) fail_errno(path);
    }
    ~Beside() {
        if (!renamed_) ::unlink(name_.c_str());
    }
    Beside(const Beside&) = delete;
    Beside& operator=(const Beside&) = delete;

    void fill(const std::string& path, std::string_view bytes, mode_t mode) const {
        while (!bytes.empty()) {
            const ssize_t written = ::write(file_.get(), bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) fail_errno(path);
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        if (::fchmod(file_.get(), mode) != 0 || ::fsync(file_.get()) != 0) fail_errno(path);
    }
    void rename_to(const std::string& path) {
        if (::rename(name_.c_str(), path.c_str()) != 0) fail_errno(path);
        renamed_ = true;
    }

  private:
    std::string name_;
    Descriptor file_;
    bool renamed_ = false;
};

}  // namespace

std::string PosixFiles::read(const std::string& path, std::size_t limit) const {
    // Not waiting: a named pipe that stands in a file's place would hold the program for ever.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat about {};
    if (file.get() < 0 || ::fstat(file.get(), &about) != 0) fail_errno(path);
    if (S_ISDIR(about.st_mode)) fail(path, "is a folder");
    if (!S_ISREG(about.st_mode)) fail(path, "is no file");
    std::string bytes;
    std::string block(1U << 16U, '\0');
    for (;;) {
        const ssize_t count = ::read(file.get(), block.data(), block.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) fail_errno(path);
        if (count == 0) return bytes;
        bytes.append(block, 0, static_cast<std::size_t>(count));
        if (bytes.size() > limit) fail(path, fmt::format("is longer than {} MiB", limit >> 20U));
    }
}

void PosixFiles::write(const std::string& path, const std::string& bytes) const {
    std::error_code none;
    std::string target = path;
    if (std::filesystem::is_symlink(path, none)) {
        const auto led_to = std::filesystem::canonical(path, none);
        if (!none) target = led_to.string();
    }
    struct stat about {};
    mode_t mode = S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;
    if (::stat(target.c_str(), &about) == 0) {
        if (S_ISDIR(about.st_mode)) fail(path, "is a folder");
        if (!S_ISREG(about.st_mode)) fail(path, "is no file");  // a device or a pipe would be gone
        // Renaming would replace a file that its owner protected.
        if (::access(target.c_str(), W_OK) != 0) fail_errno(path);
        mode = about.st_mode & 07777U;
    }
    Beside beside(target);
    beside.fill(path, bytes, mode);
    beside.rename_to(target);
    // The name is on the disk once the folder is.
    const std::string folder = std::filesystem::path(target).parent_path().string();
    const Descriptor holder(::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (holder.get() >= 0) static_cast<void>(::fsync(holder.get()));
}

bool PosixFiles::may_write(const std::string& path) const { return ::access(path.c_str(), W_OK) == 0; }

}  // namespace kestrune::native
