#pragma once

#include <optional>
#include <string>

namespace kestrune::cli {

struct CommandsOptions {
    bool json = false;
    std::optional<std::string> html;  // the page to write
};

// `kestrune commands`: the 103 commands as a table, as JSON, or as the product's help page.
void list_commands(const CommandsOptions& options);

}  // namespace kestrune::cli
