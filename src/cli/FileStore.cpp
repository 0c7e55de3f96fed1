#include "cli/FileStore.h"

#include <filesystem>

#include "automation/AutomationError.h"
#include "host/xlsx/PackageError.h"
#include "host/xlsx/WorkbookFile.h"

namespace kestrune::cli {
namespace {

// The embedded Excel knows one way of failing.
template <class F>
auto as_excel_fails(std::string_view member, F&& work) {
    try {
        return work();
    } catch (const host::PackageError& error) {
        throw automation::AutomationError(automation::hresult::excel_error, member, error.what());
    }
}

class File : public host::StoredWorkbook {
  public:
    explicit File(const std::filesystem::path& place)
        : place_(place.string()),
          file_(as_excel_fails("Workbooks.Open", [&] { return host::WorkbookFile::open(place_); })) {
        workbook().name = place.filename().string();
        workbook().path = place.parent_path().string();
    }
    [[nodiscard]] host::Workbook& workbook() override { return file_->workbook(); }
    void save() override {
        as_excel_fails("Workbook.Save", [&] { file_->save(place_); });
    }

  private:
    std::string place_;
    std::unique_ptr<host::WorkbookFile> file_;
};

}  // namespace

std::unique_ptr<host::StoredWorkbook> FileStore::open(const std::string& path) {
    std::error_code nothing_there;
    const std::filesystem::path place = std::filesystem::weakly_canonical(path, nothing_there);
    if (nothing_there || !std::filesystem::is_regular_file(place, nothing_there)) return nullptr;
    return std::make_unique<File>(place);
}

}  // namespace kestrune::cli
