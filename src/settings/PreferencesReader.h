#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "automation/Trace.h"
#include "core/bridges/diBRVBLib.h"
#include "settings/cUserSettings.h"

namespace kestrune::settings {

// Reads the settings out of the document of a preferences file, which the library's XML service holds.
class PreferencesReader {
  public:
    // What older files lack comes from the default settings. All outlive the reader.
    PreferencesReader(const core::diBRVBLib& library, const core::AutoColorSettings& defaults,
                      const automation::Trace& trace)
        : library_(library), defaults_(defaults), trace_(trace) {}

    // Fails with an AutomationError that names the element when one is missing or does not hold what it should.
    [[nodiscard]] std::shared_ptr<cUserSettings> read() const;

  private:
    // An element that holds others, and how failures call it.
    struct Element {
        automation::ObjectRef node;
        std::string name;
    };

    [[nodiscard]] std::vector<Element> children(std::string_view name, const Element& under) const;
    // Null where there is none.
    [[nodiscard]] Element find(std::string_view name, const Element& under) const;
    [[nodiscard]] Element element(std::string_view name, const Element& under) const;
    [[nodiscard]] automation::Value leaf(std::string_view name, const Element& under) const;
    template <class Content>
    void take_leaf(std::string_view name, const Element& under, Content& content) const;
    template <class Record>
    void leaves(const Element& under, Record& record, const styles::cStyles& library) const;

    [[nodiscard]] styles::StylesRef style_library(const Element& settings) const;
    [[nodiscard]] styles::LongToggleRef numeric_cycle(const Element& from) const;
    [[nodiscard]] styles::StyleToggleRef style_cycle(const Element& from, const styles::cStyles& library) const;
    [[nodiscard]] std::vector<double> numbers(std::string_view name, std::string_view item, const Element& under) const;

    const core::diBRVBLib& library_;
    const core::AutoColorSettings& defaults_;
    const automation::Trace& trace_;
};

}  // namespace kestrune::settings
