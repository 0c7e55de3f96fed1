#pragma once

#include <string>
#include <string_view>

#include "automation/Text.h"

namespace kestrune::automation {

// A caption as it shows, without the marks of access keys: "R&D" for "&R&&D".
inline std::string plain_caption(std::string_view caption) {
    std::string text;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && ++i == caption.size()) break;
        text += caption[i];
    }
    return text;
}

// Whether two captions show the same, case apart: "&File" is "file".
inline bool same_caption(std::string_view caption, std::string_view other) {
    return same_text(plain_caption(caption), plain_caption(other));
}

}  // namespace kestrune::automation
