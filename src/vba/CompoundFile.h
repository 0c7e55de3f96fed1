#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrune::vba {

// A storage or a stream of a compound file ([MS-CFB]): what holds a Visual Basic project, and whole workbooks of the
// format before 2007. Names have up to 31 characters, none of them / \ : !, and are compared without regard to case.
struct Entry {
    std::string name;  // UTF-8
    bool is_storage = false;
    std::string bytes;            // of a stream
    std::vector<Entry> children;  // of a storage

    static Entry stream(std::string name, std::string bytes) { return {std::move(name), false, std::move(bytes), {}}; }
    static Entry storage(std::string name, std::vector<Entry> children) {
        return {std::move(name), true, {}, std::move(children)};
    }

    // A child; null when there is none of that name.
    [[nodiscard]] const Entry* find(std::string_view child) const;
    // A stream's bytes, by its path from this storage, "VBA/dir"; VbaError when there is none.
    [[nodiscard]] const std::string& stream_at(std::string_view path) const;
};

// The file's bytes, of version 3 with 512-byte sectors; the same tree gives the same bytes. `root` is the storage whose
// children are the file's; its name does not count. VbaError for names that cannot be.
std::string write_compound(const Entry& root);

// Reads the whole tree. VbaError for everything that is not a compound file or contradicts itself.
Entry read_compound(std::string_view bytes);

}  // namespace kestrune::vba
