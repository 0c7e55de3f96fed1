#pragma once

#include <fmt/format.h>

#include <string>
#include <vector>

#include "automation/Conversion.h"
#include "settings/Fields.h"

namespace kestrune::settings {

// Everything that settings hold, a line a value, to compare records by.
inline std::vector<std::string> lines_of(const cUserSettings& settings) {
    std::vector<std::string> lines;
    const auto add = [&](std::string_view place, std::string_view name, const automation::Value& value) {
        const auto* number = value.if_is<double>();
        lines.push_back(fmt::format("{}.{} = {} {}", place, name, static_cast<int>(value.kind()),
                                    number ? fmt::format("{:a}", *number) : automation::to_text(value)));
    };
    const auto add_all = [&]<class Record>(std::string_view place, const Record& record) {
        for (const auto& field : fields<Record>()) add(place, field.name, value_of(field, record));
    };
    for (std::int32_t i = 1; i <= settings.Styles->Count(); ++i) {
        add_all(fmt::format("Style {}", i), static_cast<const styles::StyleFields&>(*settings.Styles->Item(i)));
    }
    add_all("", settings);
    for_each_group(settings, [&](std::string_view name, const auto& group, auto) { add_all(name, group); });
    for (std::size_t i = 0; i < numeric_cycle_count; ++i) {
        const styles::cLongToggle& cycle = *settings.cycle(static_cast<NumericCycle>(i));
        add(numeric_cycle_names[i], "Name", cycle.Name);
        add(numeric_cycle_names[i], "AccessLevel", cycle.AccessLevel);
        for (const double step : cycle.Settings) add(numeric_cycle_names[i], "Setting", step);
        for (const double step : cycle.LookFors) add(numeric_cycle_names[i], "LookFor", step);
    }
    for (std::size_t i = 0; i < style_cycle_count; ++i) {
        const styles::cStyleToggle& cycle = *settings.cycle(static_cast<StyleCycle>(i));
        add(style_cycle_names[i], "Name", cycle.Name);
        add(style_cycle_names[i], "AccessLevel", cycle.AccessLevel);
        for (std::int32_t step = 1; step <= cycle.Styles->Count(); ++step) {
            // The very style of the library, not one that looks like it.
            add(style_cycle_names[i], "Style", cycle.Styles->Item(step)->MyIndex());
        }
    }
    return lines;
}

}  // namespace kestrune::settings
