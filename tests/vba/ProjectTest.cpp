#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <random>

#include "vba/CompoundFile.h"
#include "vba/Compression.h"
#include "vba/Project.h"
#include "vba/ProjectProtection.h"
#include "vba/VbaError.h"

namespace kestrune::vba {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

std::string bytes_of(std::string_view digits) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 3) {
        bytes += static_cast<char>(std::stoi(std::string(digits.substr(i, 2)), nullptr, 16));
    }
    return bytes;
}

// The three examples that Microsoft publishes with the compression ([MS-OVBA] 3.2).
TEST(Compression, IsMicrosofts) {
    const std::pair<std::string, const char*> examples[] = {
        {"abcdefghijklmnopqrstuv.",
         "01 19 B0 00 61 62 63 64 65 66 67 68 00 69 6A 6B 6C 6D 6E 6F 70 00 71 72 73 74 75 76 2E"},
        {"#aaabcdefaaaaghijaaaaaklaaamnopqaaaaaaaaaaaarstuvwxyzaaa",
         "01 2F B0 00 23 61 61 61 62 63 64 65 82 66 00 70 61 67 68 69 6A 01 38 08 61 6B 6C 00 30 6D 6E 6F 70 06 71 02 "
         "70 "
         "04 10 72 73 74 75 76 10 77 78 79 7A 00 3C"},
        {std::string(73, 'a'), "01 03 B0 02 61 45 00"},
    };
    for (const auto& [text, packed] : examples) {
        EXPECT_EQ(decompress(bytes_of(packed)), text);
        // Which of several equally long copies is taken is free.
        EXPECT_EQ(decompress(compress(text)), text);
        EXPECT_EQ(compress(text).size(), bytes_of(packed).size());
    }
}

TEST(Compression, GivesEveryTextBack) {
    std::mt19937 dice(20);
    for (int round = 0; round < 300; ++round) {
        // From one letter over and over to noise, across the ends of chunks.
        std::uniform_int_distribution<int> letter(0, 1 << (round % 9));
        std::string text(dice() % 13000, '\0');
        for (char& c : text) c = static_cast<char>(letter(dice));
        for (int copies = 0; copies < round % 7 && text.size() > 10; ++copies) {
            text.insert(dice() % text.size(), text.substr(dice() % text.size(), dice() % 5000));
        }
        std::string back = decompress(compress(text));
        ASSERT_GE(back.size(), text.size());
        ASSERT_EQ(back.substr(text.size()).find_first_not_of('\0'), std::string::npos);
        back.resize(text.size());
        ASSERT_TRUE(back == text) << "round " << round;
    }
}

TEST(Compression, RefusesWhatIsNone) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "ends too early"},
        {"02 00 B0 00", "not compressed"},
        {"01 05 B0 00 61", "ends too early"},
        {"01 01 80 00 61", "no signature"},
        {"01 02 B0 01 00 00", "begins with a copy"},
        {"01 03 B0 02 61 00 10", "before its beginning"},
        {"01 03 B0 02 61 FF 0F", "longer than 4096"},
        {"01 01 30 61 61 61 61", "not 4096 bytes"},
    };
    for (const auto& [digits, reason] : cases) {
        EXPECT_THAT([&] { decompress(bytes_of(digits)); }, ThrowsMessage<VbaError>(HasSubstr(reason))) << digits;
    }
    EXPECT_THAT([&] { decompress(compress(std::string(100000, 'a')), 50000); },
                ThrowsMessage<VbaError>(HasSubstr("larger than 50000")));
}

// Three values of a project that Visual Basic protected in no way.
TEST(Protection, IsVisualBasics) {
    constexpr std::string_view id = "{917DED54-440B-4FD1-A5C1-74ACF261E600}";
    EXPECT_EQ(unscramble("0705D8E3D8EDDBF1DBF1DBF1DBF1", id), std::string(4, '\0'));
    EXPECT_EQ(unscramble("0E0CD1ECDFF4E7F5E7F5E7", id), std::string(1, '\0'));
    EXPECT_EQ(unscramble("1517CAF1D6F9D7F9D706", id), "\xFF");
    for (int seed = 0; seed < 256; ++seed) {
        EXPECT_EQ(unscramble(scramble("data", id, static_cast<std::uint8_t>(seed)), id), "data") << seed;
    }
    EXPECT_THROW(unscramble("0705D8E3D8EDDBF1DBF1DBF1DBF1", "{0}"), VbaError);
    EXPECT_THROW(unscramble("0705D8", id), VbaError);
    EXPECT_THROW(unscramble("no digits", id), VbaError);
}

Entry tree(std::size_t streams, std::mt19937& dice) {
    Entry root = Entry::storage("Root Entry", {Entry::storage("Empty", {})});
    std::vector<Entry> inner;
    for (std::size_t i = 0; i < streams; ++i) {
        std::string bytes(dice() % 10000, '\0');
        for (char& c : bytes) c = static_cast<char>(dice());
        (i % 2 ? inner : root.children).push_back(Entry::stream("Stream" + std::to_string(i), std::move(bytes)));
    }
    root.children.push_back(Entry::storage("Inner", std::move(inner)));
    return root;
}

