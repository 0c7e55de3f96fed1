#include "cli/prefs/SettingsPage.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <vector>

#include "automation/Conversion.h"
#include "cli/prefs/StyleLine.h"
#include "settings/Days.h"
#include "settings/Fields.h"

namespace kestrune::cli {

using automation::Value;
using settings::Sense;

namespace {

std::string text_of(const Value& value, Sense sense) {
    if (const auto* truth = value.if_is<bool>()) return *truth ? "True" : "False";
    if (const auto* date = value.if_is<automation::Date>()) return settings::day_text(*date);
    if (sense == Sense::color) return color_text(automation::to_integer(value));
    return automation::to_text(value);
}

class Page {
  public:
    void heading(std::string_view text) { text_ += fmt::format("\n{}\n", text); }
    void row(std::string_view name, std::string_view value) {
        text_ += value.empty() ? fmt::format("  {}\n", name) : fmt::format("  {:<34} {}\n", name, value);
    }
    template <class Record>
    void fields(const Record& record, const std::string& prefix) {
        for (const auto& field : settings::fields<Record>()) {
            row(prefix + std::string(field.name), text_of(value_of(field, record), field.sense));
        }
    }
    [[nodiscard]] std::string text() && { return std::move(text_); }

  private:
    std::string text_;
};

// Its values, and what Excel made of them where that is something else.
std::string steps(const styles::cLongToggle& cycle, bool colors) {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < cycle.Settings.size(); ++i) {
        const double value = cycle.Settings[i];
        const auto text = [&](double number) {
            return colors ? color_text(static_cast<std::int32_t>(number)) : fmt::to_string(number);
        };
        texts.push_back(text(value));
        if (i < cycle.LookFors.size() && cycle.LookFors[i] != value) {
            texts.back() += fmt::format(" (shown as {})", text(cycle.LookFors[i]));
        }
    }
    return fmt::format("{}: {}", cycle.Name, texts.empty() ? "no steps" : fmt::format("{}", fmt::join(texts, ", ")));
}

std::string steps(const styles::cStyleToggle& cycle) {
    std::vector<std::string> names;
    for (std::int32_t i = 1; i <= cycle.Styles->Count(); ++i) names.push_back(cycle.Styles->Item(i)->FriendlyName);
    return fmt::format("{}: {}", cycle.Name, names.empty() ? "no steps" : fmt::format("{}", fmt::join(names, ", ")));
}

}  // namespace

std::string settings_page(const settings::cUserSettings& settings, const std::string& path) {
    Page page;
    page.row("Preferences file", path);
    page.heading("Settings");
    page.fields(settings, "");
    page.heading("Smart tools");
    settings::for_each_group(
        settings, [&](std::string_view name, const auto& group, auto) { page.fields(group, std::string(name) + "."); });
    page.heading("Numeric SmartCycles");
    for (std::size_t i = 0; i < settings::numeric_cycle_count; ++i) {
        const auto field = static_cast<settings::NumericCycle>(i);
        page.row(settings::numeric_cycle_names[i],
                 steps(*settings.cycle(field), field >= settings::NumericCycle::MyColorToggle1));
    }
    page.heading("Style SmartCycles");
    for (std::size_t i = 0; i < settings::style_cycle_count; ++i) {
        page.row(settings::style_cycle_names[i], steps(*settings.cycle(static_cast<settings::StyleCycle>(i))));
    }
    page.heading(fmt::format("Styles ({})", settings.Styles->Count()));
    for (std::int32_t i = 1; i <= settings.Styles->Count(); ++i) {
        const styles::StyleFields& style = *settings.Styles->Item(i);
        page.row(style.FriendlyName, style_line(style));
    }
    return std::move(page).text();
}

}  // namespace kestrune::cli
