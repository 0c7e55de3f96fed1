#pragma once

#include <memory>
#include <string>
#include <vector>

#include "automation/Conversion.h"
#include "automation/Object.h"
#include "automation/Trace.h"
#include "brxllib/Surroundings.h"
#include "core/bridges/SharedState.h"
#include "excel/Application.h"
#include "forms/Presenter.h"
#include "host/objects/Macros.h"

namespace kestrune::cli {

// The add-in loaded into an Excel, the way its companion workbook does it: iPublic is created by its
// class name and given the application and the workbook, and answers the command object.
//
// The companion workbook's macros are there, too: mDOM has one for each method of iGlobal.
class AddIn {
  public:
    // Failure when the add-in does not start. What it is given outlives it. preferences: the file of the user settings;
    // the user's own when empty.
    AddIn(const excel::Application& application, host::Macros& macros, forms::Presenter& presenter,
          const automation::Trace& trace, brxllib::CustomFormats* formats, const std::string& preferences = {});
    AddIn(const AddIn&) = delete;
    AddIn& operator=(const AddIn&) = delete;

    [[nodiscard]] automation::Object& commands() { return *global_; }  // iGlobal
    // Gives settings other values, each "GROUP.FIELD=VALUE", for as long as the add-in lives. UsageError for what is
    // none.
    void set_options(const std::vector<std::string>& options);
    // The general library's registry of hot keys.
    [[nodiscard]] automation::Object& hot_keys() { return *hot_keys_; }
    [[nodiscard]] automation::Object& undo_redo() { return *undo_redo_; }  // the spreadsheet library's iUndoRedo

  private:
    void add_macros(host::Macros& macros, const excel::Application& application) const;

    std::shared_ptr<core::SharedState> state_;
    automation::ObjectRef undo_redo_;
    automation::ObjectRef public_;
    automation::ObjectRef global_;
    automation::ObjectRef hot_keys_;
};

}  // namespace kestrune::cli
