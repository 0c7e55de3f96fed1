#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>

#include "host/xlsx/package/Descriptor.h"

namespace kestrune::host {

/// A file that appears under its name whole or not at all. It grows under another name in the same folder; `commit`
/// flushes it to the disk and renames it; without `commit` it disappears and what stood there before stays. A
/// symbolic link stays a link: the file it leads to is replaced. An existing file passes on its permissions.
/// Failures are a PackageError: "out/x.xlsx: cannot be written: Permission denied".
class AtomicFile {
  public:
    explicit AtomicFile(std::string path);
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;
    ~AtomicFile();

    void write(std::string_view bytes);
    void commit();

  private:
    [[noreturn]] void fail(int error) const;
    void follow_links();
    void check_target();
    void open_beside();
    void put(std::string_view bytes);

    std::string path_;    // as given, for messages
    std::string target_;  // behind all links
    std::string folder_;
    std::string beside_;  // empty when there is nothing to take away
    Descriptor file_;
    std::string pending_;  // small pieces on their way to one write
    bool replaces_ = false;
    mode_t mode_ = 0;
    uid_t owner_ = 0;
    gid_t group_ = 0;
};

}  // namespace kestrune::host
