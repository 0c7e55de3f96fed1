#pragma once

#include <array>
#include <string_view>

namespace kestrune::brvblib {

// What the string table says about one command.
struct CommandText {
    std::string_view name;         // as menus and the hot-key manager show it
    std::string_view description;  // what it does, one sentence
    std::string_view key;          // default hot key as Excel spells keys, "Ctrl+Shift+4"; empty for none
    std::string_view group;        // the heading it stands under
    std::string_view topic;        // topic in the examples workbook: part of the name of its start bookmark
};

// By command number.
extern const std::array<CommandText, 103> command_texts;

}  // namespace kestrune::brvblib
