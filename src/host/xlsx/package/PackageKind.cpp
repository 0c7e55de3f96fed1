#include "host/xlsx/package/PackageKind.h"

#include "host/xlsx/PackageError.h"
#include "host/xlsx/package/PartName.h"

namespace kestrune::host {
namespace {

struct KnownKind {
    std::string_view content_type;
    PackageKind kind;
};

constexpr KnownKind KnownKinds[] = {
    {"application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml", PackageKind::Workbook},
    {"application/vnd.ms-excel.sheet.macroenabled.main+xml", PackageKind::MacroWorkbook},
    {"application/vnd.openxmlformats-officedocument.spreadsheetml.template.main+xml", PackageKind::Template},
    {"application/vnd.ms-excel.template.macroenabled.main+xml", PackageKind::MacroTemplate},
    {"application/vnd.ms-excel.addin.macroenabled.main+xml", PackageKind::AddIn},
};

struct OtherDocument {
    std::string_view within;  ///< what its content type holds
    std::string_view message;
};

constexpr OtherDocument OtherDocuments[] = {
    {"ms-excel.sheet.binary", "is an .xlsb: binary workbooks are not read, only .xlsx and .xlsm are"},
    {"wordprocessingml", "is a Word document: only .xlsx and .xlsm are read"},
    {"ms-word", "is a Word document: only .xlsx and .xlsm are read"},
    {"presentationml", "is a PowerPoint presentation: only .xlsx and .xlsm are read"},
    {"ms-powerpoint", "is a PowerPoint presentation: only .xlsx and .xlsm are read"},
    {"ms-visio", "is a Visio drawing: only .xlsx and .xlsm are read"},
};

}  // namespace

PackageKind kind_of_main_part(std::string_view content_type, const std::string& file, std::string_view part) {
    const std::string type = lower_case(content_type);
    for (const KnownKind& known : KnownKinds) {
        if (type == known.content_type) return known.kind;
    }
    for (const OtherDocument& other : OtherDocuments) {
        if (type.find(other.within) != std::string::npos) throw PackageError(file, "", std::string(other.message));
    }
    if (type.empty()) throw PackageError(file, std::string(part), "is the main part, but has no content type");
    throw PackageError(file, std::string(part), "is the main part, but its content type is no workbook's: " + type);
}

}  // namespace kestrune::host
