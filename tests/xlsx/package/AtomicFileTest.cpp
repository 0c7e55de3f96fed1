#include "host/xlsx/package/AtomicFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "host/xlsx/package/Package.h"
#include "xlsx/package/TestPackages.h"

namespace kestrune::host::test {
namespace {

using testing::ElementsAre;
namespace fs = std::filesystem;

// File permissions do not bind root; a test that runs as root steps down meanwhile.
class AsNobody {
  public:
    AsNobody() : was_(::geteuid()) { EXPECT_TRUE(was_ != 0 || ::seteuid(65534) == 0); }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;
    ~AsNobody() { EXPECT_TRUE(was_ != 0 || ::seteuid(was_) == 0); }

  private:
    uid_t was_;
};

// Writes beyond some size fail, as on a full disk.
class FullDisk {
  public:
    FullDisk() {
        ::getrlimit(RLIMIT_FSIZE, &was_);
        handler_ = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit small{100'000, was_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &was_);
        std::signal(SIGXFSZ, handler_);
    }

  private:
    rlimit was_{};
    void (*handler_)(int) = nullptr;
};

void write_whole(const std::string& path, std::string_view bytes) {
    AtomicFile file(path);
    file.write(bytes.substr(0, 1));
    file.write(bytes.substr(1));
    file.commit();
}

unsigned permissions(const std::string& path) {
    struct stat status = {};
    ::stat(path.c_str(), &status);
    return status.st_mode & 07777;
}

TEST(AtomicFile, AppearsWholeOrNotAtAll) {
    const TestFolder folder;
    write_file(folder.path("a.xlsx"), "old");
    {
        AtomicFile file(folder / "a.xlsx");
        file.write("new");
        EXPECT_EQ(folder.names().size(), 2U) << "it grows in the same folder";
        EXPECT_EQ(file_text(folder.path("a.xlsx")), "old");
    }
    EXPECT_THAT(folder.names(), ElementsAre("a.xlsx"));
    EXPECT_EQ(file_text(folder.path("a.xlsx")), "old");
    const std::string large(300'000, 'x');
    write_whole(folder / "a.xlsx", large);
    EXPECT_TRUE(file_text(folder.path("a.xlsx")) == large);
    EXPECT_THAT(folder.names(), ElementsAre("a.xlsx"));
}

TEST(AtomicFile, AFailedWriteLeavesTheOldFile) {
    const TestFolder folder;
    write_file(folder.path("a.xlsx"), "old");
    const std::string path = folder / "a.xlsx";
    const FullDisk full;
    EXPECT_EQ(failure_of([&] { write_whole(path, std::string(300'000, 'x')); }),
              path + ": cannot be written: File too large");
    EXPECT_THAT(folder.names(), ElementsAre("a.xlsx"));
    EXPECT_EQ(file_text(path), "old");
}

TEST(AtomicFile, KeepsPermissions) {
    const TestFolder folder;
    const mode_t mask = ::umask(027);
    write_whole(folder / "new.xlsx", "x");
    ::umask(mask);
    EXPECT_EQ(permissions(folder / "new.xlsx"), 0640U);
    ::chmod((folder / "new.xlsx").c_str(), 0604);
    write_whole(folder / "new.xlsx", "y");
    EXPECT_EQ(permissions(folder / "new.xlsx"), 0604U);
}

TEST(AtomicFile, WritesThroughSymbolicLinks) {
    const TestFolder folder;
    fs::create_directory(folder.path("sub"));
    write_file(folder.path("sub/real.xlsx"), "old");
    fs::create_symlink("sub/middle.xlsx", folder.path("link.xlsx"));
    fs::create_symlink("real.xlsx", folder.path("sub/middle.xlsx"));
    fs::create_symlink(folder.path("sub/fresh.xlsx"), folder.path("dangling.xlsx"));
    fs::create_symlink("loop.xlsx", folder.path("loop.xlsx"));
    write_whole(folder / "link.xlsx", "new");
    write_whole(folder / "dangling.xlsx", "made");
    EXPECT_TRUE(fs::is_symlink(folder.path("link.xlsx")) && fs::is_symlink(folder.path("sub/middle.xlsx")));
    EXPECT_EQ(file_text(folder.path("sub/real.xlsx")), "new");
    EXPECT_EQ(file_text(folder.path("sub/fresh.xlsx")), "made");
    EXPECT_EQ(failure_of([&] { write_whole(folder / "loop.xlsx", "x"); }),
              folder / "loop.xlsx" + ": cannot be written: Too many levels of symbolic links");
}

TEST(AtomicFile, SaysWhyItCannotBeWritten) {
    const TestFolder folder;
    fs::create_directory(folder.path("locked"));
    write_file(folder.path("kept.xlsx"), "old");
    ::chmod((folder / "").c_str(), 0777);
    ::chmod((folder / "locked").c_str(), 0555);
    ::chmod((folder / "kept.xlsx").c_str(), 0444);
    ::mkfifo((folder / "pipe").c_str(), 0666);
    const AsNobody nobody;
    struct Case {
        std::string name, reason;
    };
    const Case cases[] = {
        {"locked/a.xlsx", "cannot be written: Permission denied"},
        {"kept.xlsx", "cannot be written: Permission denied"},
        {"locked", "cannot be written: Is a directory"},
        {"new/", "cannot be written: Is a directory"},
        {"nowhere/a.xlsx", "cannot be written: No such file or directory"},
        {"kept.xlsx/a.xlsx", "cannot be written: Not a directory"},
        {"pipe", "cannot be written: it is not a regular file"},
    };
    for (const Case& c : cases) {
        const std::string path = folder / c.name;
        EXPECT_EQ(failure_of([&] { write_whole(path, "x"); }), path + ": " + c.reason);
    }
    EXPECT_EQ(file_text(folder.path("kept.xlsx")), "old");
    EXPECT_THAT(folder.names(), ElementsAre("kept.xlsx", "locked", "pipe"));
}

TEST(PackageSave, InPlace) {
    const TestFolder folder;
    const std::string path = folder / "model.xlsx";
    write_file(path, zip_of(workbook_parts()));
    Package package = Package::open(path);
    package.save(path);
    EXPECT_EQ(file_text(path), zip_of(workbook_parts()));
    package.replace("xl/workbook.xml", "<a/>");
    package.save(path);
    package.replace("xl/workbook.xml", "<b/>");
    package.save(path);
    EXPECT_EQ(Package::open(path).read("xl/workbook.xml"), "<b/>");
    EXPECT_EQ(Package::open(path).read("xl/media/image1.png"), "\x89PNG not really");
    EXPECT_THAT(folder.names(), ElementsAre("model.xlsx"));
}

}  // namespace
}  // namespace kestrune::host::test
