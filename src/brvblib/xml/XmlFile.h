#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "brvblib/Files.h"
#include "brvblib/xml/XmlParser.h"

namespace kestrune::brvblib {

// The attributes of a root element that say how a document is laid out and whose it is.
inline constexpr std::string_view version_attribute = "version";
inline constexpr std::string_view identifier_attribute = "id";

// The longest file that is read, bytes.
inline constexpr std::size_t longest_xml_file = 16U << 20U;

struct XmlDocument {
    std::string text;  // without its XML declaration
    XmlElementRef root;
    std::string version;
};

// A file's document. Fails, in one line, when the file cannot be read, is no XML, has a document type, or is no
// document of this identifier; given the version that the caller knows, also for a later major version. name: what the
// document should be, as the line tells it.
XmlDocument read_xml_file(const Files& files, const XmlParser& parser, const std::string& path,
                          const std::string& identifier, const std::string& name,
                          const std::optional<std::string>& version);

}  // namespace kestrune::brvblib
