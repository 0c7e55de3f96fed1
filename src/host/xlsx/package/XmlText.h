#pragma once

#include <string>
#include <string_view>

namespace kestrune::host {

enum class XmlEncoding { Utf8, Utf8WithMark, Utf16LittleEndian, Utf16BigEndian };

struct XmlText {
    std::string text;  ///< UTF-8 without byte order mark; a declaration that named another encoding says UTF-8
    XmlEncoding encoding = XmlEncoding::Utf8;  ///< how the part is stored in the file
};

/// A part's bytes as UTF-8 text, by byte order mark, first character and declaration (XML 1.0, appendix F). Parts
/// are UTF-8 or UTF-16 (ECMA-376 part 2, clause 8.1.4); others are a PackageError. Validity of UTF-8 is left to
/// parsers.
XmlText xml_text_of(std::string bytes, const std::string& file, std::string_view part);

}  // namespace kestrune::host
