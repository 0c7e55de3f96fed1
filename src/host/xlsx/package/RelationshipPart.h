#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "host/xlsx/package/Relationship.h"

namespace kestrune::host {

/// The relationships of one part as their file holds them (ECMA-376 part 2, clause 9.3).
class RelationshipPart {
  public:
    RelationshipPart();
    explicit RelationshipPart(pugi::xml_document document);

    /// As written: targets are not resolved yet.
    std::vector<Relationship> rows() const;
    /// Gives back an id that nobody has.
    std::string add(std::string_view type, std::string_view reference, bool external);
    /// False when there is no such id.
    bool remove(std::string_view id);
    std::string text() const;

  private:
    pugi::xml_document document_;
};

}  // namespace kestrune::host
