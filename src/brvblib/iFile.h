#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "automation/MemberTable.h"
#include "brvblib/Library.h"
#include "forms/FileDialog.h"

namespace kestrune::brvblib {

// Files and folders, and the dialogs in which a person chooses them. Paths are those of the system.
class iFile : public automation::Served<iFile> {
  public:
    explicit iFile(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    [[nodiscard]] bool exists(const std::string& path) const;
    [[nodiscard]] bool folder_exists(const std::string& path) const;
    // Whether a file is there and may not be written.
    [[nodiscard]] bool is_read_only(const std::string& path) const;
    // Makes a folder and those above it; one that is there is left as it is.
    void create_folder(const std::string& path) const;
    [[nodiscard]] std::string join(const std::string& folder, const std::string& name) const;
    // The parts of a path: "dir/" of "dir/book.xlsx", and "book.xlsx".
    [[nodiscard]] std::string folder_of(const std::string& path) const;
    [[nodiscard]] std::string name_of(const std::string& path) const;
    // A path in the folder of temporary files that nobody has.
    [[nodiscard]] std::string temporary_name(const std::optional<std::string>& ending) const;
    // Renames a file that is to make room, so that it stays beside what replaces it: "Preferences (unreadable).xml",
    // with a counter where that is taken. The new path.
    [[nodiscard]] std::string set_aside(const std::string& path, const std::string& why) const;

    // The path that the person chose; Empty when they cancelled. Filter is what the files are called, Pattern which are
    // offered ("*.xml").
    [[nodiscard]] automation::Value open_dialog(const std::string& title, const std::string& filter,
                                                const std::string& pattern, const std::optional<std::string>& proposed,
                                                const std::optional<std::string>& folder) const;
    [[nodiscard]] automation::Value save_dialog(const std::string& title, const std::string& filter,
                                                const std::string& pattern, const std::optional<std::string>& proposed,
                                                const std::optional<std::string>& folder) const;
    [[nodiscard]] automation::Value choose(const forms::FileDialog& dialog) const;

    std::shared_ptr<Library> library_;
};

}  // namespace kestrune::brvblib
