#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kestrune::host {

inline constexpr std::string_view ContentTypesPart = "[Content_Types].xml";
inline constexpr std::string_view RelationshipsContentType = "application/vnd.openxmlformats-package.relationships+xml";

/// [Content_Types].xml (ECMA-376 part 2, clause 10.1.2): a type for each part by name, or else by extension.
class ContentTypes {
  public:
    /// Types for relationship parts and .xml only, as a new package has them.
    ContentTypes();
    explicit ContentTypes(pugi::xml_document document);

    /// Empty when nothing tells the type.
    std::string of(std::string_view part) const;
    /// False when it is so already.
    bool set(std::string_view part, std::string_view content_type);
    /// Forgets the part's own type. False when it has none.
    bool remove(std::string_view part);
    std::string text() const;

  private:
    void read();

    pugi::xml_document document_;
    std::unordered_map<std::string, std::string> by_part_;       // part_key
    std::unordered_map<std::string, std::string> by_extension_;  // lower case
};

}  // namespace kestrune::host
