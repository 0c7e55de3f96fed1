#include "settings/mReadWrite.h"

#include <fmt/format.h>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "forms/MsgBox.h"
#include "settings/PreferencesFormat.h"
#include "settings/PreferencesReader.h"
#include "settings/PreferencesWriter.h"

namespace kestrune::settings {

using automation::AutomationError;
using automation::ResumeNext;
using automation::Value;
using core::SharedState;

namespace {

[[noreturn]] void fail(std::string_view path, std::string_view what) {
    throw AutomationError(automation::hresult::exception, "user preferences",
                          fmt::format("{}: {}", path, automation::one_line(what)));
}

std::shared_ptr<cUserSettings> read(const SharedState& shared) {
    core::AutoColorSettings defaults;
    ResumeNext(shared.trace).assign(defaults, [&] { return shared.spreadsheet().auto_color_defaults(); });
    return PreferencesReader(shared.general(), defaults, shared.trace).read();
}

// Lets the XML service go of its document, whatever happened.
class Release {
  public:
    explicit Release(const SharedState& shared) : shared_(shared) {}
    Release(const Release&) = delete;
    Release& operator=(const Release&) = delete;
    ~Release() {
        const ResumeNext attempt(shared_.trace);
        attempt([&] { shared_.general().xml_clear(); });
    }

  private:
    const SharedState& shared_;
};

}  // namespace

std::shared_ptr<cUserSettings> ReadUserPreferences(const SharedState& shared) {
    std::shared_ptr<cUserSettings> settings;
    ResumeNext(shared.trace).assign(settings, [&] { return read(shared); });
    return settings;
}

bool WriteUserPreferences(const SharedState& shared, const cUserSettings& settings) {
    return PreferencesWriter(shared.general(), shared.trace).write(settings);
}

std::shared_ptr<cUserSettings> load_preferences(const SharedState& shared, std::string_view path,
                                                std::string_view requester) {
    const core::diBRVBLib& library = shared.general();
    const Release release(shared);
    library.xml_clear();
    if (!library.xml_load(path, format_identifier, requester, format_version)) {
        const std::string why = library.xml_error();  // names the path already
        throw AutomationError(automation::hresult::exception, "user preferences", why);
    }
    try {
        return read(shared);
    } catch (const AutomationError& error) {
        fail(path, error.what());
    }
}

void save_preferences(const SharedState& shared, const cUserSettings& settings, std::string_view path) {
    const core::diBRVBLib& library = shared.general();
    const Release release(shared);
    // A file that lacks an element could not be read again.
    if (!WriteUserPreferences(shared, settings)) fail(path, "a setting cannot be written; the file was not changed");
    if (!library.xml_save(path)) {
        throw AutomationError(automation::hresult::exception, "user preferences", library.xml_error());
    }
}

std::shared_ptr<cUserSettings> LoadUserPreferencesFile(const SharedState& shared, std::string_view path) {
    const ResumeNext attempt(shared.trace);
    std::shared_ptr<cUserSettings> settings;
    attempt.assign(settings, [&] { return load_preferences(shared, path); });
    if (!settings) {
        attempt([&] {
            forms::MsgBox(shared.presenter, shared.general().message(core::Text::ImportFailed), forms::vbExclamation,
                          core::product_title);
        });
    }
    return settings;
}

bool SaveUserPreferences(const SharedState& shared, const cUserSettings& settings, std::string_view path) {
    const ResumeNext attempt(shared.trace);
    return attempt(
        [&] { save_preferences(shared, settings, path.empty() ? user_preferences_path(shared) : std::string(path)); });
}

std::string user_preferences_path(const SharedState& shared) {
    if (!shared.preferences_file.empty()) return shared.preferences_file;
    return shared.general().data_folder().append(preferences_file_name);
}

std::string keep_unreadable(const SharedState& shared, const std::string& path) {
    try {
        static_cast<void>(load_preferences(shared, path));
        return {};
    } catch (const AutomationError& error) {
        // Whoever needs the room knows already what is wrong with the file; here nothing is, but no file can be read.
        if (error.code() == automation::hresult::class_not_registered) throw;
    }
    if (!shared.general().file_exists(path)) return {};
    return shared.general().set_aside(path, "unreadable");
}

DefaultSources default_sources(const SharedState& shared) {
    const ResumeNext attempt(shared.trace);
    DefaultSources sources;
    attempt.assign(sources.auto_color, [&] { return shared.spreadsheet().auto_color_defaults(); });
    attempt.assign(sources.respected_cycle, [&] { return shared.spreadsheet().auto_color_smart_cycle(); });
    attempt.assign(sources.training, [&] {
        const Value installed = shared.general().machine_value("TT");
        return installed.is(Value::Kind::Empty) || automation::to_boolean(installed);
    });
    attempt.assign(sources.today, [&] { return shared.general().now(); });
    return sources;
}

}  // namespace kestrune::settings
