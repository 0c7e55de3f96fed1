#pragma once

#include <span>
#include <string_view>
#include <tuple>

#include "settings/Field.h"
#include "settings/cUserSettings.h"

namespace kestrune::settings {

// The fields of each record, in the order of preferences files.
template <class Record>
std::span<const Field<Record>> fields();
template <>
std::span<const Field<styles::StyleFields>> fields();
template <>
std::span<const Field<cUserSettings>> fields();  // those that are in no group and no cycle
template <>
std::span<const Field<SmartCopyOptions>> fields();
template <>
std::span<const Field<SmartFillDatesOptions>> fields();
template <>
std::span<const Field<SmartFillNumbersOptions>> fields();
template <>
std::span<const Field<SmartFmlaRowSpacingOptions>> fields();
template <>
std::span<const Field<SmartFmlaColSpacingOptions>> fields();

template <class Options>
struct Group {
    std::string_view name;
    Options SettingValues::*member;
};
template <class Options>
Group(std::string_view, Options SettingValues::*) -> Group<Options>;

// The option groups of the Smart tools, in the order of preferences files.
inline constexpr std::tuple groups{
    Group{"SmartCopyRight", &SettingValues::SmartCopyRight},
    Group{"SmartCopyDown", &SettingValues::SmartCopyDown},
    Group{"SmartFillDates", &SettingValues::SmartFillDates},
    Group{"SmartFillNumbers", &SettingValues::SmartFillNumbers},
    Group{"SmartFmlaRowSpacing", &SettingValues::SmartFmlaRowSpacing},
    Group{"SmartFmlaColSpacing", &SettingValues::SmartFmlaColSpacing},
};

// Calls act with the name of each group, the group itself and its fields.
template <class Settings, class Act>
void for_each_group(Settings& settings, Act&& act) {
    const auto one = [&]<class Options>(const Group<Options>& group) {
        act(group.name, settings.*group.member, fields<Options>());
    };
    std::apply([&](const auto&... group) { (one(group), ...); }, groups);
}

}  // namespace kestrune::settings
