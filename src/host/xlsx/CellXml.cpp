#include "host/xlsx/CellXml.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <stdexcept>

#include "formula/A1.h"
#include "host/model/Workbook.h"
#include "host/xlsx/XmlCharacters.h"

namespace kestrune::host {
namespace {

struct ErrorName {
    CellError error;
    std::string_view text;
};

constexpr std::array<ErrorName, 14> error_names{{
    {CellError::Null, "#NULL!"},
    {CellError::Div0, "#DIV/0!"},
    {CellError::Value, "#VALUE!"},
    {CellError::Ref, "#REF!"},
    {CellError::Name, "#NAME?"},
    {CellError::Num, "#NUM!"},
    {CellError::NA, "#N/A"},
    {CellError::GettingData, "#GETTING_DATA"},
    {CellError::Spill, "#SPILL!"},
    {CellError::Connect, "#CONNECT!"},
    {CellError::Blocked, "#BLOCKED!"},
    {CellError::Unknown, "#UNKNOWN!"},
    {CellError::Field, "#FIELD!"},
    {CellError::Calc, "#CALC!"},
}};

bool same_word(std::string_view a, std::string_view b) {
    const auto upper = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; };
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (upper(a[i]) != upper(b[i])) return false;
    }
    return true;
}

// Reads exactly `digits` digits followed by `after` (0: anything).
bool take(std::string_view& text, std::size_t digits, char after, int& value) {
    if (text.size() < digits) return false;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + digits, value);
    if (fault != std::errc{} || end != text.data() + digits || value < 0) return false;
    text.remove_prefix(digits);
    if (after == 0) return true;
    if (text.empty() || text.front() != after) return false;
    text.remove_prefix(1);
    return true;
}

std::optional<double> parse_time(std::string_view text) {
    int hours = 0;
    int minutes = 0;
    double seconds = 0;
    if (!take(text, 2, ':', hours) || !take(text, 2, 0, minutes)) return std::nullopt;
    if (text.starts_with(':')) {
        text.remove_prefix(1);
        const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), seconds);
        if (fault != std::errc{} || seconds < 0) return std::nullopt;
    }
    if (hours > 24 || minutes > 59 || seconds >= 61) return std::nullopt;
    return (hours * 3600.0 + minutes * 60.0 + seconds) / 86400.0;
}

void append_text_element(std::string& out, std::string_view prefix, std::string_view name, std::string_view text) {
    out.append("<").append(prefix).append(name);
    if (needs_preserve(text)) out += " xml:space=\"preserve\"";
    out += '>';
    append_escaped(out, text);
    out.append("</").append(prefix).append(name).append(">");
}

void append_value(std::string& out, std::string_view prefix, std::string_view value) {
    out.append("<").append(prefix).append("v>");
    append_escaped(out, value);
    out.append("</").append(prefix).append("v>");
}

void append_formula(std::string& out, Sheet& sheet, Position at, const Cell& cell, std::string_view prefix) {
    const Formula& formula = sheet.formulas()[cell.formula - 1];
    const bool spreads = formula.kind == Formula::Kind::Array || formula.kind == Formula::Kind::DataTable;
    if (spreads && formula.anchor != at) return;
    if (!spreads) {
        append_text_element(out, prefix, "f", sheet.formula_at(at));
        return;
    }
    out.append("<").append(prefix).append("f");
    if (!formula.attributes.empty()) {
        out.append(" ").append(formula.attributes);
    } else {
        out.append(" t=\"array\" ref=\"").append(formula::area_text(formula.reach)).append("\"");
    }
    if (formula.text.empty()) {
        out += "/>";
        return;
    }
    if (needs_preserve(formula.text)) out += " xml:space=\"preserve\"";
    out += '>';
    append_escaped(out, formula.text);
    out.append("</").append(prefix).append("f>");
}

CellXml string_xml(Workbook& book, std::uint32_t string, bool formula, std::string_view prefix) {
    CellXml xml;
    if (!formula && string < book.strings.loaded_count()) {
        xml.type = "s";
        append_value(xml.content, prefix, std::to_string(string));
        return xml;
    }
    const StringTable::Entry& entry = book.strings[string];
    if (formula) {
        xml.type = "str";
        append_value(xml.content, prefix, encode_xstring(entry.text));
        return xml;
    }
    xml.type = "inlineStr";
    xml.content.append("<").append(prefix).append("is>");
    if (entry.rich.empty()) {
        append_text_element(xml.content, prefix, "t", encode_xstring(entry.text));
    } else {
        xml.content += entry.rich;
    }
    xml.content.append("</").append(prefix).append("is>");
    return xml;
}

}  // namespace

std::string_view error_text(CellError error) {
    for (const auto& row : error_names) {
        if (row.error == error) return row.text;
    }
    return "#UNKNOWN!";
}

std::optional<CellError> parse_error(std::string_view text) {
    for (const auto& row : error_names) {
        if (same_word(row.text, text)) return row.error;
    }
    return std::nullopt;
}

void append_number(std::string& out, double number) {
    if (!std::isfinite(number)) throw std::domain_error("a cell cannot hold a number that is not finite");
    if (number == 0) number = 0;  // Excel knows no negative zero
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    for (const char* c = digits.data(); c != end; ++c) out += *c == 'e' ? 'E' : *c;
}

std::optional<double> parse_iso_date(std::string_view text, bool date1904) {
    if (text.size() >= 3 && text[2] == ':') return parse_time(text);
    int year = 0;
    int month = 0;
    int day = 0;
    if (!take(text, 4, '-', year) || !take(text, 2, '-', month) || !take(text, 2, 0, day)) return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(day))};
    if (!date.ok()) return std::nullopt;
    const auto days = std::chrono::sys_days(date).time_since_epoch().count();
    // Serial 1 is 1 January 1900, and serial 60 a 29 February that never was; with the other epoch 1 January 1904 is 0.
    auto serial = static_cast<double>(days + 25569);
    if (date1904) {
        serial -= 1462;
    } else if (serial < 61) {
        serial -= 1;
    }
    if (text.empty()) return serial;
    if (text.front() != 'T' && text.front() != ' ') return std::nullopt;
    const auto time = parse_time(text.substr(1));
    if (!time) return std::nullopt;
    return serial + *time;
}

CellXml cell_xml(Sheet& sheet, Position at, const Cell& cell, std::string_view prefix) {
    CellXml xml;
    const bool formula = cell.formula != 0;
    switch (cell.kind) {
        case CellKind::Blank:
            break;
        case CellKind::Number: {
            std::string number;
            append_number(number, cell.number);
            append_value(xml.content, prefix, number);
            break;
        }
        case CellKind::Boolean:
            xml.type = "b";
            append_value(xml.content, prefix, cell.boolean ? "1" : "0");
            break;
        case CellKind::Error:
            xml.type = "e";
            append_value(xml.content, prefix, error_text(cell.error));
            break;
        case CellKind::String:
            xml = string_xml(sheet.workbook(), cell.string, formula, prefix);
            break;
    }
    if (formula) {
        std::string element;
        append_formula(element, sheet, at, cell, prefix);
        xml.content.insert(0, element);
    }
    return xml;
}

}  // namespace kestrune::host
