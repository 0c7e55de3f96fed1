#pragma once

#include <string_view>

#include "automation/ResumeNext.h"
#include "core/bridges/diBRVBLib.h"
#include "settings/cUserSettings.h"

namespace kestrune::settings {

// Builds the document of a preferences file in the library's XML service.
class PreferencesWriter {
  public:
    // Both outlive the writer.
    PreferencesWriter(const core::diBRVBLib& library, const automation::Trace& trace)
        : library_(library), attempt_(trace) {}

    // Every element is tried, whatever became of the others. Whether all are there.
    bool write(const cUserSettings& settings);

  private:
    template <class Record>
    void leaves(const Record& record);
    void leaf(std::string_view name, const automation::Value& value);
    void numbers(std::string_view name, std::string_view item, const std::vector<double>& values);
    void cycle(std::string_view name, const styles::cLongToggle& toggle);
    void cycle(std::string_view name, const styles::cStyleToggle& toggle);
    // An element and what content puts into it.
    template <class Content>
    void element(std::string_view name, Content&& content);
    template <class Statement>
    void step(Statement&& statement);

    const core::diBRVBLib& library_;
    automation::ResumeNext attempt_;
    bool complete_ = true;
};

}  // namespace kestrune::settings
