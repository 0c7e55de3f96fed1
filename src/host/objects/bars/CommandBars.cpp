#include "host/objects/bars/CommandBars.h"

#include <array>

namespace kestrune::host {
namespace {

struct Popup {
    const char* caption;
    std::int32_t id;
};

constexpr auto worksheet_menus = std::to_array<Popup>({{"&File", 30002},
                                                       {"&Edit", 30003},
                                                       {"&View", 30004},
                                                       {"&Insert", 30005},
                                                       {"F&ormat", 30006},
                                                       {"&Tools", 30007},
                                                       {"&Data", 30011},
                                                       {"&Window", 30009},
                                                       {"&Help", 30010}});
constexpr auto chart_menus = std::to_array<Popup>({{"&File", 30002},
                                                   {"&Edit", 30003},
                                                   {"&View", 30004},
                                                   {"&Insert", 30005},
                                                   {"F&ormat", 30006},
                                                   {"&Tools", 30007},
                                                   {"&Chart", 30022},
                                                   {"&Window", 30009},
                                                   {"&Help", 30010}});

std::shared_ptr<CommandBar> make_bar(std::string name, std::int32_t type, std::int32_t position) {
    auto bar = std::make_shared<CommandBar>();
    bar->name = std::move(name);
    bar->type = type;
    bar->position = position;
    bar->built_in = true;
    bar->visible = type != msoBarTypePopup;
    return bar;
}

template <class Popups>
std::shared_ptr<CommandBar> menu_bar(std::string name, const Popups& popups) {
    auto bar = make_bar(std::move(name), msoBarTypeMenuBar, msoBarTop);
    for (const Popup& popup : popups) {
        auto control = std::make_shared<BarControl>();
        control->type = msoControlPopup;
        control->id = popup.id;
        control->built_in = true;
        control->caption = popup.caption;
        control->bar = bar;
        control->popup = make_bar({}, msoBarTypePopup, msoBarPopup);
        control->popup->opened_by = control;
        bar->controls.push_back(std::move(control));
    }
    return bar;
}

}  // namespace

std::shared_ptr<CommandBars> CommandBars::built_in() {
    auto all = std::make_shared<CommandBars>();
    all->bars = {menu_bar("Worksheet Menu Bar", worksheet_menus),   menu_bar("Chart Menu Bar", chart_menus),
                 make_bar("Standard", msoBarTypeNormal, msoBarTop), make_bar("Formatting", msoBarTypeNormal, msoBarTop),
                 make_bar("Cell", msoBarTypePopup, msoBarPopup),    make_bar("Column", msoBarTypePopup, msoBarPopup),
                 make_bar("Row", msoBarTypePopup, msoBarPopup)};
    return all;
}

void discard(CommandBar& bar) {
    bar.deleted = true;
    for (const auto& control : bar.controls) {
        control->bar.reset();
        if (control->popup) discard(*control->popup);
    }
}

}  // namespace kestrune::host
