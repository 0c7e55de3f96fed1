#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/xlsx/PackageError.h"
#include "host/xlsx/package/PackageKind.h"
#include "host/xlsx/package/Relationship.h"
#include "host/xlsx/package/XmlText.h"

namespace kestrune::host {

struct PartInfo {
    std::string name;        ///< without leading slash, spelled as in the file: "xl/worksheets/sheet1.xml"
    std::uint64_t size = 0;  ///< bytes when inflated
};

/// An .xlsx or .xlsm file as a set of named parts (Open Packaging Conventions, ECMA-376 part 2).
///
/// The file is read once, compressed; parts are inflated when they are read and belong to the reader. What nobody
/// replaces is written again as it came, byte for byte. Part names match without regard to case, with or without
/// leading slash. Every failure is a PackageError that names the file, and the part where there is one.
///
/// Const members may run in several threads at once.
class Package {
  public:
    /// Reads and checks the directory, the content types and the main part's relationship; inflates nothing else.
    static Package open(const std::string& path);
    /// The same over bytes at hand; `name` stands for the file in messages.
    static Package from_bytes(std::string bytes, std::string name);
    /// A package without a part. `name` stands for the file in messages.
    static Package create(std::string name);

    Package(Package&&) noexcept;
    Package& operator=(Package&&) noexcept;
    ~Package();

    /// The path as it was given to `open`.
    const std::string& file() const;
    PackageKind kind() const;
    /// The main part, found through the package's officeDocument relationship: "xl/workbook.xml" in most files.
    std::string workbook_part() const;
    /// Whether the package uses the strict namespaces (ISO/IEC 29500-1) for its relationships.
    bool is_strict() const;

    /// Every part in the order of the file, with relationship parts and [Content_Types].xml, without folders.
    const std::vector<PartInfo>& parts() const;
    bool has(std::string_view name) const;
    /// The part inflated; its size and checksum are verified.
    std::string read(std::string_view name) const;
    /// The part as the file had it, whatever replaced it since; an added part as it is.
    XmlText read_original_xml(std::string_view name, std::uint64_t limit = std::uint64_t{2} << 30) const;
    /// The part as UTF-8, whatever it is stored in. Parts beyond `limit` bytes are refused.
    XmlText read_xml(std::string_view name, std::uint64_t limit = std::uint64_t{2} << 30) const;
    /// The content type of a part that exists; empty when neither an override nor a default tells it.
    std::string content_type(std::string_view name) const;

    /// New bytes for a part that exists. The same bytes as before leave (or make) the part unchanged.
    /// Large parts are deflated in the background from here on and their inflated bytes are let go.
    void replace(std::string_view name, std::string bytes);
    /// A new part at the end of the file, with its content type.
    void add(std::string_view name, std::string_view content_type, std::string bytes);
    /// Takes away a part, its content type and its own relationships; arrows that point to it are the caller's.
    void remove(std::string_view name);
    void set_content_type(std::string_view name, std::string_view content_type);

    /// The relationships of a part in the order of the file; those of the package for an empty name. Targets may be
    /// missing: ask `has`.
    std::vector<Relationship> relationships(std::string_view part) const;
    /// The first relationship of that kind (see Relationship::is); an empty id when there is none.
    Relationship relationship(std::string_view part, std::string_view kind) const;
    /// Gives back the new id. `target` is a part's name, or with `external` any URI.
    std::string add_relationship(std::string_view part, std::string_view type, std::string_view target,
                                 bool external = false);
    void remove_relationship(std::string_view part, std::string_view id);

    /// Whether saving would write anything but the bytes that were read.
    bool changed() const;
    /// Whether this part's bytes differ from what was read, or it is new.
    bool changed(std::string_view name) const;

    /// Writes the package whole or not at all: beside the target first, flushed, then renamed over it. A symbolic
    /// link is followed. The path may be the one that was opened. The package stays as it is and may be saved again.
    void save(const std::string& path) const;

    /// An error in one of this package's parts, for the readers of parts; see PackageError.
    PackageError error(std::string_view part, std::string message, std::size_t line = 0, std::size_t column = 0) const;

  private:
    struct State;
    explicit Package(std::unique_ptr<State> state);
    std::unique_ptr<State> state_;
};

}  // namespace kestrune::host
