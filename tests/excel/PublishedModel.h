#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// Excel's object model as its published reference lists it; scripts/object-model refreshes the lists.
namespace kestrune::published {

struct Member {
    std::string kind;        // "method", "property"
    std::string access;      // "get", "get put"; empty for methods
    std::string parameters;  // in order, parted by blanks; '!' marks a required one

    bool operator==(const Member&) const = default;
};

// The rows of a list below tests/excel, split at their tabs, without the heading.
inline std::vector<std::vector<std::string>> rows(const std::string& list, std::size_t fields) {
    std::ifstream file(KESTRUNE_SOURCE_DIR "/tests/excel/" + list);
    std::vector<std::vector<std::string>> rows;
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        std::vector<std::string> row(1);
        for (const char c : line) {
            if (c == '\t') {
                row.emplace_back();
            } else {
                row.back() += c;
            }
        }
        row.resize(fields);
        rows.push_back(std::move(row));
    }
    return rows;
}

// By "Class.Member". Where the reference errs, added-members.tsv has the row of Excel's type library and says why.
inline std::map<std::string, Member> members() {
    std::map<std::string, Member> members;
    for (const char* list : {"added-members.tsv", "object-model.tsv"}) {
        for (auto& row : rows(list, 5)) {
            if (row[2] != "event") members.emplace(row[0] + "." + row[1], Member{row[2], row[3], row[4]});
        }
    }
    return members;
}

// "Class.Event": its parameters.
inline std::map<std::string, std::string> events() {
    std::map<std::string, std::string> events;
    for (auto& row : rows("object-model.tsv", 5)) {
        if (row[2] == "event") events.emplace(row[0] + "." + row[1], row[4]);
    }
    return events;
}

// The values of a constant; a few names stand in two enumerations.
inline std::map<std::string, std::set<long>> constants() {
    std::map<std::string, std::set<long>> constants;
    for (const char* list : {"added-constants.tsv", "constants.tsv"}) {
        for (const auto& row : rows(list, 3)) constants[row[1]].insert(std::stol(row[2]));
    }
    return constants;
}

// A place in our sources that a pattern matches.
struct Found {
    std::string file;
    std::vector<std::string> groups;  // the whole match first
};
// Of the headers and sources below src/<folder>.
inline std::vector<Found> in_sources(const std::string& folder, const std::string& pattern) {
    const std::regex regex(pattern);
    std::vector<Found> all;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(KESTRUNE_SOURCE_DIR "/src/" + folder)) {
        if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
        std::ifstream file(entry.path());
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        for (std::sregex_iterator match(text.begin(), text.end(), regex), end; match != end; ++match) {
            all.push_back({entry.path().filename().string(), {match->begin(), match->end()}});
        }
    }
    return all;
}

}  // namespace kestrune::published
