#include "keys/KeyText.h"

#include <fmt/format.h>

namespace kestrune::keys {

std::string problem_line(std::string_view text, const KeyReading& reading) {
    const std::string_view shown = text.empty() ? std::string_view("a key") : text;
    if (reading.part.empty()) return fmt::format("{}: {}", shown, reading.problem);
    return fmt::format("{}: {} '{}'", shown, reading.problem, reading.part);
}

std::string key_text(const Key& key) {
    std::string text;
    if (key.ctrl) text += "Ctrl+";
    if (key.alt) text += "Alt+";
    if (key.shift) text += "Shift+";
    if (key.is_function_key()) return text + fmt::format("F{}", key.base - detail::function_key(1) + 1);
    if (key.shows_character() && key.base != ' ') {
        const char character = static_cast<char>(key.base);
        const bool letter = character >= 'a' && character <= 'z';
        return text + static_cast<char>(letter ? character - 'a' + 'A' : character);
    }
    for (const detail::KeyName& row : detail::key_names) {
        if (row.base == key.base) return text.append(row.text);
    }
    return text;
}

}  // namespace kestrune::keys
