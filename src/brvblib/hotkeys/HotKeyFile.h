#pragma once

#include <memory>
#include <string>
#include <utility>

#include "brvblib/Files.h"
#include "brvblib/hotkeys/HotKeyChoices.h"
#include "brvblib/xml/XmlParser.h"

namespace kestrune::brvblib {

// The user's choices as a file, "HotKeys.xml" in their folder:
//
//   <HotKeys version="1.0" id="...">
//     <Enabled dt:dt="boolean">1</Enabled>
//     <Command>
//       <Client>KestruneXL</Client>
//       <Number>20</Number>
//       <Key>Ctrl+Shift+Q</Key>       empty: the command has no key
//     </Command>
//     <Swallowed>F1</Swallowed>       a key that does nothing
//   </HotKeys>
class HotKeyFile {
  public:
    // Without files, a parser or a folder there is no file to load, and saving fails. The folder ends in a separator.
    HotKeyFile(std::shared_ptr<const Files> files, std::shared_ptr<const XmlParser> parser, std::string folder)
        : files_(std::move(files)), parser_(std::move(parser)), folder_(std::move(folder)) {}

    // What the file says, or nothing when there is none. A file that cannot be used, as a whole or in any part, is
    // renamed to make room, and the failure says in one line what is wrong with it and where it is now.
    [[nodiscard]] std::optional<HotKeyChoices> load() const;
    // The whole file or, failing with one line, none of it; the folder is made when it is not there.
    void save(const HotKeyChoices& choices) const;

    [[nodiscard]] std::string path() const { return folder_ + "HotKeys.xml"; }

  private:
    [[nodiscard]] HotKeyChoices read() const;

    std::shared_ptr<const Files> files_;
    std::shared_ptr<const XmlParser> parser_;
    std::string folder_;
};

}  // namespace kestrune::brvblib
