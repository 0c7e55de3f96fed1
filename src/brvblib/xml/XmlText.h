#pragma once

#include <string>
#include <string_view>

namespace kestrune::brvblib {

// The text of an XML file as UTF-8, ready for a parser: whatever byte order mark and encoding the file came in, without
// its XML declaration. UTF-8 and UTF-16 are read, as the first bytes say; a file that says it is in another encoding is
// refused. So is any document type, before any parser sees it: it is where entities that grow without bound or reach
// out to other files are made. Fails with an AutomationError that says what is wrong.
std::string xml_text(std::string_view bytes);

// A text as the content of an element. A carriage return becomes a character reference, or it would come back as a line
// feed. Characters that XML cannot carry (most below U+0020) are left out; bytes that are no UTF-8 become U+FFFD.
std::string xml_content(std::string_view text);
// The same as the value of an attribute in double quotes.
std::string xml_attribute(std::string_view text);

// Whether a text can be an element's name. Names are ASCII here.
bool is_xml_name(std::string_view text);

}  // namespace kestrune::brvblib
