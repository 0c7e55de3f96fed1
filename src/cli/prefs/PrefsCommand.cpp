#include "cli/prefs/PrefsCommand.h"

#include <fmt/format.h>

#include <cstdio>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

#include "cli/AnswerOption.h"
#include "cli/Failure.h"
#include "cli/MessageLine.h"
#include "cli/prefs/SettingsJson.h"
#include "cli/prefs/SettingsPage.h"
#include "cli/prefs/SettingsSession.h"
#include "settings/PreferencesExchange.h"

namespace kestrune::cli {
namespace {

// Answers every question as the options say, and every file dialog with one path. Questions are printed at once, what
// is told when it has come true: a dialog tells of settings before anybody put them into a file.
class GivenFile : public forms::Presenter {
  public:
    GivenFile(const std::string& answer, std::string path) : answers_(presenter_for(answer)), path_(std::move(path)) {
        listen([this](const forms::Message& message, forms::MsgBoxResult choice) {
            told_ += message_line(message, choice) + "\n";
            if (forms::choices(message.buttons).size() > 1) tell();
        });
    }
    void tell() { fmt::print(stderr, "{}", std::exchange(told_, {})); }
    std::optional<std::string> choose_file(const forms::FileDialog&) override { return path_; }

  private:
    forms::MsgBoxResult answer_to(const forms::Message& message) override { return answers_->show(message); }

    std::unique_ptr<forms::Presenter> answers_;
    std::string path_;
    std::string told_;
};

// The settings in use: the user's file, or the defaults while there is none. A file that was named has to be there.
std::shared_ptr<settings::cUserSettings> settings_in_use(SettingsSession& session, const PrefsOptions& options) {
    if (session.has_file() || !options.prefs.empty()) return session.load();
    fmt::print(stderr, "{}: is not there yet; these are the default settings\n", session.path());
    return session.defaults();
}

}  // namespace

void show_prefs(const PrefsOptions& options) {
    GivenFile presenter(options.answer, {});
    SettingsSession session(presenter, options.prefs);
    const auto settings = settings_in_use(session, options);
    if (options.json) {
        fmt::print("{}\n", settings_json(*settings).dump(1));
    } else {
        fmt::print("{}", settings_page(*settings, session.path()));
    }
}

void init_prefs(const PrefsOptions& options) {
    GivenFile presenter(options.answer, {});
    SettingsSession session(presenter, options.prefs);
    if (session.has_file()) {
        throw Failure(fmt::format("{}: is there already; 'kestrune prefs restore' gives it the default settings",
                                  session.path()));
    }
    session.save(*session.defaults());
    fmt::print("{}: has the default settings\n", session.path());
}

void import_prefs(const PrefsOptions& options) {
    GivenFile presenter(options.answer, options.other);
    SettingsSession session(presenter, options.prefs);
    // What is wrong with a file is worth more than the message that something is.
    static_cast<void>(session.load(options.other));
    const auto settings = settings::ImportUserPreferences(session.state());
    if (!settings) {
        presenter.tell();
        fmt::print(stderr, "nothing imported\n");
        return;
    }
    session.save(*settings);
    presenter.tell();
    fmt::print("{}: has the settings of {}\n", session.path(), options.other);
}

void export_prefs(const PrefsOptions& options) {
    GivenFile presenter(options.answer, options.other);
    SettingsSession session(presenter, options.prefs);
    const auto settings = settings_in_use(session, options);
    if (!settings::ExportUserPreferences(session.state(), *settings)) throw Failure(session.last_reason());
    presenter.tell();
    fmt::print("{}: has the settings of {}\n", options.other, session.path());
}

void restore_prefs(const PrefsOptions& options) {
    GivenFile presenter(options.answer, {});
    SettingsSession session(presenter, options.prefs);
    settings::cUserSettings settings;
    if (!settings::RestoreUserPreferences(session.state(), settings)) {
        fmt::print(stderr, "nothing restored\n");
        return;
    }
    session.save(settings);
    presenter.tell();
    fmt::print("{}: has the default settings\n", session.path());
}

}  // namespace kestrune::cli
