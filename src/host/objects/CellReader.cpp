#include "host/objects/CellReader.h"

#include "formula/Convert.h"
#include "host/objects/CellEntry.h"
#include "host/objects/ErrorValues.h"
#include "number_format/GeneralText.h"

namespace kestrune::host {

using number_format::full_number_text;
namespace {

// The last instant of December 31, 9999: later numbers are no dates.
constexpr double after_last_date = 2'958'466;

}  // namespace

const NumberFormat& CellReader::number_format(StyleId style) {
    const std::uint32_t number = cells_.styles().formats[style].number_format;
    const auto known = formats_.find(number);
    if (known != formats_.end()) return known->second;
    return formats_.emplace(number, NumberFormat(cells_.styles().number_format(number))).first->second;
}

const std::string& CellReader::string_of(const Cell& cell) const { return cells_.workbook().strings[cell.string].text; }

automation::Value CellReader::value(const Cell& cell, Dates dates) {
    switch (cell.kind) {
        case CellKind::Blank:
            return {};
        case CellKind::Number: {
            if (dates == Dates::AsNumbers || !number_format(cell.style).is_date_or_time()) return cell.number;
            const double serial = cell.number + (cells_.workbook().date1904 ? days_of_1904 : 0);
            if (!(serial >= 0 && serial < after_last_date)) return cell.number;
            return automation::Date{serial};
        }
        case CellKind::Boolean:
            return cell.boolean;
        case CellKind::Error:
            return automation::Error{code_of_error(cell.error)};
        case CellKind::String:
            return string_of(cell);
    }
    return {};
}

std::string CellReader::constant_text(const Cell& cell) const {
    switch (cell.kind) {
        case CellKind::Blank:
            return {};
        case CellKind::Number:
            return full_number_text(cell.number);
        case CellKind::Boolean:
            return cell.boolean ? "TRUE" : "FALSE";
        case CellKind::Error:
            return std::string(text_of_error(cell.error));
        case CellKind::String:
            return string_of(cell);
    }
    return {};
}

std::string CellReader::formula(Position at, const Cell& cell) {
    if (cell.formula == 0) return constant_text(cell);
    const std::string text = cells_.sheet().formula_at(at);
    return text.empty() ? constant_text(cell) : "=" + text;
}

std::string CellReader::formula_r1c1(Position at, const Cell& cell) {
    if (cell.formula == 0) return constant_text(cell);
    const std::string text = cells_.sheet().formula_at(at);
    return text.empty() ? constant_text(cell) : "=" + formula::to_r1c1(text, at);
}

std::string CellReader::text(const Cell& cell) {
    switch (cell.kind) {
        case CellKind::Blank:
            return {};
        case CellKind::Number:
            return number_format(cell.style).render(cell.number, {cells_.workbook().date1904, std::nullopt}).text;
        case CellKind::Boolean:
            return number_format(cell.style).render_boolean(cell.boolean).text;
        case CellKind::Error:
            return std::string(text_of_error(cell.error));
        case CellKind::String:
            return number_format(cell.style).render_text(string_of(cell)).text;
    }
    return {};
}

}  // namespace kestrune::host
