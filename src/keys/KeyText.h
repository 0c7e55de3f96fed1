#pragma once

#include <string>
#include <string_view>

#include "automation/Text.h"
#include "keys/Key.h"
#include "keys/KeyNames.h"

namespace kestrune::keys {

// What a person's text for a key says: "Ctrl+Shift+4".
struct KeyReading {
    Key key{};
    std::string_view problem{};  // why it is no key; empty when it is one
    std::string_view part{};     // the part of the text that is wrong; empty when all of it is

    [[nodiscard]] constexpr bool ok() const { return problem.empty(); }
};

namespace detail {

// Whether two names are equal but for case and blanks: "page up" is PageUp.
constexpr bool same_name(std::string_view typed, std::string_view name) {
    std::size_t at = 0;
    for (const char c : typed) {
        if (c == ' ') continue;
        if (at == name.size() || automation::lower(c) != automation::lower(name[at])) return false;
        ++at;
    }
    return at == name.size();
}

// The modifier that a word names, or null.
constexpr bool Key::*modifier(std::string_view word) {
    for (const std::string_view name : {"Ctrl", "Control", "Strg"}) {
        if (automation::same_text(word, name)) return &Key::ctrl;
    }
    if (automation::same_text(word, "Alt")) return &Key::alt;
    for (const std::string_view name : {"Shift", "Umschalt"}) {
        if (automation::same_text(word, name)) return &Key::shift;
    }
    return nullptr;
}

constexpr KeyReading read_last(Key key, std::string_view name) {
    std::uint16_t base = 0;
    if (name.size() == 1) {
        const auto character = key_of_character(name.front());
        if (character) {
            base = character->base;
            key.shift = key.shift || character->shift;
        }
    }
    if (const int number = function_key_number(name); number > 0) base = function_key(number);
    for (const KeyName& row : key_names) {
        if (base == 0 && same_name(name, row.text)) base = row.base;
    }
    if (base == 0 && same_name(name, "Plus")) {
        base = '=';
        key.shift = true;
    }
    if (base == 0) return {{}, "there is no key", name};
    key.base = base;
    return {key};
}

}  // namespace detail

// Reads a key as a person writes it: what is held, then the key, parted by "+" or "-", in any case and with blanks
// around the parts: "Ctrl+Shift+4", "ctrl-shift-4", "Ctrl + $", "Ctrl++", "Alt+Page Up". A character stands for its key
// on a US keyboard. What "key_text" writes reads back as the same key.
constexpr KeyReading read_key(std::string_view text) {
    Key key;
    std::string_view rest = automation::trimmed(text);
    while (true) {
        // The sign behind a modifier parts; a sign that stands alone at the end is the key itself.
        const std::size_t sign = rest.find_first_of("+-");
        if (sign == std::string_view::npos || sign == 0) break;
        const std::string_view word = automation::trimmed(rest.substr(0, sign));
        bool Key::*const held = detail::modifier(word);
        if (!held) return {{}, rest.size() > sign + 1 ? "nothing to hold is called" : "there is no key", word};
        if (key.*held) return {{}, "it is named twice:", word};
        key.*held = true;
        rest = automation::trimmed(rest.substr(sign + 1));
    }
    if (rest.empty() || detail::modifier(rest)) return {{}, "names no key to press", {}};
    return detail::read_last(key, rest);
}

// The same for a text that is known to be right: a wrong one does not compile.
consteval Key key(std::string_view text) {
    const KeyReading reading = read_key(text);
    if (!reading.ok()) throw "is no key";
    return reading.key;
}

// Why a text is no key, as one line: "Ctrl+Foo: there is no key 'Foo'".
std::string problem_line(std::string_view text, const KeyReading& reading);

// The key's own spelling: "Ctrl+Alt+Shift+PageUp", "Ctrl+Shift+4", "F5".
std::string key_text(const Key& key);

}  // namespace kestrune::keys
