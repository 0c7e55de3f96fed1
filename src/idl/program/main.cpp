// Writes the interface definitions of all libraries, or checks that they say what the member tables say.
//   kestrune-idl [--check] FOLDER

#include <fmt/format.h>

#include <array>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>

#include "brvblib/iPublic.h"
#include "brxllib/iPublic.h"
#include "core/iGlobal.h"
#include "core/iPublic.h"
#include "host/objects/ApplicationObject.h"
#include "host/objects/AreasObject.h"
#include "host/objects/BorderObject.h"
#include "host/objects/BordersObject.h"
#include "host/objects/ChartSheetObject.h"
#include "host/objects/FontObject.h"
#include "host/objects/FormatConditionObject.h"
#include "host/objects/FormatConditionsObject.h"
#include "host/objects/InteriorObject.h"
#include "host/objects/NameObject.h"
#include "host/objects/NamesObject.h"
#include "host/objects/OutlineObject.h"
#include "host/objects/RangeObject.h"
#include "host/objects/SheetsObject.h"
#include "host/objects/WindowObject.h"
#include "host/objects/WindowsObject.h"
#include "host/objects/WorkbookObject.h"
#include "host/objects/WorkbooksObject.h"
#include "host/objects/WorksheetObject.h"
#include "idl/Library.h"

namespace kestrune::idl {
namespace {

std::vector<Library> libraries() {
    return {
        {"KestruneXL", &core::iPublic::members, {}},
        {"BRVBLib", &brvblib::iPublic::members, {}},
        {"BRXLLib", &brxllib::iPublic::members, {}},
        // Its members answer whatever Excel's would, so no C++ type names the classes.
        {"KestruneHost",
         &host::ApplicationObject::members,
         {&host::AreasObject::members, &host::BorderObject::members, &host::BordersObject::members,
          &host::ChartSheetObject::members, &host::FontObject::members, &host::FormatConditionObject::members,
          &host::FormatConditionsObject::members, &host::InteriorObject::members, &host::NameObject::members,
          &host::NamesObject::members, &host::OutlineObject::members, &host::RangeObject::members,
          &host::SheetsObject::members, &host::WindowObject::members, &host::WindowsObject::members,
          &host::WorkbookObject::members, &host::WorkbooksObject::members, &host::WorksheetObject::members,
          &host::WorksheetsObject::members}},
    };
}

std::string content_of(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// Whether the file holds the text, or does now.
bool settle(const std::filesystem::path& path, const std::string& text, bool check) {
    if (content_of(path) == text) return true;
    if (check) {
        fmt::print(stderr, "{}: is not what the member tables say; run scripts/idl and commit what it writes\n",
                   path.string());
        return false;
    }
    std::ofstream file(path, std::ios::binary);
    file << text << std::flush;
    if (!file) fmt::print(stderr, "{}: cannot be written\n", path.string());
    return static_cast<bool>(file);
}

}  // namespace
}  // namespace kestrune::idl

int main(int argc, char** argv) try {
    const bool check = argc == 3 && argv[1] == std::string_view("--check");
    if (argc != 2 && !check) {
        fmt::print(stderr, "usage: kestrune-idl [--check] FOLDER\n");
        return 2;
    }
    const std::filesystem::path folder = argv[argc - 1];
    bool settled = true;
    for (const auto& library : kestrune::idl::libraries()) {
        const auto path = folder / fmt::format("{}.idl", library.name);
        settled = kestrune::idl::settle(path, idl_of(library), check) && settled;
    }
    return settled ? 0 : 1;
} catch (const std::exception& error) {
    fmt::print(stderr, "kestrune-idl: {}\n", error.what());
    return 1;
}
