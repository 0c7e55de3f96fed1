#include "core/Folders.h"

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"

namespace kestrune::core {
namespace {

std::string with_separator(std::string folder) {
    const char separator = folder.find('\\') != std::string::npos ? '\\' : '/';
    if (!folder.ends_with('\\') && !folder.ends_with('/')) folder += separator;
    return folder;
}

std::string installed(const SharedState& shared, std::string_view name) {
    std::string folder = with_separator(shared.installation_folder);
    const char separator = folder.back();
    return folder.append(name) + separator;
}

}  // namespace

std::string files_folder(const SharedState& shared) { return installed(shared, "Files"); }

std::string lessons_folder(const SharedState& shared) {
    const automation::ResumeNext attempt(shared.trace);
    automation::Value stated;
    attempt.assign(stated, [&] { return shared.general().machine_value("LessonPath"); });
    if (const auto* folder = stated.if_is<std::string>(); folder && !folder->empty()) return with_separator(*folder);
    return installed(shared, "Lessons");
}

}  // namespace kestrune::core
