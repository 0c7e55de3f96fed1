#include "menus/Captions.h"

#include <algorithm>
#include <optional>

#include "automation/Text.h"

namespace kestrune::menus {
namespace {

bool can_be_key(char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// Where a free key stands in a caption: among the beginnings of words first.
std::optional<std::size_t> free_place(std::string_view caption, std::string_view taken) {
    for (const bool beginnings : {true, false}) {
        for (std::size_t i = 0; i < caption.size(); ++i) {
            if (beginnings && i > 0 && caption[i - 1] != ' ') continue;
            if (can_be_key(caption[i]) && taken.find(automation::lower(caption[i])) == std::string_view::npos) return i;
        }
    }
    return std::nullopt;
}

}  // namespace

std::string literal_caption(std::string_view text) {
    std::string caption;
    for (const char c : text) {
        if (c == '&') caption += '&';
        caption += c;
    }
    return caption;
}

char access_key(std::string_view caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != '&') continue;
        if (caption[i + 1] != '&') return automation::lower(caption[i + 1]);
        ++i;
    }
    return 0;
}

void give_access_keys(std::span<std::string> captions) {
    std::string taken;
    for (const std::string& caption : captions) {
        if (const char key = access_key(caption)) taken += key;
    }
    for (std::string& caption : captions) {
        if (access_key(caption)) continue;
        const auto place = free_place(caption, taken);
        if (!place) continue;
        taken += automation::lower(caption[*place]);
        caption.insert(*place, 1, '&');
    }
}

}  // namespace kestrune::menus
