#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kestrune::cli {

struct RunOptions {
    std::string workbook;
    std::optional<std::string> output;
    bool in_place = false;
    bool force = false;         // save a signed workbook without the signature that its changes break
    std::string answer = "ok";  // ok, cancel, yes, no, ask
    bool json = false;
    bool trace = false;
    bool timing = false;                // tell how long each step took
    std::string prefs;                  // the file of the user settings; the user's own when empty
    std::vector<std::string> settings;  // "GROUP.FIELD=VALUE", for this run
    std::vector<std::string> steps;
};

// `kestrune run`: a session of steps on one workbook, saved at its end. Nothing is written when a step fails.
void run(const RunOptions& options);

}  // namespace kestrune::cli
