#include "settings/PreferencesWriter.h"

#include "settings/Fields.h"
#include "settings/PreferencesFormat.h"

namespace kestrune::settings {

using automation::Value;

template <class Statement>
void PreferencesWriter::step(Statement&& statement) {
    complete_ = attempt_(statement) && complete_;
}

template <class Content>
void PreferencesWriter::element(std::string_view name, Content&& content) {
    step([&] { library_.xml_start_element(name); });
    content();
    step([&] { library_.xml_end_element(name); });
}

void PreferencesWriter::leaf(std::string_view name, const Value& value) {
    step([&] { library_.xml_write_leaf(name, value); });
}

template <class Record>
void PreferencesWriter::leaves(const Record& record) {
    for (const auto& field : fields<Record>()) leaf(field.name, value_of(field, record));
}

void PreferencesWriter::numbers(std::string_view name, std::string_view item, const std::vector<double>& values) {
    element(name, [&] {
        for (const double value : values) leaf(item, value_of(value));
    });
}

void PreferencesWriter::cycle(std::string_view name, const styles::cLongToggle& toggle) {
    element(name, [&] {
        leaf(name_element, toggle.Name);
        leaf(access_level_element, toggle.AccessLevel);
        numbers(steps_element, step_element, toggle.Settings);
        numbers(recognised_element, recognised_step_element, toggle.LookFors);
    });
}

void PreferencesWriter::cycle(std::string_view name, const styles::cStyleToggle& toggle) {
    element(name, [&] {
        leaf(name_element, toggle.Name);
        leaf(access_level_element, toggle.AccessLevel);
        element(styles_element, [&] {
            for (std::int32_t i = 1; i <= toggle.Styles->Count(); ++i) {
                leaf(style_element, toggle.Styles->Item(i)->FriendlyName);
            }
        });
    });
}

bool PreferencesWriter::write(const cUserSettings& settings) {
    complete_ = true;
    step([&] { library_.xml_clear(); });
    step([&] { library_.xml_start_document(root_element, format_version, format_identifier); });
    element(settings_element, [&] {
        element(styles_element, [&] {
            for (std::int32_t i = 1; i <= settings.Styles->Count(); ++i) {
                const styles::StyleFields& style = *settings.Styles->Item(i);
                element(style_element, [&] { leaves(style); });
            }
        });
        leaves(settings);
        for_each_group(settings,
                       [&](std::string_view name, const auto& group, auto) { element(name, [&] { leaves(group); }); });
        for (std::size_t i = 0; i < numeric_cycle_count; ++i) {
            cycle(numeric_cycle_names[i], *settings.cycle(static_cast<NumericCycle>(i)));
        }
        for (std::size_t i = 0; i < style_cycle_count; ++i) {
            cycle(style_cycle_names[i], *settings.cycle(static_cast<StyleCycle>(i)));
        }
    });
    step([&] { library_.xml_end_element(root_element); });
    return complete_;
}

}  // namespace kestrune::settings
