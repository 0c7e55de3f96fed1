#include "cli/menu/Menus.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>

#include "automation/Caption.h"
#include "cli/Failure.h"
#include "cli/menu/Nearest.h"

namespace kestrune::cli {
namespace {

constexpr std::string_view menu_bar_name = "Worksheet Menu Bar";

std::string shown_caption(std::string_view caption) { return automation::one_line(automation::plain_caption(caption)); }

MenuEntry entry_of(const std::shared_ptr<host::BarControl>& control) {
    return {shown_caption(control->caption), control, control->popup};
}

// A caption as somebody types it: the dots that promise a dialog are seldom typed.
std::string_view without_dots(std::string_view caption) {
    return caption.ends_with("...") ? automation::trimmed(caption.substr(0, caption.size() - 3)) : caption;
}

bool is_called(const MenuEntry& entry, std::string_view part) {
    return automation::same_text(entry.caption, part) ||
           automation::same_caption(without_dots(entry.caption), without_dots(part));
}

const MenuEntry* find_in(const std::vector<MenuEntry>& entries, const std::string& part) {
    const auto named = std::ranges::find_if(entries, [&](const MenuEntry& entry) { return is_called(entry, part); });
    if (named != entries.end()) return &*named;
    std::size_t position = 0;
    const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), position);
    if (error != std::errc{} || end != part.data() + part.size()) return nullptr;
    return position >= 1 && position <= entries.size() ? &entries[position - 1] : nullptr;
}

// Why a part of a way leads nowhere: "there is no 'Formt' on Kestrune; nearest: 'Format', ...".
std::string dead_end(const std::vector<MenuEntry>& entries, const std::string& part, const MenuPath& so_far) {
    const std::string where = so_far.empty() ? "on the menu bar" : fmt::format("on {}", menu_path_text(so_far));
    if (entries.empty()) return fmt::format("there is no '{}' {}, which has no items", part, where);
    const std::string count = fmt::format("{} item{}", entries.size(), entries.size() == 1 ? "" : "s");
    if (part.find_first_not_of("0123456789") == std::string::npos) {
        return fmt::format("there is no item {} {}, which has {}", part, where, count);
    }
    std::vector<std::string> captions;
    for (const MenuEntry& entry : entries) captions.push_back(entry.caption);
    return fmt::format("there is no '{}' {}, which has {}; nearest: {}", part, where, count,
                       nearest_texts(part, captions));
}

}  // namespace

std::string MenuEntry::key() const {
    constexpr std::string_view mark = "Shortcut: ";
    if (!control) return {};
    if (!control->shortcut.empty()) return control->shortcut;
    const std::size_t found = control->tooltip.rfind(mark);
    return found == std::string::npos ? std::string() : control->tooltip.substr(found + mark.size());
}

std::string MenuEntry::runs() const {
    constexpr std::string_view module = "mDOM.";
    if (!control || opens) return {};
    if (!control->parameter.empty()) return automation::one_line(control->parameter);
    const std::string& action = control->on_action;
    return action.starts_with(module) ? action.substr(module.size()) : action;
}

std::optional<std::int32_t> MenuEntry::swatch() const {
    const auto* color = control ? control->picture.if_is<std::int32_t>() : nullptr;
    return color ? std::optional(*color) : std::nullopt;
}

void Menus::make(AddIn& add_in) const {
    if (roots().empty()) automation::call(add_in.commands(), "CreateBRMenus");
}

std::vector<MenuEntry> Menus::roots() const {
    std::vector<MenuEntry> found;
    const host::CommandBars* all = book_.command_bars();
    if (!all) return found;
    for (const auto& bar : all->bars) {
        if (bar->name == menu_bar_name) {
            for (const auto& control : bar->controls) {
                if (!control->built_in && control->visible) found.push_back(entry_of(control));
            }
        } else if (!bar->built_in && bar->type == host::msoBarTypeNormal) {
            found.push_back({shown_caption(bar->name) + " (toolbar)", nullptr, bar});
        }
    }
    return found;
}

std::vector<MenuEntry> Menus::open(const MenuEntry& entry) const {
    std::vector<MenuEntry> items;
    if (!entry.opens || !entry.enabled()) return items;
    if (entry.control) book_.click(entry.control);
    for (const auto& control : entry.opens->controls) {
        if (control->visible) items.push_back(entry_of(control));
    }
    return items;
}

Menus::Found Menus::find(const MenuPath& path) const {
    Found found;
    std::vector<MenuEntry> entries = roots();
    for (const std::string& part : path) {
        if (!found.path.empty()) {
            const std::string here = menu_path_text(found.path);
            if (!found.entry.opens) throw Failure(fmt::format("{} opens no menu that could have '{}'", here, part));
            if (found.entry.hidden()) throw Failure(fmt::format("{} is hidden; Kestrune/Show Toolbar shows it", here));
            if (!found.entry.enabled()) throw Failure(fmt::format("{} is greyed out and does not open", here));
            entries = open(found.entry);
        }
        const MenuEntry* next = find_in(entries, part);
        if (!next) throw Failure(dead_end(entries, part, found.path));
        found.entry = *next;
        found.path.push_back(next->caption);
    }
    return found;
}

}  // namespace kestrune::cli
