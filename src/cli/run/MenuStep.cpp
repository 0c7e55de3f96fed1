#include "cli/run/MenuStep.h"

#include <fmt/format.h>

#include "cli/Failure.h"
#include "cli/menu/Menus.h"

namespace kestrune::cli {
namespace {

Menus::Found find(const Menus& menus, const MenuPath& path) {
    try {
        return menus.find(path);
    } catch (const Failure& failure) {
        throw Failure(fmt::format("menu:{}: {}", menu_path_text(path), failure.what()));
    }
}

}  // namespace

MenuReport run_menu_step(OpenWorkbook& book, const MenuPath& path) {
    const Menus menus(book);
    const auto [entry, way] = find(menus, path);
    MenuReport report{menu_path_text(way), entry.runs(), true};
    const auto refuse = [&](std::string_view why) { throw Failure(fmt::format("menu:{}: {}", report.clicked, why)); };
    if (!entry.enabled()) refuse("is greyed out; what it does cannot be done now");
    if (entry.opens) refuse("is a menu; a click goes to one of its items, by caption or number");
    report.ran = !(book.click(entry.control) == automation::Value(false));
    return report;
}

}  // namespace kestrune::cli
