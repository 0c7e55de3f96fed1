#pragma once

#include <memory>
#include <string>
#include <vector>

#include "automation/Trace.h"
#include "core/bridges/SharedState.h"
#include "forms/Presenter.h"
#include "settings/cUserSettings.h"

namespace kestrune::cli {

// The add-in's settings without an Excel: both libraries, and the file of the user or another one.
class SettingsSession {
  public:
    // An empty path is the user's own file. The presenter outlives the session.
    SettingsSession(forms::Presenter& presenter, const std::string& path);
    ~SettingsSession();
    SettingsSession(const SettingsSession&) = delete;
    SettingsSession& operator=(const SettingsSession&) = delete;

    [[nodiscard]] core::SharedState& state() { return state_; }
    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] bool has_file() const;

    // What the file holds. Failure, saying what is wrong, when it cannot be read.
    [[nodiscard]] std::shared_ptr<settings::cUserSettings> load(const std::string& path);
    [[nodiscard]] std::shared_ptr<settings::cUserSettings> load() { return load(path_); }
    [[nodiscard]] std::shared_ptr<settings::cUserSettings> defaults();
    // Puts settings into the file. One that is there and cannot be read is kept under another name, which is told.
    void save(const settings::cUserSettings& settings);
    // Why the last operation that only told the trace failed.
    [[nodiscard]] std::string last_reason() const;

  private:
    automation::Trace trace_;
    std::vector<std::string> skipped_;
    core::SharedState state_;
    std::string path_;
};

}  // namespace kestrune::cli
