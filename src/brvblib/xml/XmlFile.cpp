#include "brvblib/xml/XmlFile.h"

#include <fmt/format.h>

#include <charconv>

#include "automation/AutomationError.h"
#include "automation/Text.h"
#include "brvblib/xml/XmlText.h"

namespace kestrune::brvblib {
namespace {

[[noreturn]] void refuse(std::string_view what) {
    throw automation::AutomationError(automation::hresult::exception, "iXML.Load", what);
}

// The major part of a version text, "3" of "3.0"; nothing when it begins with no number.
std::optional<int> major(std::string_view version) {
    int number = 0;
    const auto [end, failure] = std::from_chars(version.data(), version.data() + version.size(), number);
    if (failure != std::errc{}) return std::nullopt;
    return number;
}

// Identifiers are GUIDs: braces around them and the case of their letters mean nothing.
std::string_view bare(std::string_view identifier) {
    if (identifier.size() > 2 && identifier.front() == '{' && identifier.back() == '}') {
        return identifier.substr(1, identifier.size() - 2);
    }
    return identifier;
}

}  // namespace

XmlDocument read_xml_file(const Files& files, const XmlParser& parser, const std::string& path,
                          const std::string& identifier, const std::string& name,
                          const std::optional<std::string>& version) {
    XmlDocument document{xml_text(files.read(path, longest_xml_file)), nullptr, {}};
    document.root = parser.parse(document.text);
    const auto found = document.root->attribute(identifier_attribute);
    if (!found || !automation::same_text(bare(*found), bare(identifier))) {
        refuse(fmt::format("is no {} document: its identifier is {}", name,
                           found ? fmt::format("'{}'", *found) : "missing"));
    }
    document.version = document.root->attribute(version_attribute).value_or("");
    const auto its_major = major(document.version);
    if (!its_major) refuse(fmt::format("its version '{}' is none", document.version));
    if (version && *its_major > major(*version).value_or(0)) {
        refuse(fmt::format("its version {} is later than {}, the latest that can be read", document.version, *version));
    }
    return document;
}

}  // namespace kestrune::brvblib
