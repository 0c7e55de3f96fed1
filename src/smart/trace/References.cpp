#include "smart/trace/References.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

#include "automation/Text.h"

namespace kestrune::smart {
namespace {

using automation::same_text;
using core::CellLink;

bool in_workbook_of(const CellLink& link, const TracedCell& cell) { return same_text(link.workbook, cell.workbook); }

bool on_sheet_of(const CellLink& link, const TracedCell& cell) {
    return in_workbook_of(link, cell) && same_text(link.sheet, cell.sheet);
}

std::string lower_case(std::string text) {
    for (char& c : text) c = automation::lower(c);
    return text;
}

// The names of the open workbooks.
std::vector<std::string> open_workbooks(const excel::Application& application) {
    const excel::Workbooks workbooks = application.Workbooks();
    std::vector<std::string> names;
    const std::int32_t count = workbooks.Count();
    for (std::int32_t i = 1; i <= count; ++i) names.push_back(workbooks.Item(i).Name());
    return names;
}

bool holds(const std::vector<std::string>& names, std::string_view name) {
    return std::ranges::any_of(names, [&](const std::string& one) { return same_text(one, name); });
}

}  // namespace

std::vector<CellLink> grouped(std::vector<CellLink> links, const TracedCell& cell) {
    struct Listed {
        std::tuple<int, std::size_t, std::size_t> place;  // how far away, which workbook and which sheet of these
        CellLink link;
    };
    std::vector<Listed> listed;
    std::map<std::string, std::size_t> workbooks;
    std::map<std::string, std::size_t> sheets;
    std::set<std::string> known;
    for (CellLink& link : links) {
        const std::string sheet = lower_case(link.workbook + "\n" + link.sheet);
        if (!known.insert(sheet + "\n" + lower_case(link.address)).second) continue;
        const int distance = on_sheet_of(link, cell) ? 0 : in_workbook_of(link, cell) ? 1 : 2;
        const std::size_t book_place = workbooks.try_emplace(lower_case(link.workbook), workbooks.size()).first->second;
        const std::size_t sheet_place = sheets.try_emplace(sheet, sheets.size()).first->second;
        listed.push_back({{distance, book_place, sheet_place}, std::move(link)});
    }
    std::ranges::stable_sort(listed, {}, &Listed::place);
    std::vector<CellLink> result;
    result.reserve(listed.size());
    for (Listed& one : listed) result.push_back(std::move(one.link));
    return result;
}

std::string sheet_text(const CellLink& link, const TracedCell& cell) {
    return in_workbook_of(link, cell) ? link.sheet : "[" + link.workbook + "]" + link.sheet;
}

std::string cells_text(const CellLink& link, const TracedCell& cell) {
    if (link.sheet.empty()) return "[" + link.workbook + "]" + link.address;
    std::string address = link.address;
    std::erase(address, '$');
    return on_sheet_of(link, cell) ? address : sheet_text(link, cell) + "!" + address;
}

std::string path_of(const CellLink& link) {
    if (link.folder.empty()) return link.workbook;
    const char last = link.folder.back();
    if (last == '\\' || last == '/') return link.folder + link.workbook;
    const bool slashes = link.folder.find('\\') == std::string::npos && last != ':';
    return link.folder + (slashes ? '/' : '\\') + link.workbook;
}

bool is_open(const excel::Application& application, std::string_view workbook) {
    return holds(open_workbooks(application), workbook);
}

std::vector<CellLink> of_closed_workbooks(const excel::Application& application, const std::vector<CellLink>& links) {
    const std::vector<std::string> open = open_workbooks(application);
    std::vector<CellLink> closed;
    for (const CellLink& link : links) {
        const bool known =
            std::ranges::any_of(closed, [&](const CellLink& one) { return same_text(path_of(one), path_of(link)); });
        if (!known && !holds(open, link.workbook)) closed.push_back(link);
    }
    return closed;
}

}  // namespace kestrune::smart
