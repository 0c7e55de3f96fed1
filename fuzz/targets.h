#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

// What the fuzzers feed with arbitrary bytes. A target throws Broken when a promise does not hold; crashes and what the
// sanitizers find count as well. fuzz/libfuzzer.cpp runs one of them, tests/fuzz all of them over the stored inputs.
namespace kestrune::fuzz {

class Broken : public std::logic_error {
  public:
    using std::logic_error::logic_error;
};

// Throws when a promise does not hold, with the text that broke it and, when there is one, what came of it.
inline void expect(bool holds, std::string_view promise, std::string_view text, std::string_view got = {}) {
    if (holds) return;
    std::string message(promise);
    message.append(": ").append(text);
    if (!got.empty()) message.append("\n  gives ").append(got);
    throw Broken(message);
}

void command_line(std::string_view typed);
void formula(std::string_view text);
void package(std::string_view bytes);
void preferences(std::string_view edits);
void request(std::string_view lines);
void sheet(std::string_view text);
void styles(std::string_view text);
void vba(std::string_view bytes);
void xml(std::string_view text);

struct Target {
    std::string_view name;  // also of its folder below fuzz/corpus
    void (*run)(std::string_view input);
};
inline constexpr Target targets[] = {{"command_line", command_line},
                                     {"formula", formula},
                                     {"package", package},
                                     {"preferences", preferences},
                                     {"request", request},
                                     {"sheet", sheet},
                                     {"styles", styles},
                                     {"vba", vba},
                                     {"xml", xml}};

}  // namespace kestrune::fuzz