TEST(CompoundFile, GivesEveryStreamBack) {
    std::mt19937 dice(1);
    for (const std::size_t streams : {0U, 1U, 2U, 7U, 40U, 300U}) {
        const Entry written = tree(streams, dice);
        const Entry read = read_compound(write_compound(written));
        EXPECT_EQ(read.children.size(), written.children.size());
        for (std::size_t i = 0; i < streams; ++i) {
            const std::string path = (i % 2 ? "Inner/Stream" : "stream") + std::to_string(i);
            EXPECT_TRUE(read.stream_at(path) == written.stream_at(path)) << path;
        }
        EXPECT_THROW((void)read.stream_at("Inner/Nothing"), VbaError);
        EXPECT_THROW((void)read.stream_at("Inner"), VbaError);
    }
    const std::string long_name(32, 'n');
    for (const char* name : {"", "a/b", "gr\xC3\xBC", long_name.c_str()}) {
        EXPECT_THROW(write_compound(Entry::storage("", {Entry::stream(name, "")})), VbaError) << name;
    }
    EXPECT_THROW(write_compound(Entry::storage("", {Entry::stream("a", ""), Entry::stream("A", "")})), VbaError);
}

// Whatever byte is hit, and wherever the file ends, it is read or refused.
TEST(CompoundFile, SurvivesDamage) {
    std::mt19937 dice(7);
    const Project project{.name = "Book", .description = "", .id = "{1}", .modules = {{"A", Module::Kind::Class, "x"}}};
    const std::string whole = write_compound(write_project(project));
    int refused = 0;
    for (int round = 0; round < 8000; ++round) {
        std::string bytes = whole;
        for (int hit = 0; hit < 1 + round % 3; ++hit) {
            // Numbers of sectors and rows are what misleads.
            bytes[dice() % bytes.size()] = static_cast<char>(dice() % 3 ? dice() % 8 : dice());
        }
        if (round % 10 == 0) bytes.resize(dice() % bytes.size());
        try {
            read_project(read_compound(bytes));
        } catch (const VbaError&) {
            ++refused;
        }
    }
    EXPECT_GT(refused, 500);
}

TEST(Project, ComesBackAsItWasWritten) {
    const Project project{
        .name = "Kestrune",
        .description = "What it is",
        .id = "{6E0A5C3B-2D41-4B8E-9F57-1C83A4D7E260}",
        .major = 70000,
        .minor = 3,
        .modules = {module_of_file("VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1\nEND\n"
                                   "Attribute VB_Name = \"ThisWorkbook\"\nSub A()\nEnd Sub",
                                   Module::Kind::Document, "f"),
                    module_of_file("Attribute VB_Name = \"mDOM\"\r\n'a\r\n", Module::Kind::Standard, "f"),
                    {"cThing", Module::Kind::Class, ""}}};
    const Project back = read_project(read_compound(write_compound(write_project(project))));
    EXPECT_EQ(back.name, project.name);
    EXPECT_EQ(back.description, project.description);
    EXPECT_EQ(back.id, project.id);
    EXPECT_EQ(std::pair(back.major, back.minor), std::pair(project.major, project.minor));
    ASSERT_EQ(back.modules.size(), 3U);
    EXPECT_EQ(back.modules[0].code, "Attribute VB_Name = \"ThisWorkbook\"\r\nSub A()\r\nEnd Sub\r\n");
    EXPECT_EQ(back.modules[1].code, "Attribute VB_Name = \"mDOM\"\r\n'a\r\n");
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(back.modules[i].name, project.modules[i].name);
        EXPECT_EQ(back.modules[i].kind, project.modules[i].kind);
    }
}

TEST(Project, RefusesWhatVisualBasicCannotHold) {
    const auto module = [](std::string_view text) { return module_of_file(text, Module::Kind::Standard, "m.bas"); };
    EXPECT_THAT([&] { module("Attribute VB_Name = \"m\"\n'gr\xC3\xBC\xC3\x9F\n"); },
                ThrowsMessage<VbaError>(HasSubstr("m.bas, line 2: a character is not ASCII")));
    EXPECT_THAT([&] { module("'" + std::string(1100, 'x')); }, ThrowsMessage<VbaError>(HasSubstr("line 1: longer")));
    EXPECT_THAT([&] { module("Sub A()\nEnd Sub\n"); }, ThrowsMessage<VbaError>(HasSubstr("VB_Name")));
    EXPECT_THAT([&] { module("Attribute VB_Name = \"2m\"\n"); }, ThrowsMessage<VbaError>(HasSubstr("VB_Name")));
    const auto project = [](std::string name, std::string description, std::vector<Module> modules) {
        return [=] { write_project({.name = name, .description = description, .id = "{1}", .modules = modules}); };
    };
    const Module m{"m", Module::Kind::Standard, ""};
    const Module same{"M", Module::Kind::Class, ""};
    EXPECT_THAT(project("a b", "", {}), ThrowsMessage<VbaError>(HasSubstr("\"a b\" cannot name a project")));
    EXPECT_THAT(project("a", "say \"x\"", {}), ThrowsMessage<VbaError>(HasSubstr("quote")));
    EXPECT_THAT(project("a", "", {m, same}), ThrowsMessage<VbaError>(HasSubstr("two modules are called M")));
}

}  // namespace
}  // namespace kestrune::vba
