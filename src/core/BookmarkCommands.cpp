#include "core/BookmarkCommands.h"

#include <algorithm>
#include <compare>
#include <string>
#include <vector>

#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "core/bridges/Product.h"
#include "core/bridges/Selection.h"
#include "excel/Constants.h"
#include "forms/MsgBox.h"

namespace kestrune::core {
namespace {

using automation::ResumeNext;

constexpr std::string_view bookmark_start = "_bbr.KestruneBookmark.";
constexpr std::string_view bookmark_end = ".ebr";
constexpr std::size_t longest_reference = 255;  // characters of an address that Excel gives whole

struct Place {
    std::int32_t sheet = 0;  // among all sheets, from 1
    std::int32_t row = 0;
    std::int32_t column = 0;

    auto operator<=>(const Place&) const = default;
};

struct Bookmark {
    Place place;
    excel::Range cells;
};

Place place_of(const excel::Range& cells) { return {cells.Worksheet().Index(), cells.Row(), cells.Column()}; }

// Calls visit(name) for each bookmark's name, the last one first, so that it may delete it.
template <class Visit>
void visit_bookmarks(const ResumeNext& attempt, const excel::Workbook& workbook, Visit&& visit) {
    const excel::Names names = workbook.Names();
    for (std::int32_t i = names.Count(); i >= 1; --i) {
        attempt([&] {
            const excel::Name name = names.Item(i);
            const std::string text = name.text();
            const bool ours =
                text.size() >= bookmark_start.size() &&
                automation::same_text(std::string_view(text).substr(0, bookmark_start.size()), bookmark_start);
            if (ours) visit(name);
        });
    }
}

std::vector<Bookmark> bookmarks_of(const excel::Workbook& workbook) {
    // One whose cells are gone leads nowhere.
    const automation::Trace nobody;
    const ResumeNext attempt(nobody);
    std::vector<Bookmark> bookmarks;
    visit_bookmarks(attempt, workbook, [&](const excel::Name& name) {
        const excel::Range cells(name.RefersToRange());
        if (cells.Worksheet().Visible() == excel::xlSheetVisible) bookmarks.push_back({place_of(cells), cells});
    });
    std::ranges::sort(bookmarks, {}, &Bookmark::place);
    return bookmarks;
}

template <class Choose>
void go(SharedState& shared, Choose&& choose) {
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        const excel::Application application(shared.application);
        const std::vector<Bookmark> bookmarks = bookmarks_of(application.ActiveWorkbook());
        if (bookmarks.empty()) {
            forms::MsgBox(shared.presenter, shared.general().message(Text::NoBookmarks), forms::vbInformation,
                          product_title);
            return;
        }
        Place now;
        if (const excel::Range cell = application.ActiveCell()) now = place_of(cell);
        application.Goto(choose(bookmarks, now).cells);
    });
}

// "='Sheet 1'!$A$1,'Sheet 1'!$C$3:$D$4"
std::string reference_to(const excel::Range& cells) {
    std::string sheet = "'";
    for (const char c : cells.Worksheet().Name()) sheet += c == '\'' ? "''" : std::string(1, c);
    sheet += "'!";
    std::string address = cells.Address();
    if (address.size() >= longest_reference) address = cells.Cells(1, 1).Address();
    std::string reference = "=" + sheet;
    for (const char c : address) {
        reference += c;
        if (c == ',') reference += sheet;
    }
    return reference;
}

}  // namespace

void set_bookmark(SharedState& shared, std::int32_t) {
    const excel::Range selection = selected_range(shared);
    if (!selection) return;
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        const excel::Names names = excel::Application(shared.application).ActiveWorkbook().Names();
        const std::string stem =
            std::string(bookmark_start) + shared.general().name_text(shared.general().present_time_text());
        const automation::Trace nobody;
        const auto is_taken = [&](const std::string& name) {
            excel::Name found;
            return ResumeNext(nobody).assign(found, [&] { return names.Item(name); }) && found;
        };
        // Two of one second are two bookmarks.
        std::string name = stem + std::string(bookmark_end);
        for (std::int32_t i = 2; is_taken(name); ++i) name = stem + "_" + std::to_string(i) + std::string(bookmark_end);
        names.Add(name, reference_to(selection), false);
    });
}

void next_bookmark(SharedState& shared, std::int32_t) {
    go(shared, [](const std::vector<Bookmark>& bookmarks, const Place& now) -> const Bookmark& {
        const auto next = std::ranges::upper_bound(bookmarks, now, {}, &Bookmark::place);
        return next == bookmarks.end() ? bookmarks.front() : *next;
    });
}

void previous_bookmark(SharedState& shared, std::int32_t) {
    go(shared, [](const std::vector<Bookmark>& bookmarks, const Place& now) -> const Bookmark& {
        const auto here = std::ranges::lower_bound(bookmarks, now, {}, &Bookmark::place);
        return here == bookmarks.begin() ? bookmarks.back() : *std::prev(here);
    });
}

void remove_bookmarks(SharedState& shared, std::int32_t) {
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        visit_bookmarks(attempt, excel::Application(shared.application).ActiveWorkbook(),
                        [](const excel::Name& name) { name.Delete(); });
    });
}

}  // namespace kestrune::core
