#include "keys/OnKeyText.h"

#include "automation/Text.h"
#include "keys/KeyNames.h"

namespace kestrune::keys {
namespace {

// What means something else outside braces.
constexpr std::string_view signs = "+^%~(){}[]";

std::optional<Key> named(std::string_view name) {
    if (const int number = detail::function_key_number(name); number > 0) return Key{detail::function_key(number)};
    for (const detail::KeyName& row : detail::key_names) {
        if (!row.on_key.empty() && automation::same_text(row.on_key, name)) return Key{row.base};
    }
    return std::nullopt;
}

std::optional<Key> last(std::string_view text) {
    if (text == "~") return Key{detail::base_of(Named::Enter)};
    if (text.size() == 1 && signs.find(text.front()) == std::string_view::npos) return key_of_character(text.front());
    if (text.size() < 3 || text.front() != '{' || text.back() != '}') return std::nullopt;
    const std::string_view inside = text.substr(1, text.size() - 2);
    return inside.size() == 1 ? key_of_character(inside.front()) : named(inside);
}

}  // namespace

std::optional<Key> read_on_key(std::string_view text) {
    Key held;
    for (; !text.empty(); text.remove_prefix(1)) {
        if (text.front() == '+')
            held.shift = true;
        else if (text.front() == '^')
            held.ctrl = true;
        else if (text.front() == '%')
            held.alt = true;
        else
            break;
    }
    const std::optional<Key> pressed = last(text);
    if (!pressed) return std::nullopt;
    return Key{pressed->base, held.ctrl, held.alt, held.shift || pressed->shift};
}

std::string on_key_text(const Key& key) {
    std::string text;
    if (key.ctrl) text += '^';
    if (key.alt) text += '%';
    if (key.shift) text += '+';
    if (key.shows_character()) {
        const char character = static_cast<char>(key.base);
        if (signs.find(character) == std::string_view::npos) return text + character;
        return text + '{' + character + '}';
    }
    if (key.is_function_key()) return text + "{F" + std::to_string(key.base - detail::function_key(1) + 1) + '}';
    for (const detail::KeyName& row : detail::key_names) {
        if (row.base == key.base && !row.on_key.empty()) return text.append("{").append(row.on_key).append("}");
    }
    return text;
}

}  // namespace kestrune::keys
