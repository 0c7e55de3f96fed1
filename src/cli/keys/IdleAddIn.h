#pragma once

#include "automation/Trace.h"
#include "cli/AddIn.h"
#include "forms/ScriptedPresenter.h"
#include "host/objects/HostSession.h"

namespace kestrune::cli {

// The add-in in an Excel with an empty workbook: for what concerns no workbook.
class IdleAddIn {
  public:
    [[nodiscard]] automation::Object& hot_keys() { return add_in_.hot_keys(); }

  private:
    static excel::Application application_of(host::HostSession& session) {
        session.add_workbook();
        return excel::Application(host::make_application(session));
    }

    automation::Trace trace_;
    forms::ScriptedPresenter presenter_;
    host::HostSession session_;
    AddIn add_in_{application_of(session_), session_.macros, presenter_, trace_, nullptr};
};

}  // namespace kestrune::cli
