#pragma once

#include <memory>
#include <string>

#include "cli/FileStore.h"
#include "cli/HostFormats.h"
#include "excel/Application.h"
#include "host/objects/HostSession.h"
#include "host/objects/bars/Click.h"
#include "host/objects/keys/KeyPress.h"
#include "host/xlsx/WorkbookFile.h"

namespace kestrune::cli {

// A workbook open in the embedded Excel, as its only and active one.
class OpenWorkbook {
  public:
    // Fails with host::PackageError for whatever is wrong with the file.
    explicit OpenWorkbook(const std::string& path);

    [[nodiscard]] excel::Application application() const { return application_; }
    // Brings the workbook to the front, in case that a command opened another one.
    void activate() { session_.activate(model()); }
    [[nodiscard]] host::Workbook& model() { return file_->workbook(); }
    [[nodiscard]] const host::HostSession& session() const { return session_; }
    // Presses a key; what comes of it.
    host::KeyPress press(const keys::Key& key) { return host::press_key(session_, key); }
    // Excel's menus and toolbars; null until somebody asked the application for them.
    [[nodiscard]] const host::CommandBars* command_bars() const { return session_.command_bars.get(); }
    // Runs a control's action; what its macro answers.
    automation::Value click(const std::shared_ptr<host::BarControl>& control) { return host::click(session_, control); }
    // What Excel may run by name.
    [[nodiscard]] host::Macros& macros() { return session_.macros; }
    // What the libraries ask about number formats of open workbooks.
    [[nodiscard]] HostFormats& formats() { return formats_; }
    [[nodiscard]] host::PackageKind kind() const { return file_->package().kind(); }
    [[nodiscard]] bool breaks_signature() { return file_->breaks_signature(); }
    void give_up_signature() { file_->give_up_signature(); }
    // Writes the workbook whole or not at all; the path may be the one it was opened from.
    void save(const std::string& path) { file_->save(path); }

  private:
    std::unique_ptr<host::WorkbookFile> file_;
    FileStore store_;  // what commands open besides
    host::HostSession session_;
    HostFormats formats_{session_};
    excel::Application application_;
};

}  // namespace kestrune::cli
