#include "styles/cLongToggle.h"

#include <algorithm>

#include "automation/ResumeNext.h"
#include "excel/Constants.h"

namespace kestrune::styles {
namespace {

// With its workbook and sheet.
std::string full_address(const excel::Range& cell) { return cell.Address(true, true, excel::xlA1, true); }

}  // namespace

std::shared_ptr<cLongToggle> cLongToggle::Copy() const { return std::make_shared<cLongToggle>(*this); }

bool cLongToggle::IncludesSetting(double value, bool as_read) const {
    const std::vector<double>& values = as_read ? LookFors : Settings;
    return std::ranges::find(values, value) != values.end();
}

bool cLongToggle::is_ambiguous(std::size_t position) const {
    return std::ranges::count(LookFors, LookFors[position - 1]) > 1;
}

std::size_t cLongToggle::position_of(std::optional<double> shown, const excel::Range& cell) const {
    if (last_place_ && last_place_->position <= Settings.size() && LookFors[last_place_->position - 1] == shown &&
        full_address(cell) == last_place_->cell) {
        return last_place_->position;
    }
    // The last entry is not compared: a cell that shows it starts over just as one that shows none.
    for (std::size_t i = 1; i < Settings.size(); ++i) {
        if (LookFors[i - 1] == shown) return i;
    }
    return 0;
}

std::size_t cLongToggle::next_position(std::optional<double> shown, const excel::Range& cell) const {
    const std::size_t here = position_of(shown, cell);
    if (here == 0) return 1;
    const std::size_t count = Settings.size();
    const std::size_t next = here % count + 1;
    // A press that nobody sees is none.
    std::size_t seen = next;
    while (seen != here && LookFors[seen - 1] == shown) seen = seen % count + 1;
    return seen == here ? next : seen;
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
        target = 1;
        attempt.assign(target, [&] { return next_position(shown, cell); });
    }
    attempt([&] { property.write(range, Settings[target - 1]); });
    attempt.assign(LookFors[target - 1], [&] { return property.read(cell); });
    last_place_.reset();
    attempt([&] {
        if (is_ambiguous(target)) last_place_ = Place{full_address(cell), target};
    });
}

}  // namespace kestrune::styles
