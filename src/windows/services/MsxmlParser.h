#pragma once

#include "brvblib/xml/XmlParser.h"

namespace kestrune::windows {

// XML by MSXML 6.
class MsxmlParser : public brvblib::XmlParser {
  public:
    [[nodiscard]] brvblib::XmlElementRef parse(std::string_view text) const override;
};

}  // namespace kestrune::windows
