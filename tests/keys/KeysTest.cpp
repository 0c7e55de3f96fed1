#include <gtest/gtest.h>

#include <set>

#include "keys/ExcelKeys.h"
#include "keys/KeyText.h"
#include "keys/OnKeyText.h"

namespace kestrune::keys {
namespace {

TEST(Keys, ReadWhatPeopleWriteAndAreWrittenOneWay) {
    const struct {
        const char* typed;
        const char* own;
        const char* on_key;
    } cases[] = {
        {"Ctrl+Shift+4", "Ctrl+Shift+4", "^+4"},
        {"ctrl-shift-4", "Ctrl+Shift+4", "^+4"},
        {" Shift + Control + 4 ", "Ctrl+Shift+4", "^+4"},
        {"Ctrl+$", "Ctrl+Shift+4", "^+4"},
        {"strg+umschalt+k", "Ctrl+Shift+K", "^+k"},
        {"Ctrl++", "Ctrl+Shift+=", "^+="},
        {"Ctrl+Plus", "Ctrl+Shift+=", "^+="},
        {"Ctrl+-", "Ctrl+-", "^-"},
        {"ctrl--", "Ctrl+-", "^-"},
        {"Ctrl+Shift+[", "Ctrl+Shift+[", "^+{[}"},
        {"Ctrl+{", "Ctrl+Shift+[", "^+{[}"},
        {"Ctrl+`", "Ctrl+`", "^`"},
        {"Ctrl+Shift+comma", "Ctrl+Shift+,", "^+,"},
        {"alt+page up", "Alt+PageUp", "%{PGUP}"},
        {"Shift+Alt+Ctrl+Left", "Ctrl+Alt+Shift+Left", "^%+{LEFT}"},
        {"f12", "F12", "{F12}"},
        {"Shift+F15", "Shift+F15", "+{F15}"},
        {"F", "F", "f"},
        {"Ctrl+Space", "Ctrl+Space", "^ "},
        {"del", "Delete", "{DELETE}"},
        {"Ctrl+Return", "Ctrl+Enter", "^{RETURN}"},
        {"Ctrl+KeypadEnter", "Ctrl+KeypadEnter", "^{ENTER}"},
    };
    for (const auto& [typed, own, on_key] : cases) {
        const KeyReading reading = read_key(typed);
        ASSERT_TRUE(reading.ok()) << problem_line(typed, reading);
        EXPECT_EQ(key_text(reading.key), own) << typed;
        EXPECT_EQ(on_key_text(reading.key), on_key) << typed;
        EXPECT_EQ(read_on_key(on_key), reading.key) << typed;
    }
}

TEST(Keys, GoThereAndBackInEveryCombination) {
    std::set<Key> bases;
    for (const detail::KeyName& row : detail::key_names) bases.insert(Key{row.base});
    for (int character = ' '; character < 127; ++character) {
        bases.insert(Key{key_of_character(static_cast<char>(character)).value().base});
    }
    for (int number = 1; number <= 15; ++number) bases.insert(Key{detail::function_key(number)});
    EXPECT_EQ(bases.size(), 21U + 26 + 21 + 1 + 15);
    std::set<std::string> texts;
    for (Key key : bases) {
        for (int held = 0; held < 8; ++held) {
            key.ctrl = (held & 1) != 0;
            key.alt = (held & 2) != 0;
            key.shift = (held & 4) != 0;
            const std::string text = key_text(key);
            EXPECT_EQ(read_key(text).key, key) << text;
            EXPECT_EQ(read_on_key(on_key_text(key)), key) << on_key_text(key);
            EXPECT_TRUE(texts.insert(text).second) << text;
        }
    }
}

TEST(Keys, SayInOneLineWhatIsWrong) {
    const struct {
        const char* typed;
        const char* line;
    } cases[] = {
        {"", "a key: names no key to press"},
        {"Ctrl+", "Ctrl+: names no key to press"},
        {"Ctrl+Shift", "Ctrl+Shift: names no key to press"},
        {"Ctrl+Foo", "Ctrl+Foo: there is no key 'Foo'"},
        {"Ctrl+F16", "Ctrl+F16: there is no key 'F16'"},
        {"F0", "F0: there is no key 'F0'"},
        {"Hyper+4", "Hyper+4: nothing to hold is called 'Hyper'"},
        {"Ctrl+Ctrl+4", "Ctrl+Ctrl+4: it is named twice: 'Ctrl'"},
        {"Ctrl+\xC3\xA9", "Ctrl+\xC3\xA9: there is no key '\xC3\xA9'"},
        {"4+", "4+: there is no key '4'"},
    };
    for (const auto& [typed, line] : cases) {
        const KeyReading reading = read_key(typed);
        EXPECT_FALSE(reading.ok()) << typed;
        EXPECT_EQ(problem_line(typed, reading), line);
    }
}

TEST(Keys, OfOnKeyAreExcelsAndNoOthers) {
    const struct {
        const char* text;
        const char* key;
    } good[] = {{"^{+}", "Ctrl+Shift+="}, {"^$", "Ctrl+Shift+4"},    {"+^{RIGHT}", "Ctrl+Shift+Right"},
                {"~", "Enter"},           {"^~", "Ctrl+Enter"},      {"{}}", "Shift+]"},
                {"{bs}", "Backspace"},    {"^{Del}", "Ctrl+Delete"}, {"^+C", "Ctrl+Shift+C"},
                {"%{F4}", "Alt+F4"},      {"{ESC}", "Escape"},       {"^\"", "Ctrl+Shift+'"}};
    for (const auto& [text, key] : good) {
        const auto read = read_on_key(text);
        ASSERT_TRUE(read) << text;
        EXPECT_EQ(key_text(*read), key) << text;
    }
    for (const char* text : {"", "^", "^+%", "ab", "{", "}", "{}", "{FOO}", "{F16}", "{PGUP", "PGUP}", "(a)", "^(ab)",
                             "[", "{PageUp}", "{SPACE}", "Ctrl+4", "\xC3\xA9", "{LEFT 2}"}) {
        EXPECT_EQ(read_on_key(text), std::nullopt) << text;
    }
}

TEST(Keys, OfExcelAreKnown) {
    EXPECT_EQ(excel_meaning(key("Ctrl+_")), "removes the selection's borders");
    EXPECT_EQ(excel_meaning(key("Ctrl+Alt+Q")), "");
    for (const ExcelKey& row : excel_keys()) EXPECT_FALSE(row.meaning.empty()) << key_text(row.key);
}

}  // namespace
}  // namespace kestrune::keys
