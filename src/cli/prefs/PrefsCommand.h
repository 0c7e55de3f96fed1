#pragma once

#include <string>

namespace kestrune::cli {

struct PrefsOptions {
    std::string prefs;          // the file; the user's own when empty
    std::string other;          // to import from or export to
    std::string answer = "ok";  // ok, cancel, yes, no, ask
    bool json = false;
};

// `kestrune prefs show`: all settings of a file, as a page for a person or as JSON.
void show_prefs(const PrefsOptions& options);
// `prefs init`: a file of default settings where there is none.
void init_prefs(const PrefsOptions& options);
// `prefs import`, `export`, `restore`: what the buttons of the settings dialog do.
void import_prefs(const PrefsOptions& options);
void export_prefs(const PrefsOptions& options);
void restore_prefs(const PrefsOptions& options);

}  // namespace kestrune::cli
