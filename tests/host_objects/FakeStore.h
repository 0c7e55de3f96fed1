#pragma once

#include <map>
#include <memory>
#include <string>

#include "automation/AutomationError.h"
#include "host/objects/WorkbookStore.h"

namespace kestrune::host {

// Files as the host sees them: full names, each with how often it was saved. Every one holds a workbook of two
// sheets; one called broken.xlsx does not open.
class FakeStore : public WorkbookStore {
  public:
    std::unique_ptr<StoredWorkbook> open(const std::string& path) override {
        if (!saves.contains(path)) return nullptr;
        if (path.ends_with("broken.xlsx")) {
            throw automation::AutomationError(automation::hresult::excel_error, "Workbooks.Open", path + ": broken");
        }
        return std::make_unique<File>(path, saves[path]);
    }

    std::map<std::string, int> saves;

  private:
    class File : public StoredWorkbook {
      public:
        File(const std::string& path, int& saves) : saves_(saves) {
            const std::size_t slash = path.find_last_of("/\\");
            workbook_.name = path.substr(slash + 1);
            workbook_.path = path.substr(0, slash);
            workbook_.add_sheet("First");
            workbook_.add_sheet("Second");
        }
        Workbook& workbook() override { return workbook_; }
        void save() override { ++saves_; }

      private:
        Workbook workbook_;
        int& saves_;
    };
};

}  // namespace kestrune::host
