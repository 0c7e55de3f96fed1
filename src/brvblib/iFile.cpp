#include "brvblib/iFile.h"

#include <fmt/format.h>

#include <system_error>

#include "brvblib/Paths.h"
#include "brvblib/iGUID.h"

namespace kestrune::brvblib {
namespace {

namespace fs = std::filesystem;

using automation::method;
using automation::Value;

[[noreturn]] void fail(const std::string& path, std::string_view what) {
    throw automation::AutomationError(automation::hresult::exception, "iFile", fmt::format("{}: {}", path, what));
}

}  // namespace

bool iFile::exists(const std::string& path) const { return file_exists(path); }

bool iFile::folder_exists(const std::string& path) const { return brvblib::folder_exists(path); }

bool iFile::is_read_only(const std::string& path) const {
    return file_exists(path) && !library_->files().may_write(path);
}

void iFile::create_folder(const std::string& path) const { brvblib::create_folder(path); }

std::string iFile::join(const std::string& folder, const std::string& name) const {
    return to_utf8(to_path(folder) / to_path(name));
}

std::string iFile::folder_of(const std::string& path) const {
    return with_separator(to_utf8(to_path(path).parent_path()));
}

std::string iFile::name_of(const std::string& path) const { return to_utf8(to_path(path).filename()); }

std::string iFile::temporary_name(const std::optional<std::string>& ending) const {
    std::error_code failure;
    const fs::path folder = fs::temp_directory_path(failure);
    if (failure) fail("temporary files", failure.message());
    const std::string guid = new_guid();
    return to_utf8(folder / to_path("kestrune-" + guid.substr(1, guid.size() - 2) + ending.value_or("")));
}

std::string iFile::set_aside(const std::string& path, const std::string& why) const {
    return brvblib::set_aside(path, why);
}

Value iFile::open_dialog(const std::string& title, const std::string& filter, const std::string& pattern,
                         const std::optional<std::string>& proposed, const std::optional<std::string>& folder) const {
    return choose(
        {forms::FileDialog::Purpose::Open, title, filter, pattern, proposed.value_or(""), folder.value_or("")});
}

Value iFile::save_dialog(const std::string& title, const std::string& filter, const std::string& pattern,
                         const std::optional<std::string>& proposed, const std::optional<std::string>& folder) const {
    return choose(
        {forms::FileDialog::Purpose::Save, title, filter, pattern, proposed.value_or(""), folder.value_or("")});
}

Value iFile::choose(const forms::FileDialog& dialog) const {
    if (auto path = library_->services.presenter.choose_file(dialog)) return *std::move(path);
    return {};
}

const automation::MemberTable& iFile::members() {
    static constexpr std::string_view dialog = "Title, Filter, Pattern, [Proposed], [Folder]";
    static constexpr auto rows = automation::member_rows(
        method<&iFile::exists>("Exists", 1, "Path"), method<&iFile::folder_exists>("FolderExists", 2, "Path"),
        method<&iFile::is_read_only>("IsReadOnly", 3, "Path"), method<&iFile::create_folder>("CreateFolder", 4, "Path"),
        method<&iFile::join>("Join", 5, "Folder, Name"), method<&iFile::folder_of>("FolderOf", 6, "Path"),
        method<&iFile::name_of>("NameOf", 7, "Path"), method<&iFile::temporary_name>("TemporaryName", 8, "[Ending]"),
        method<&iFile::set_aside>("SetAside", 9, "Path, Why"), method<&iFile::open_dialog>("OpenDialog", 10, dialog),
        method<&iFile::save_dialog>("SaveDialog", 11, dialog));
    static constexpr automation::MemberTable table("iFile", rows);
    return table;
}

}  // namespace kestrune::brvblib
