#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "vba/CompoundFile.h"

namespace kestrune::vba {

// A module of a Visual Basic project as text. Its attribute lines, which no editor shows, are part of the code, as in
// an exported .bas or .cls file.
struct Module {
    enum class Kind { Standard, Class, Document };
    std::string name;
    Kind kind = Kind::Standard;
    std::string code;  // ASCII, lines end in CR LF
};

// What Visual Basic for Applications needs to know of a project. It refers to no type library, so that none can be
// missing on the machine that opens it.
struct Project {
    std::string name;
    std::string description;
    std::string id;           // "{...}", upper case: the same project keeps it
    std::uint32_t major = 1;  // goes up whenever the project changes
    std::uint16_t minor = 0;
    std::vector<Module> modules;
};

// A module from an exported file's text: line ends become CR LF, what only files have (the lines VERSION and BEGIN to
// END of a class) goes, and the attribute VB_Name names it. VbaError, with the file and the line, for what no project
// can hold.
Module module_of_file(std::string_view text, Module::Kind kind, std::string_view file);

// The project as a storage ([MS-OVBA]), for xl/vbaProject.bin as the root and for the workbooks before 2007 as
// "_VBA_PROJECT_CUR". It holds the source only: Visual Basic compiles it when it is first opened, whatever its version
// and width. VbaError for names and texts that cannot be.
Entry write_project(const Project& project);

// Reads name, description and modules back, also of projects that Visual Basic wrote. VbaError for what is broken.
Project read_project(const Entry& storage);

}  // namespace kestrune::vba
