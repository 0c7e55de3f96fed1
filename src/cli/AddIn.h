#pragma once

#include "automation/Conversion.h"
#include "automation/Object.h"
#include "automation/Trace.h"
#include "brxllib/Surroundings.h"
#include "excel/Application.h"
#include "forms/Presenter.h"

namespace kestrune::cli {

// The add-in loaded into an Excel, the way its companion workbook does it: iPublic is created by its
// class name and given the application and the workbook, and answers the command object.
class AddIn {
  public:
    // Failure when the add-in does not start. What it is given outlives it.
    AddIn(const excel::Application& application, forms::Presenter& presenter, const automation::Trace& trace,
          brxllib::CustomFormats* formats);
    AddIn(const AddIn&) = delete;
    AddIn& operator=(const AddIn&) = delete;

    [[nodiscard]] automation::Object& commands() { return *global_; }  // iGlobal

  private:
    automation::ObjectRef public_;
    automation::ObjectRef global_;
};

}  // namespace kestrune::cli
