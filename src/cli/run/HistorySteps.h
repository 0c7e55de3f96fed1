#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "cli/AddIn.h"
#include "cli/run/Step.h"

namespace kestrune::cli {

// What became of a step that undoes, redoes or tells what can be.
struct HistoryReport {
    bool ran = true;                   // something was undone or redone, as often as asked for
    std::string what;                  // for a person, one line
    std::vector<std::string> lines{};  // and more, each its own
    nlohmann::ordered_json facts = nlohmann::ordered_json::object();  // for --json, beside what every step tells
};

HistoryReport run_history_step(AddIn& add_in, const HistoryStep& step);

}  // namespace kestrune::cli
