#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "automation/Value.h"

namespace kestrune::brvblib {

// Writes a document element by element, as a person would lay it out: a line an element, two blanks a level, lines
// ended by CR LF, which every Windows editor shows as lines. What is written decides every byte of the file, so that
// it is the same whichever parser a system has. Misuse fails with an AutomationError and changes nothing.
class XmlWriter {
  public:
    // The version and the identifier go into attributes of the root element.
    XmlWriter(std::string_view root, std::string_view version, std::string_view identifier);

    void start_element(std::string_view name);
    void leaf(std::string_view name, const automation::Value& value);
    void end_element(std::string_view name);

    // The document, without an XML declaration. The root need not have been ended, every other element must have been.
    [[nodiscard]] std::string text() const;

  private:
    void begin_line();

    std::string text_;
    std::vector<std::string> open_;  // from the root down; empty once the root was ended
};

// A whole file: the XML declaration and a document.
std::string xml_file(std::string_view document);

}  // namespace kestrune::brvblib
