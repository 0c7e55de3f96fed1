#include "cli/prefs/SetOption.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

#include "automation/Conversion.h"
#include "automation/Text.h"
#include "cli/Failure.h"
#include "settings/Fields.h"
#include "smart/copy/Condition.h"
#include "styles/ColorText.h"

namespace kestrune::cli {
namespace {

using automation::same_text;
using automation::Value;
using settings::Sense;

// The value that a person typed, checked for what files need not be checked for.
template <class Record>
Value checked(const settings::Field<Record>& field, const std::string& text, const styles::cStyles& library) {
    if (field.sense == Sense::color) {
        if (const auto color = styles::color_meant(text)) return *color;
    }
    if (field.sense == Sense::style_name && !library.Item(text)) {
        throw UsageError(fmt::format("there is no style '{}'", text));
    }
    if (!field.keywords.empty()) {
        const auto keyword = std::ranges::find_if(field.keywords, [&](auto word) { return same_text(word, text); });
        if (keyword == field.keywords.end()) {
            throw UsageError(fmt::format("'{}' is none of {}", text, fmt::join(field.keywords, ", ")));
        }
        return *keyword;
    }
    return text;
}

template <class Record>
bool set_field(Record& record, std::string_view name, const std::string& text, const styles::cStyles& library) {
    for (const auto& field : settings::fields<Record>()) {
        if (!same_text(field.name, name)) continue;
        settings::take(field, record, checked(field, text, library), library);
        const auto* whole = std::get_if<std::int32_t Record::*>(&field.member);
        // Files round; a person who types a fraction means it.
        const bool is_named = field.sense == Sense::color && styles::color_meant(text);
        if (whole && !is_named && automation::to_double(text) != record.**whole) {
            throw UsageError(fmt::format("'{}' is no whole number", text));
        }
        return true;
    }
    if constexpr (requires { record.Operator; }) {
        // It is in no preferences file, and so among no fields.
        if (!same_text(name, "Operator")) return false;
        const auto found =
            std::ranges::find_if(smart::condition_operators, [&](auto word) { return same_text(word, text); });
        if (found == smart::condition_operators.end()) {
            throw UsageError(fmt::format("'{}' is none of {}", text, fmt::join(smart::condition_operators, ", ")));
        }
        record.Operator = *found;
        return true;
    }
    return false;
}

bool set_named(settings::cUserSettings& settings, std::string_view name, const std::string& text) {
    const styles::cStyles& library = *settings.Styles;
    const std::size_t dot = name.find('.');
    if (dot == std::string_view::npos) return set_field(settings, name, text, library);
    bool found = false;
    settings::for_each_group(settings, [&](std::string_view group, auto& options, auto) {
        if (same_text(group, name.substr(0, dot))) found = set_field(options, name.substr(dot + 1), text, library);
    });
    return found;
}

}  // namespace

void set_option(settings::cUserSettings& settings, const std::string& option) {
    const auto wrong = [&](std::string_view what) { return UsageError(fmt::format("--set {}: {}", option, what)); };
    const std::size_t sign = option.find('=');
    if (sign == std::string::npos) throw wrong("is not NAME=VALUE");
    const std::string name = option.substr(0, sign);
    bool found = false;
    try {
        found = set_named(settings, name, option.substr(sign + 1));
    } catch (const automation::AutomationError& error) {
        throw wrong(error.description());
    } catch (const UsageError& error) {
        throw wrong(error.what());
    }
    if (!found) throw wrong(fmt::format("there is no setting '{}'; 'kestrune prefs show' lists them", name));
}

}  // namespace kestrune::cli
