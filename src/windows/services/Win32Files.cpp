#include "windows/services/Win32Files.h"

#include <windows.h>

#include <fmt/format.h>

#include <algorithm>

#include "automation/AutomationError.h"
#include "windows/com/Unicode.h"
#include "windows/services/LastFailure.h"

namespace kestrune::windows {
namespace {

[[noreturn]] void fail(const std::string& path, std::string_view what) {
    throw automation::AutomationError(automation::hresult::exception, "iFile", fmt::format("{}: {}", path, what));
}

class Handle {
  public:
    explicit Handle(HANDLE handle) : handle_(handle) {}
    ~Handle() { close(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    [[nodiscard]] bool good() const { return handle_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE get() const { return handle_; }
    void close() {
        if (good()) ::CloseHandle(handle_);
        handle_ = INVALID_HANDLE_VALUE;
    }

  private:
    HANDLE handle_;
};

bool is_folder(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

std::string Win32Files::read(const std::string& path, std::size_t limit) const {
    const std::wstring name = to_utf16(path);
    if (is_folder(name)) fail(path, "is a folder");
    const Handle file(::CreateFileW(name.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.good()) fail(path, last_failure());
    std::string bytes;
    std::string block(1U << 16U, '\0');
    for (;;) {
        DWORD count = 0;
        if (!::ReadFile(file.get(), block.data(), static_cast<DWORD>(block.size()), &count, nullptr)) {
            fail(path, last_failure());
        }
        if (count == 0) return bytes;
        bytes.append(block, 0, count);
        if (bytes.size() > limit) fail(path, fmt::format("is longer than {} MiB", limit >> 20U));
    }
}

void Win32Files::write(const std::string& path, const std::string& bytes) const {
    const std::wstring name = to_utf16(path);
    if (is_folder(name)) fail(path, "is a folder");
    // Unique to this process and moment, so that two Excels saving at once write two files, and the later name wins.
    const std::wstring beside = name + to_utf16(fmt::format(".{}-{}.tmp", ::GetCurrentProcessId(), ::GetTickCount64()));
    const auto give_up = [&] {
        const std::string why = last_failure();
        ::DeleteFileW(beside.c_str());
        fail(path, why);
    };
    Handle file(::CreateFileW(beside.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.good()) fail(path, last_failure());
    std::string_view rest = bytes;
    while (!rest.empty()) {
        DWORD written = 0;
        const auto block = static_cast<DWORD>(std::min<std::size_t>(rest.size(), 1U << 20U));
        if (!::WriteFile(file.get(), rest.data(), block, &written, nullptr)) {
            file.close();
            give_up();
        }
        rest.remove_prefix(written);
    }
    const bool flushed = ::FlushFileBuffers(file.get()) != 0;
    file.close();
    if (!flushed) give_up();
    // A file that only may be read is not to be replaced, which renaming over it would do.
    const DWORD old = ::GetFileAttributesW(name.c_str());
    if (old != INVALID_FILE_ATTRIBUTES && (old & FILE_ATTRIBUTE_READONLY) != 0) {
        ::SetLastError(ERROR_ACCESS_DENIED);
        give_up();
    }
    // ReplaceFile keeps the old file's permissions; it wants one that is there.
    if (old != INVALID_FILE_ATTRIBUTES &&
        ::ReplaceFileW(name.c_str(), beside.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr)) {
        return;
    }
    if (!::MoveFileExW(beside.c_str(), name.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) give_up();
}

bool Win32Files::may_write(const std::string& path) const {
    // Opening asks what attributes do not tell: permissions, and other programs that hold the file.
    const Handle file(::CreateFileW(to_utf16(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    return file.good();
}

}  // namespace kestrune::windows
