#include "host/model/CustomFormats.h"

#include <algorithm>
#include <map>
#include <set>

namespace kestrune::host {
namespace {

std::set<std::uint32_t> numbers_in_use(Workbook& book) {
    const StyleTable& styles = book.styles;
    std::set<std::uint32_t> numbers;
    for (const auto& sheet : book.sheets()) {
        if (sheet->kind() != SheetKind::Worksheet) continue;
        for (const StyleId id : sheet->styles_in(Area::sheet())) numbers.insert(styles.formats[id].number_format);
    }
    for (const NamedStyle& style : styles.named_styles) numbers.insert(style.format.number_format);
    return numbers;
}

std::set<std::string> codes_in_use(const Workbook& book) {
    std::set<std::string> codes;
    for (std::uint32_t i = 0; i < book.styles.differentials.size(); ++i) {
        if (const auto& code = book.styles.differentials[i].number_format) codes.insert(*code);
    }
    return codes;
}

}  // namespace

std::vector<CustomNumberFormat> custom_number_formats(Workbook& book) {
    const auto& formats = book.styles.custom_number_formats();
    if (formats.empty()) return {};
    auto numbers = numbers_in_use(book);
    auto codes = codes_in_use(book);
    if (book.formats_elsewhere) {
        FormatsElsewhere elsewhere = book.formats_elsewhere();
        numbers.merge(elsewhere.numbers);
        codes.merge(elsewhere.codes);
    }
    std::vector<CustomNumberFormat> list;
    for (const auto& [number, code] : std::map(formats.begin(), formats.end())) {
        const bool in_use = numbers.contains(number) || codes.contains(code);
        const auto twin = std::ranges::find(list, code, &CustomNumberFormat::code);
        if (twin == list.end())
            list.push_back({code, in_use});
        else
            twin->in_use |= in_use;
    }
    return list;
}

bool delete_number_format(Workbook& book, std::string_view code) {
    StyleTable& styles = book.styles;
    std::set<std::uint32_t> numbers;
    for (const auto& [number, known] : styles.custom_number_formats()) {
        if (known == code) numbers.insert(number);
    }
    if (numbers.empty()) return false;
    const auto shows_it = [&](StyleId id) { return numbers.contains(styles.formats[id].number_format); };
    // Most formats that are deleted stand in no cell format at all: then no sheet has to be read.
    bool anywhere = false;
    for (StyleId id = 0; id < styles.formats.size(); ++id) anywhere |= shows_it(id);
    for (const auto& sheet : book.sheets()) {
        if (!anywhere || sheet->kind() != SheetKind::Worksheet) continue;
        if (std::ranges::none_of(sheet->styles_in(Area::sheet()), shows_it)) continue;
        sheet->restyle(Area::sheet(), [&](StyleId id) {
            if (!shows_it(id)) return id;
            return styles.with_format(id, [](CellFormat& format) { format.number_format = 0; });
        });
    }
    for (NamedStyle& style : styles.named_styles) {
        if (numbers.contains(style.format.number_format)) style.format.number_format = 0;
    }
    for (const std::uint32_t number : numbers) styles.remove_number_format(number);
    return true;
}

}  // namespace kestrune::host
