#include "core/SheetCommands.h"

#include <algorithm>
#include <vector>

#include "automation/ResumeNext.h"
#include "excel/Application.h"
#include "excel/Constants.h"

namespace kestrune::core {
namespace {

struct Tab {
    std::int32_t index = 0;  // among all sheets, charts too
    excel::Worksheet sheet;
};

// Goes to the tab that is chosen from the visible worksheets, in their order, and the active sheet's place.
template <class Choose>
void go(SharedState& shared, Choose&& choose) {
    const automation::ResumeNext attempt(shared.trace);
    attempt([&] {
        const excel::Workbook workbook = excel::Application(shared.application).ActiveWorkbook();
        const excel::Worksheets sheets = workbook.Worksheets();
        std::vector<Tab> tabs;
        const std::int32_t count = sheets.Count();
        for (std::int32_t i = 1; i <= count; ++i) {
            const excel::Worksheet sheet = sheets.Item(i);
            if (sheet.Visible() == excel::xlSheetVisible) tabs.push_back({sheet.Index(), sheet});
        }
        if (tabs.empty()) return;
        const automation::ObjectRef active = workbook.ActiveSheet();
        // A chart has a place among the sheets as well.
        const std::int32_t now = active ? excel::Worksheet(active).Index() : 0;
        const Tab& chosen = choose(tabs, now);
        if (chosen.index != now) chosen.sheet.Activate();
    });
}

}  // namespace

void next_worksheet(SharedState& shared, std::int32_t) {
    go(shared, [](const std::vector<Tab>& tabs, std::int32_t now) -> const Tab& {
        const auto next = std::ranges::upper_bound(tabs, now, {}, &Tab::index);
        return next == tabs.end() ? tabs.front() : *next;
    });
}

void previous_worksheet(SharedState& shared, std::int32_t) {
    go(shared, [](const std::vector<Tab>& tabs, std::int32_t now) -> const Tab& {
        const auto here = std::ranges::lower_bound(tabs, now, {}, &Tab::index);
        return here == tabs.begin() ? tabs.back() : *std::prev(here);
    });
}

void first_worksheet(SharedState& shared, std::int32_t) {
    go(shared, [](const std::vector<Tab>& tabs, std::int32_t) -> const Tab& { return tabs.front(); });
}

void last_worksheet(SharedState& shared, std::int32_t) {
    go(shared, [](const std::vector<Tab>& tabs, std::int32_t) -> const Tab& { return tabs.back(); });
}

}  // namespace kestrune::core
