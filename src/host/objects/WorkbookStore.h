#pragma once

#include <memory>
#include <string>

#include "host/model/Workbook.h"

namespace kestrune::host {

// A workbook that lives in a file; keeps the workbook in memory as long as it exists.
class StoredWorkbook {
  public:
    StoredWorkbook() = default;
    StoredWorkbook(const StoredWorkbook&) = delete;
    StoredWorkbook& operator=(const StoredWorkbook&) = delete;
    virtual ~StoredWorkbook() = default;

    [[nodiscard]] virtual Workbook& workbook() = 0;
    // Writes it into the file that it came from. Fails with AutomationError, error 1004.
    virtual void save() = 0;
};

// Where Workbooks.Open finds workbooks.
class WorkbookStore {
  public:
    WorkbookStore() = default;
    WorkbookStore(const WorkbookStore&) = delete;
    WorkbookStore& operator=(const WorkbookStore&) = delete;
    virtual ~WorkbookStore() = default;

    // The workbook of a file, its name and path filled in; null when there is no such file. A file that is no
    // workbook fails with AutomationError, error 1004.
    [[nodiscard]] virtual std::unique_ptr<StoredWorkbook> open(const std::string& path) = 0;
};

}  // namespace kestrune::host
