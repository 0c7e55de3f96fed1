#include "cli/menu/MenuCommand.h"

#include <fmt/format.h>

#include <cstdio>
#include <nlohmann/json.hpp>

#include "automation/Text.h"
#include "cli/Failure.h"
#include "cli/MessageLine.h"
#include "cli/menu/Menus.h"
#include "cli/prefs/SettingsSession.h"
#include "forms/ScriptedPresenter.h"
#include "menus/Captions.h"

namespace kestrune::cli {
namespace {

using nlohmann::ordered_json;

std::string hex_color(std::int32_t bgr) {
    const auto color = static_cast<std::uint32_t>(bgr);
    return fmt::format("#{:02X}{:02X}{:02X}", color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}

std::string notes_of(const MenuEntry& entry) {
    std::string notes;
    const auto add = [&](const std::string& note) { notes += (notes.empty() ? "" : ", ") + note; };
    if (const auto color = entry.swatch()) add(hex_color(*color));
    if (entry.checked()) add("checked");
    if (!entry.enabled()) add("greyed");
    if (entry.hidden()) add("hidden");
    return notes.empty() ? notes : "[" + notes + "]";
}

void print_tree(const Menus& menus, const MenuEntry& entry, int level) {
    // Two blanks part what is wider than its column from the next.
    std::string line = fmt::format("{:<50}  {:<20}  {:<26}  {}", fmt::format("{:{}}{}", "", 2 * level, entry.caption),
                                   entry.key(), entry.runs(), notes_of(entry));
    line.resize(line.find_last_not_of(' ') + 1);
    fmt::print("{}\n", line);
    for (const MenuEntry& item : menus.open(entry)) print_tree(menus, item, level + 1);
}

ordered_json tree_json(const Menus& menus, const MenuEntry& entry, MenuPath path) {
    path.push_back(entry.caption);
    ordered_json facts{{"caption", entry.caption}, {"path", menu_path_text(path)}};
    if (entry.control) {
        const host::BarControl& control = *entry.control;
        const char access_key = menus::access_key(control.caption);
        facts["access_key"] = access_key ? ordered_json(std::string(1, access_key)) : ordered_json();
        facts["key"] = entry.key();
        facts["action"] = control.on_action;
        facts["parameter"] = control.parameter;
        facts["tooltip"] = control.tooltip;
        facts["begins_group"] = control.begin_group;
        facts["checked"] = entry.checked();
        if (const auto color = entry.swatch()) facts["color"] = hex_color(*color);
    } else {
        facts["visible"] = !entry.hidden();
    }
    // Opening may grey a popup, when it finds nothing to list.
    const std::vector<MenuEntry> items = menus.open(entry);
    facts["enabled"] = entry.enabled();
    if (entry.opens) {
        facts["items"] = ordered_json::array();
        for (const MenuEntry& item : items) facts["items"].push_back(tree_json(menus, item, path));
    }
    return facts;
}

}  // namespace

void show_menus(const MenuOptions& options) {
    MenuPath path;
    if (options.path) path = parse_menu_path(*options.path);
    OpenWorkbook book(options.workbook);
    forms::ScriptedPresenter presenter;  // menus that open ask nothing
    presenter.listen([](const forms::Message& message, forms::MsgBoxResult answer) {
        fmt::print(stderr, "{}\n", message_line(message, answer));
    });
    if (!options.prefs.empty()) static_cast<void>(SettingsSession(presenter, options.prefs).load());
    automation::Trace trace;
    AddIn add_in(book.application(), book.macros(), presenter, trace, &book.formats(), options.prefs);
    if (!options.settings.empty()) add_in.set_options(options.settings);
    const Menus menus(book);
    menus.make(add_in);
    std::vector<MenuEntry> entries = menus.roots();
    if (options.path) {
        Menus::Found found = menus.find(path);
        entries = {std::move(found.entry)};
        path = std::move(found.path);
        path.pop_back();
    }
    if (!options.json) {
        for (const MenuEntry& entry : entries) print_tree(menus, entry, 0);
        return;
    }
    ordered_json trees = ordered_json::array();
    for (const MenuEntry& entry : entries) trees.push_back(tree_json(menus, entry, path));
    fmt::print("{}\n", trees.dump(1, ' ', false, ordered_json::error_handler_t::replace));
}

}  // namespace kestrune::cli
