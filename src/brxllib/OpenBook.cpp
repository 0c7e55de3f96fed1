#include "brxllib/OpenBook.h"

#include <algorithm>

#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "excel/Constants.h"
#include "formula/SheetName.h"

namespace kestrune::brxllib {
namespace {

using automation::same_text;
using automation::Value;

// Versions and stand-ins of Excel lack one thing or another: what fails is not there, and nobody needs to hear of it.
template <class Statement>
void if_possible(Statement&& statement) {
    const automation::Trace nobody;
    automation::ResumeNext{nobody}(std::forward<Statement>(statement));
}

std::string lower_case(std::string_view text) {
    std::string out(text);
    for (char& c : out) c = automation::lower(c);
    return out;
}

std::string key_of(std::string_view sheet, std::string_view name) {
    return lower_case(sheet).append("!").append(lower_case(name));
}

std::optional<formula::Area> area_of(const excel::Range& range) {
    const std::int32_t row = range.Row();
    const std::int32_t column = range.Column();
    return formula::Area{row, column, row + range.Rows().Count() - 1, column + range.Columns().Count() - 1};
}

std::vector<std::string> texts_of(const Value& value) {
    std::vector<std::string> texts;
    if (const automation::Array* array = value.array()) {
        for (const Value& element : array->elements()) texts.push_back(automation::to_text(element));
    } else if (value.is(Value::Kind::String)) {
        texts.push_back(automation::to_text(value));
    }
    return texts;
}

Table table_of(const excel::ListObject& object, const std::string& sheet) {
    Table table;
    table.name = object.Name();
    table.sheet = sheet;
    table.all = *area_of(object.Range());
    table.headers = object.ShowHeaders();
    table.totals = object.ShowTotals();
    if (table.headers) if_possible([&] { table.columns = texts_of(object.HeaderRowRange().Value()); });
    return table;
}

}  // namespace

OpenBook::OpenBook(const excel::Workbook& workbook) : workbook_(workbook), name_(workbook.Name()) {
    if_possible([&] { folder_ = workbook.Path(); });
}

const std::vector<std::string>& OpenBook::sheets() {
    if (!sheets_) {
        sheets_.emplace();
        const excel::Worksheets worksheets = workbook_.Worksheets();
        const std::int32_t count = worksheets.Count();
        for (std::int32_t i = 1; i <= count; ++i) sheets_->push_back(worksheets.Item(i).Name());
    }
    return *sheets_;
}

std::optional<std::size_t> OpenBook::sheet(std::string_view sheet_name) {
    const auto& list = sheets();
    const auto found = std::ranges::find_if(list, [&](const auto& name) { return same_text(name, sheet_name); });
    if (found == list.end()) return std::nullopt;
    return static_cast<std::size_t>(found - list.begin());
}

const std::vector<DefinedName>& OpenBook::names() {
    if (names_) return *names_;
    names_.emplace();
    const excel::Names list = workbook_.Names();
    const std::int32_t count = list.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        if_possible([&] {
            const excel::Name entry = list.Item(i);
            DefinedName name{{}, entry.text(), entry.RefersToR1C1()};
            if (const auto mark = name.name.rfind('!'); mark != std::string::npos) {
                name.sheet = formula::parse_sheet_prefix(std::string_view(name.name).substr(0, mark + 1)).first_sheet;
                name.name.erase(0, mark + 1);
            }
            names_by_key_.emplace(key_of(name.sheet, name.name), names_->size());
            names_->push_back(std::move(name));
        });
    }
    return *names_;
}

const DefinedName* OpenBook::find_in_scope(std::string_view sheet_name, std::string_view text) {
    const auto& list = names();
    const auto found = names_by_key_.find(key_of(sheet_name, text));
    return found == names_by_key_.end() ? nullptr : &list[found->second];
}

const DefinedName* OpenBook::find_name(std::string_view sheet_name, std::string_view text) {
    const DefinedName* own = sheet_name.empty() ? nullptr : find_in_scope(sheet_name, text);
    return own ? own : find_in_scope({}, text);
}

const std::vector<Table>& OpenBook::tables() {
    if (tables_) return *tables_;
    tables_.emplace();
    for (const std::string& sheet_name : sheets()) {
        if_possible([&] {
            const excel::ListObjects list = workbook_.Worksheets().Item(sheet_name).ListObjects();
            const std::int32_t count = list.Count();
            for (std::int32_t i = 1; i <= count; ++i) tables_->push_back(table_of(list.Item(i), sheet_name));
        });
    }
    return *tables_;
}

const Table* OpenBook::find_table(std::string_view table_name) {
    const auto& list = tables();
    const auto found =
        std::ranges::find_if(list, [&](const Table& table) { return same_text(table.name, table_name); });
    return found == list.end() ? nullptr : &*found;
}

const Table* OpenBook::table_at(std::string_view sheet_name, formula::Position at) {
    const auto& list = tables();
    const auto found = std::ranges::find_if(
        list, [&](const Table& table) { return same_text(table.sheet, sheet_name) && table.all.contains(at); });
    return found == list.end() ? nullptr : &*found;
}

std::string OpenBook::link(std::size_t number) {
    if (!links_) {
        links_.emplace();
        if_possible([&] { links_ = texts_of(workbook_.LinkSources(excel::xlExcelLinks)); });
    }
    return number >= 1 && number <= links_->size() ? (*links_)[number - 1] : std::string();
}

OpenBooks::OpenBooks(const excel::Application& application) {
    const excel::Workbooks workbooks = application.Workbooks();
    const std::int32_t count = workbooks.Count();
    for (std::int32_t i = 1; i <= count; ++i) books_.emplace_back(workbooks.Item(i));
}

OpenBook* OpenBooks::find(std::string_view name) {
    const auto found = std::ranges::find_if(books_, [&](const OpenBook& book) { return same_text(book.name(), name); });
    return found == books_.end() ? nullptr : &*found;
}

}  // namespace kestrune::brxllib
