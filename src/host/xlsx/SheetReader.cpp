#include "host/xlsx/SheetReader.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <unordered_map>
#include <utility>

#include "formula/A1.h"
#include "host/model/Workbook.h"
#include "host/xlsx/AreaText.h"
#include "host/xlsx/CellXml.h"
#include "host/xlsx/RowXml.h"
#include "host/xlsx/SheetSettings.h"
#include "host/xlsx/XmlCharacters.h"
#include "host/xlsx/XmlParser.h"

namespace kestrune::host {
namespace {

// Of one array formula or data table: sixteen columns from top to bottom, more than anybody's Excel calculates. Files
// that claim the whole sheet would keep every command busy with its billions of cells.
constexpr std::int64_t most_results = std::int64_t{1} << 24;

enum class CellType { Number, Shared, Text, Boolean, Error, Inline, Date };

std::optional<CellType> cell_type(std::string_view name) {
    if (name == "n") return CellType::Number;
    if (name == "s") return CellType::Shared;
    if (name == "str") return CellType::Text;
    if (name == "b") return CellType::Boolean;
    if (name == "e") return CellType::Error;
    if (name == "inlineStr") return CellType::Inline;
    if (name == "d") return CellType::Date;
    return std::nullopt;
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && static_cast<unsigned char>(text.front()) <= ' ') text.remove_prefix(1);
    while (!text.empty() && static_cast<unsigned char>(text.back()) <= ' ') text.remove_suffix(1);
    return text;
}

template <class Number>
std::optional<Number> parsed(std::string_view text) {
    Number value{};
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (fault != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return value;
}

bool looks_like_cell(std::string_view text) {
    const auto letters = std::find_if(text.begin(), text.end(), [](char c) { return c < 'A' || c > 'Z'; });
    return letters != text.begin() && letters != text.end() &&
           std::all_of(letters, text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

class SheetReader : public XmlParser {
  public:
    SheetReader(const Package& from, const std::string& name, std::string_view text, Sheet& sheet)
        : XmlParser(from, name), text_(text), sheet_(sheet), book_(sheet.workbook()) {
        row_xml_.formats = book_.styles.formats_in_file;
        row_xml_.named = &book_.styles.named_formats;
    }

    SheetLayout read() {
        parse(text_);
        layout_.cells = cells_;
        std::ranges::stable_sort(layout_.rows, {}, &SheetLayout::Row::row);
        for (const auto& extent : layout_.children) {
            const XmlElement child(text_, extent.begin);
            const auto local = child.local();
            if (local != "sheetData" && local != "sheetFormatPr") read_sheet_child(package(), part(), child, sheet_);
        }
        return std::move(layout_);
    }

  protected:
    void on_start(std::string_view name, XmlAttributes attributes, int depth) override {
        switch (depth) {
            case 0:
                start_root(name, attributes);
                break;
            case 1:
                layout_.children.push_back({offset(), offset()});
                in_data_ = layout_.sheet_data < 0 && is(name, "sheetData");
                if (in_data_) layout_.sheet_data = static_cast<std::int32_t>(layout_.children.size()) - 1;
                break;
            case 2:
                in_row_ = in_data_ && is(name, "row");
                if (in_row_) start_row(attributes);
                break;
            case 3:
                in_cell_ = in_row_ && is(name, "c");
                if (in_cell_) start_cell(attributes);
                break;
            case 4:
                if (in_cell_) start_piece(name, attributes);
                break;
            default:
                if (in_inline_) start_inline(name, depth);
        }
    }

    void on_end(int depth) override {
        switch (depth) {
            case 1:
                end_child();
                break;
            case 2:
                if (in_row_) end_row();
                in_row_ = false;
                break;
            case 3:
                if (in_cell_) end_cell();
                in_cell_ = false;
                break;
            case 4:
                if (in_inline_) end_inline();
                capture_ = nullptr;
                break;
            default:
                capture_ = nullptr;
                if (depth == 5) in_phonetic_ = false;
        }
    }

    void on_text(std::string_view text) override {
        if (capture_ != nullptr) capture_->append(text);
    }

  private:
    [[nodiscard]] std::uint32_t offset() const { return static_cast<std::uint32_t>(tag_begin()); }

    [[nodiscard]] bool is(std::string_view name, std::string_view local) const {
        for (const auto& prefix : prefixes_) {
            if (name.size() == prefix.size() + local.size() && name.starts_with(prefix) && name.ends_with(local))
                return true;
        }
        return false;
    }

    void start_root(std::string_view name, XmlAttributes attributes) {
        const auto uri = namespace_of(name, attributes);
        if (name.substr(name.find(':') + 1) != "worksheet" || (uri != TransitionalMain && uri != StrictMain))
            fail(fmt::format("is not a worksheet: it begins with <{}>", name));
        // Any prefix will do that stands for the same namespace.
        for (auto attribute = attributes; *attribute != nullptr; attribute += 2) {
            const std::string_view key = attribute[0];
            if (attribute[1] != uri || !key.starts_with("xmlns")) continue;
            prefixes_.push_back(key == "xmlns" ? std::string() : std::string(key.substr(6)) + ":");
        }
    }

    void end_child() {
        layout_.children.back().end = static_cast<std::uint32_t>(tag_end());
        in_data_ = false;
        const XmlElement child(text_, layout_.children.back().begin);
        if (child.local() != "sheetFormatPr") return;
        read_sheet_child(package(), part(), child, sheet_);
        row_xml_.default_height = sheet_.defaults().default_row_height;
        sheet_.know_height(row_xml_.default_height);
    }

    void start_row(XmlAttributes attributes) {
        row_begin_ = offset();
        row_ = last_row_ + 1;
        row_implied_ = true;
        column_ = 0;
        row_format_ = RowFormat();
        for (auto attribute = attributes; *attribute != nullptr; attribute += 2) {
            const std::string_view name = attribute[0];
            const std::string_view value = attribute[1];
            if (name == "r") {
                const auto row = parsed<std::int32_t>(value);
                if (!row) fail(fmt::format("<row r=\"{}\"> is not a row number", value));
                row_ = *row;
                row_implied_ = false;
            } else {
                row_xml_.read(row_format_, name, value);
            }
        }
        row_xml_.finish(row_format_);
        if (row_ < 1 || row_ > formula::max_rows) fail(fmt::format("<row r=\"{}\"> is outside the sheet", row_));
    }

    void end_row() {
        last_row_ = row_;
        layout_.rows.push_back({row_, row_begin_});
        if (!row_format_.plain()) {
            if (row_format_.height >= 0) sheet_.know_height(row_format_.height);
            auto& rows = sheet_.loaded_rows();
            rows.insert_or_assign(rows.end(), row_, row_format_);
        }
    }

    void start_cell(XmlAttributes attributes) {
        cell_ = Cell();
        cell_.source = offset() + 1;
        type_ = CellType::Number;
        has_value_ = has_formula_ = false;
        std::int32_t column = column_ + 1;
        for (auto attribute = attributes; *attribute != nullptr; attribute += 2) {
            const char* name = attribute[0];
            const std::string_view value = attribute[1];
            if (name[1] != '\0') {
                if ((name[0] == 'c' || name[0] == 'v') && name[1] == 'm' && name[2] == '\0')
                    cell_.flags |= Cell::has_metadata;
            } else if (name[0] == 'r') {
                column = read_reference(value);
            } else if (name[0] == 's') {
                const auto style = parsed<StyleId>(value).value_or(0);
                cell_.style = book_.styles.format_of_file(style);
            } else if (name[0] == 't') {
                const auto type = cell_type(value);
                if (!type) fail(fmt::format("<c t=\"{}\"> is not a type of cells", value));
                type_ = *type;
            }
        }
        if (column > formula::max_columns) fail(fmt::format("row {} has more cells than the sheet has columns", row_));
        column_ = column;
    }

    std::int32_t read_reference(std::string_view value) {
        const auto at = formula::parse_cell_reference(value);
        if (!at) {
            fail(fmt::format("<c r=\"{}\"> is {}", value,
                             looks_like_cell(value) ? "outside the sheet" : "not a cell reference"));
        }
        if (at->row != row_) {
            if (!row_implied_ || column_ != 0) fail(fmt::format("<c r=\"{}\"> stands in row {}", value, row_));
            row_ = at->row;  // a row without a number has that of its cells
        }
        return at->column;
    }

    void start_piece(std::string_view name, XmlAttributes attributes) {
        if (is(name, "v")) {
            value_.clear();
            has_value_ = true;
            capture_ = &value_;
        } else if (is(name, "f")) {
            formula_ = Formula();
            shared_index_.reset();
            has_formula_ = true;
            capture_ = &formula_.text;
            read_formula_attributes(attributes);
        } else if (type_ == CellType::Inline && is(name, "is")) {
            value_.clear();
            in_inline_ = true;
            rich_ = false;
            inline_begin_ = tag_end();
        }
    }

    void read_formula_attributes(XmlAttributes attributes) {
        bool others = false;
        formula_.anchor = {row_, column_};
        formula_.reach = Area::cell(formula_.anchor);
        for (auto attribute = attributes; *attribute != nullptr; attribute += 2) {
            const std::string_view name = attribute[0];
            const std::string_view value = attribute[1];
            if (name == "t") {
                if (value == "shared") formula_.kind = Formula::Kind::Shared;
                if (value == "array") formula_.kind = Formula::Kind::Array;
                if (value == "dataTable") formula_.kind = Formula::Kind::DataTable;
            } else if (name == "ref") {
                const auto area = parse_area(value);
                if (!area) fail(fmt::format("<f ref=\"{}\"> is not an area of the sheet", value));
                formula_.reach = *area;
            } else if (name == "si") {
                shared_index_ = parsed<std::uint32_t>(value);
            } else if (name != "xml:space") {
                others = true;
            }
        }
        const bool fills = formula_.kind == Formula::Kind::Array || formula_.kind == Formula::Kind::DataTable;
        if (fills && formula_.reach.cells() > most_results)
            fail(fmt::format("<f ref=\"{}\"> fills more cells than {} may", formula::area_text(formula_.reach),
                             formula_.kind == Formula::Kind::Array ? "an array formula" : "a data table"));
        if (!others && formula_.kind != Formula::Kind::DataTable) return;
        const XmlElement element(text_, tag_begin());
        const auto end = element.attributes_end();
        formula_.attributes = trimmed(text_.substr(element.name_end(), end - element.name_end()));
    }

    // Inside <is>: its own <t>, and <t> of runs; phonetic runs are no part of the text.
    void start_inline(std::string_view name, int depth) {
        if (depth == 5 && !is(name, "t")) {
            rich_ = true;
            in_phonetic_ = is(name, "rPh");
        }
        if (is(name, "t") && !in_phonetic_) capture_ = &value_;
    }

    void end_inline() {
        in_inline_ = false;
        has_value_ = true;
        if (rich_) inline_source_ = text_.substr(inline_begin_, tag_begin() - inline_begin_);
    }

    void end_cell() {
        cell_.row = row_;
        if (has_value_) read_value();
        if (has_formula_) read_formula();
        ++cells_;
        sheet_.append_loaded(column_, cell_);
    }

    void read_value() {
        const auto text = trimmed(value_);
        switch (type_) {
            case CellType::Number:
                if (!text.empty()) set_number(parsed<double>(text), "a number");
                break;
            case CellType::Date:
                if (!text.empty()) set_number(parse_iso_date(text, book_.date1904), "a date");
                break;
            case CellType::Shared:
                if (text.empty()) break;
                if (const auto position = parsed<std::uint32_t>(text)) {
                    set_string(*position);
                } else {
                    refuse("a shared string's number");
                }
                break;
            case CellType::Boolean:
                if (text.empty()) break;
                cell_.kind = CellKind::Boolean;
                cell_.number = 0;
                cell_.boolean = xml_flag(text);
                break;
            case CellType::Error:
                if (text.empty()) break;
                cell_.kind = CellKind::Error;
                cell_.error = parse_error(text).value_or(CellError::Unknown);
                break;
            case CellType::Text:
                set_string(book_.strings.intern(decode_xstring(value_)));
                break;
            case CellType::Inline:
                set_string(rich_ ? book_.strings.add({decode_xstring(value_), std::string(inline_source_)})
                                 : book_.strings.intern(decode_xstring(value_)));
                rich_ = false;
                break;
        }
    }

    [[noreturn]] void refuse(std::string_view what) const {
        fail(fmt::format("{} holds {}, which is not {}", formula::cell_text({row_, column_}), value_, what));
    }

    void set_number(std::optional<double> number, std::string_view what) {
        if (!number || !std::isfinite(*number)) refuse(what);
        cell_.kind = CellKind::Number;
        cell_.number = *number;
    }

    void set_string(std::uint32_t position) {
        cell_.kind = CellKind::String;
        cell_.string = position;
    }

    void read_formula() {
        if (formula_.kind == Formula::Kind::Shared && shared_index_ && formula_.text.empty()) {
            const auto master = shared_.find(*shared_index_);
            if (master != shared_.end()) cell_.formula = master->second;
            return;
        }
        if (formula_.text.empty() && formula_.kind != Formula::Kind::DataTable) return;
        const auto kind = formula_.kind;
        cell_.formula = sheet_.add_loaded_formula(std::move(formula_));
        if (kind == Formula::Kind::Shared && shared_index_) shared_[*shared_index_] = cell_.formula;
    }

    std::string_view text_;
    Sheet& sheet_;
    Workbook& book_;
    SheetLayout layout_;
    RowXml row_xml_;
    std::vector<std::string> prefixes_;
    std::int64_t cells_ = 0;

    bool in_data_ = false;
    bool in_row_ = false;
    bool in_cell_ = false;
    bool in_inline_ = false;
    bool in_phonetic_ = false;
    std::string* capture_ = nullptr;

    RowFormat row_format_;
    std::uint32_t row_begin_ = 0;
    std::int32_t row_ = 0;
    std::int32_t last_row_ = 0;
    bool row_implied_ = false;

    Cell cell_;
    CellType type_ = CellType::Number;
    std::int32_t column_ = 0;
    bool has_value_ = false;
    std::string value_;
    bool rich_ = false;
    std::size_t inline_begin_ = 0;
    std::string_view inline_source_;

    bool has_formula_ = false;
    Formula formula_;
    std::optional<std::uint32_t> shared_index_;
    std::unordered_map<std::uint32_t, std::uint32_t> shared_;  // si to the number of the formula
};

}  // namespace

SheetLayout read_sheet(const Package& package, const std::string& part, Sheet& sheet) {
    const XmlText xml = package.read_xml(part);
    return SheetReader(package, part, xml.text, sheet).read();
}

}  // namespace kestrune::host
