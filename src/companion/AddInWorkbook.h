#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "vba/Project.h"

namespace kestrune::companion {

// A module from a file: .bas is a standard module; a .cls is a document's when its base is the workbook's or a sheet's,
// a class otherwise. "@VERSION@" in it becomes the product's version.
vba::Module module_of(const std::filesystem::path& file);

// The project of the modules, in their order; the name is also its part of the id.
vba::Project project_of(std::string name, std::vector<vba::Module> modules);

// Makes the companion workbook of what lies in the folder: modules and, below parts, what workbooks are made of. Throws
// with one line that names the file at fault; the target is written whole or not at all.
void make_add_in(const std::filesystem::path& folder, const std::string& target);

}  // namespace kestrune::companion
