#pragma once

#include "host/objects/WorkbookStore.h"

namespace kestrune::cli {

// The workbook files of this machine, for the embedded Excel. What a file is says its content, not its ending: a
// package called .xls opens as well.
class FileStore : public host::WorkbookStore {
  public:
    [[nodiscard]] std::unique_ptr<host::StoredWorkbook> open(const std::string& path) override;
};

}  // namespace kestrune::cli
