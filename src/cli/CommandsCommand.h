#pragma once

namespace kestrune::cli {

// `kestrune commands`: the 103 commands as a table, or as JSON.
void list_commands(bool json);

}  // namespace kestrune::cli
