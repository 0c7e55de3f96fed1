#pragma once

#include "brvblib/xml/XmlParser.h"

namespace kestrune::native {

// XML by pugixml. Elements nest at most 256 deep, as in MSXML.
class PugiXmlParser : public brvblib::XmlParser {
  public:
    [[nodiscard]] brvblib::XmlElementRef parse(std::string_view text) const override;
};

}  // namespace kestrune::native
