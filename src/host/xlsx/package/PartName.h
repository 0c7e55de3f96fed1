#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestrune::host {

/// A part name (ECMA-376 part 2, clause 9.1.1) without leading slash, "." and ".." resolved, backslashes taken as
/// slashes as some producers write them. Nothing when it leads out of the package.
std::optional<std::string> normal_part_name(std::string_view name);

/// What two spellings of one part name share: the normal name, ASCII letters in lower case. Empty when it leads out.
std::string part_key(std::string_view name);

/// ASCII letters in lower case, everything else as it is.
std::string lower_case(std::string_view text);

/// "%20" and the like as the characters they stand for.
std::string percent_decoded(std::string_view text);

/// The part that a relative or absolute reference in `source` means, without its fragment. Nothing when it leads out.
std::optional<std::string> resolve_reference(std::string_view source, std::string_view reference);

/// How `source` refers to `target`: "worksheets/sheet1.xml" from "xl/workbook.xml".
std::string reference_between(std::string_view source, std::string_view target);

/// Where the relationships of a part are: "xl/_rels/workbook.xml.rels"; "_rels/.rels" for an empty name.
std::string relationship_part_of(std::string_view part);

/// The extension in lower case, without dot; empty when there is none.
std::string extension_of(std::string_view part);

}  // namespace kestrune::host
