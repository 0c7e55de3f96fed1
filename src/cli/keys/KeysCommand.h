#pragma once

#include <string>
#include <vector>

namespace kestrune::cli {

// What `kestrune keys` is to do: an operation of the hot-key registry and its arguments; without one, list the keys.
struct KeysOptions {
    std::string operation;
    std::vector<std::string> arguments;
    bool json = false;
};

// `kestrune keys`: the user's hot keys, listed or changed. Failure for what cannot be; then nothing changed.
void manage_keys(const KeysOptions& options);

}  // namespace kestrune::cli
