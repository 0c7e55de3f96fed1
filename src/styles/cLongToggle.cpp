#include "styles/cLongToggle.h"

#include <algorithm>

#include "automation/ResumeNext.h"

namespace kestrune::styles {

std::shared_ptr<cLongToggle> cLongToggle::Copy() const { return std::make_shared<cLongToggle>(*this); }

bool cLongToggle::IncludesSetting(double value, bool as_read) const {
    const std::vector<double>& values = as_read ? LookFors : Settings;
    return std::ranges::find(values, value) != values.end();
}

std::size_t cLongToggle::next_position(std::optional<double> shown) const {
    // The last entry is not compared: a cell that shows it starts over just as one that shows none.
    for (std::size_t i = 1; i < Settings.size(); ++i) {
        if (LookFors[i - 1] == shown) return i + 1;
    }
    return 1;
}

void cLongToggle::step(const automation::Trace& trace, const excel::Range& range, std::int32_t position,
                       const Property& property) {
    if (!range || position < 0 || Settings.empty() || std::cmp_greater(position, Settings.size())) return;
    for (std::size_t i = LookFors.size(); i < Settings.size(); ++i) LookFors.push_back(Settings[i]);

    const automation::ResumeNext attempt(trace);
    excel::Range cell;
    attempt.assign(cell, [&] { return range.Cells(1, 1); });
    std::size_t target = static_cast<std::size_t>(position);
    if (position == 0) {
        std::optional<double> shown;
        attempt.assign(shown, [&] { return property.read(cell); });
        target = next_position(shown);
    }
    attempt([&] { property.write(range, Settings[target - 1]); });
    attempt.assign(LookFors[target - 1], [&] { return property.read(cell); });
}

}  // namespace kestrune::styles
