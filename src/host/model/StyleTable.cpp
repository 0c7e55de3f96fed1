#include "host/model/StyleTable.h"

#include <array>
#include <utility>

#include "formula/Characters.h"
#include "number_format/BuiltInFormats.h"

namespace kestrune::host {

using number_format::built_in_format;
using number_format::built_in_format_id;
namespace {

constexpr std::uint32_t first_custom_number = 164;

// The format that has `changed` where `base` had its own piece of it.
template <class Piece>
StyleId with_piece(StyleTable& table, StyleId base, InternedList<Piece>& pieces, std::uint32_t CellFormat::*number,
                   const std::function<void(Piece&)>& change) {
    const std::uint32_t before = table.formats[base].*number;
    Piece piece = pieces[before];
    change(piece);
    if (piece == pieces[before]) return base;
    CellFormat format = table.formats[base];
    format.*number = pieces.intern(piece);
    return table.formats.intern(format);
}

}  // namespace

StyleTable StyleTable::defaults() {
    StyleTable table;
    Font font;
    font.color = Color::theme(1);
    font.family = 2;
    font.scheme = "minor";
    table.fonts.append(std::move(font));
    table.fills.append(Fill{});
    table.fills.append(Fill{Pattern::Gray125, {}, {}, {}});
    table.borders.append(Border{});
    table.formats.append(CellFormat{});
    table.named_styles.push_back({"Normal", CellFormat{}});
    table.formats_in_file = table.formats.size();
    return table;
}

const std::string& StyleTable::number_format(std::uint32_t number) const {
    static const auto built_in = [] {
        std::array<std::string, first_custom_number> codes;
        for (std::size_t id = 0; id < codes.size(); ++id) codes[id] = built_in_format(static_cast<int>(id));
        return codes;
    }();
    if (const auto custom = number_formats_.find(number); custom != number_formats_.end()) return custom->second;
    return number < built_in.size() && !built_in[number].empty() ? built_in[number] : built_in[0];
}

std::uint32_t StyleTable::intern_number_format(std::string_view code) {
    if (formula::equal_ignoring_case(code, "General")) code = "General";
    std::string key(code);
    if (const auto known = numbers_by_code_.find(key); known != numbers_by_code_.end()) return known->second;
    // A file may give a built-in number a code of its own (currencies of other countries): then it is taken.
    if (const auto id = built_in_format_id(code)) {
        const auto built_in = static_cast<std::uint32_t>(*id);
        if (!number_formats_.contains(built_in)) return built_in;
    }
    std::uint32_t number = first_custom_number;
    while (number_formats_.contains(number) || removed_.contains(number) || reserved_.contains(number)) ++number;
    load_number_format(number, std::move(key));
    return number;
}

void StyleTable::load_number_format(std::uint32_t number, std::string code) {
    std::string& stored = number_formats_[number];
    // A number given twice has its last code, so the first must not be found under it any more.
    if (const auto old = numbers_by_code_.find(stored); old != numbers_by_code_.end() && old->second == number)
        numbers_by_code_.erase(old);
    numbers_by_code_.emplace(code, number);
    stored = std::move(code);
}

void StyleTable::remove_number_format(std::uint32_t number) {
    const auto format = number_formats_.find(number);
    if (format == number_formats_.end()) return;
    const auto by_code = numbers_by_code_.find(format->second);
    if (by_code != numbers_by_code_.end() && by_code->second == number) numbers_by_code_.erase(by_code);
    number_formats_.erase(format);
    removed_.insert(number);
}

StyleId StyleTable::with_font(StyleId base, const std::function<void(Font&)>& change) {
    return with_piece(*this, base, fonts, &CellFormat::font, change);
}

StyleId StyleTable::with_fill(StyleId base, const std::function<void(Fill&)>& change) {
    return with_piece(*this, base, fills, &CellFormat::fill, change);
}

StyleId StyleTable::with_border(StyleId base, const std::function<void(Border&)>& change) {
    return with_piece(*this, base, borders, &CellFormat::border, change);
}

StyleId StyleTable::with_format(StyleId base, const std::function<void(CellFormat&)>& change) {
    CellFormat format = formats[base];
    change(format);
    return format == formats[base] ? base : formats.intern(format);
}

}  // namespace kestrune::host
