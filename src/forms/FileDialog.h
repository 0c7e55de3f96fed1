#pragma once

#include <string>

namespace kestrune::forms {

// What a dialog that asks for a file shows.
struct FileDialog {
    enum class Purpose { Open, Save };

    Purpose purpose = Purpose::Open;
    std::string title;
    std::string filter;    // what the files are called, "XML Files (*.xml)"
    std::string pattern;   // which files are offered, "*.xml"; several are parted by ";"
    std::string proposed;  // the file name that stands there first
    std::string folder;    // where to begin; empty for wherever the system begins
};

// The path that a file name typed into a dialog means: below the dialog's folder when it is relative, and with the
// pattern's ending when it is to be saved and has none.
std::string path_meant(const FileDialog& dialog, const std::string& typed);

}  // namespace kestrune::forms
