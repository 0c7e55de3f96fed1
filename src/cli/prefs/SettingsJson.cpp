#include "cli/prefs/SettingsJson.h"

#include "automation/Conversion.h"
#include "settings/Days.h"
#include "settings/Fields.h"

namespace kestrune::cli {

using automation::Value;
using nlohmann::ordered_json;

namespace {

ordered_json json_of(const Value& value) {
    if (const auto* truth = value.if_is<bool>()) return *truth;
    if (const auto* whole = value.if_is<std::int32_t>()) return *whole;
    if (const auto* date = value.if_is<automation::Date>()) return settings::day_text(*date);
    return automation::to_text(value);
}

template <class Record>
void add_fields(ordered_json& to, const Record& record) {
    for (const auto& field : settings::fields<Record>()) to[std::string(field.name)] = json_of(value_of(field, record));
}

// Whole numbers as such, so that colours and indents read as what they are.
ordered_json json_of(double number) {
    const auto whole = static_cast<std::int64_t>(number);
    if (static_cast<double>(whole) == number) return whole;
    return number;
}

ordered_json json_of(const std::vector<double>& numbers) {
    ordered_json list = ordered_json::array();
    for (const double number : numbers) list.push_back(json_of(number));
    return list;
}

}  // namespace

ordered_json settings_json(const settings::cUserSettings& settings) {
    ordered_json out;
    ordered_json& styles = out["Styles"] = ordered_json::array();
    for (std::int32_t i = 1; i <= settings.Styles->Count(); ++i) {
        add_fields<styles::StyleFields>(styles.emplace_back(), *settings.Styles->Item(i));
    }
    add_fields(out, settings);
    settings::for_each_group(
        settings, [&](std::string_view name, const auto& group, auto) { add_fields(out[std::string(name)], group); });
    for (std::size_t i = 0; i < settings::numeric_cycle_count; ++i) {
        const styles::cLongToggle& cycle = *settings.cycle(static_cast<settings::NumericCycle>(i));
        out[std::string(settings::numeric_cycle_names[i])] = {{"Name", cycle.Name},
                                                              {"AccessLevel", cycle.AccessLevel},
                                                              {"Settings", json_of(cycle.Settings)},
                                                              {"LookFors", json_of(cycle.LookFors)}};
    }
    for (std::size_t i = 0; i < settings::style_cycle_count; ++i) {
        const styles::cStyleToggle& cycle = *settings.cycle(static_cast<settings::StyleCycle>(i));
        ordered_json steps = ordered_json::array();
        for (std::int32_t step = 1; step <= cycle.Styles->Count(); ++step) {
            steps.push_back(cycle.Styles->Item(step)->FriendlyName);
        }
        out[std::string(settings::style_cycle_names[i])] = {
            {"Name", cycle.Name}, {"AccessLevel", cycle.AccessLevel}, {"Styles", steps}};
    }
    return out;
}

}  // namespace kestrune::cli
