#include "cli/OpenWorkbook.h"

#include <filesystem>

namespace kestrune::cli {

OpenWorkbook::OpenWorkbook(const std::string& path) : file_(host::WorkbookFile::open(path)) {
    const std::filesystem::path place = std::filesystem::absolute(path);
    host::Workbook& workbook = file_->workbook();
    workbook.name = place.filename().string();
    workbook.path = place.parent_path().string();
    session_.store = &store_;
    session_.open(workbook);
    application_ = excel::Application(host::make_application(session_));
}

}  // namespace kestrune::cli
