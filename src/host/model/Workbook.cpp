#include "host/model/Workbook.h"

#include <algorithm>
#include <utility>

#include "formula/Characters.h"
#include "host/model/DigitWidth.h"
#include "host/model/Tint.h"

namespace kestrune::host {

Workbook::Workbook() : styles(StyleTable::defaults()) {}
Workbook::~Workbook() = default;

Sheet& Workbook::add_sheet(std::string sheet_name, SheetKind kind) {
    return *sheets_.emplace_back(std::make_unique<Sheet>(*this, std::move(sheet_name), kind));
}

Sheet& Workbook::insert_sheet(std::int32_t position, std::string sheet_name) {
    auto fresh = std::make_unique<Sheet>(*this, std::move(sheet_name), SheetKind::Worksheet);
    for (DefinedName& defined : names) {
        if (defined.sheet && *defined.sheet >= position) ++*defined.sheet;
    }
    if (active_sheet >= position && !sheets_.empty()) ++active_sheet;
    return **sheets_.insert(sheets_.begin() + position, std::move(fresh));
}

Sheet* Workbook::sheet(std::string_view sheet_name) const {
    for (const auto& sheet : sheets_)
        if (formula::equal_ignoring_case(sheet->name(), sheet_name)) return sheet.get();
    return nullptr;
}

std::uint32_t Workbook::rgb_of(const Color& color, std::uint32_t automatic) const {
    constexpr std::uint32_t first_palette_entry = 8;  // 0..7 repeat 8..15
    constexpr std::uint32_t system_text = 64;
    constexpr std::uint32_t system_background = 65;
    switch (color.kind) {
        case Color::Kind::None:
        case Color::Kind::Automatic:
            return automatic;
        case Color::Kind::Rgb:
            return tinted(color.value & 0xFFFFFFU, color.tint);
        case Color::Kind::Theme:
            return color.value < theme.colors.size() ? tinted(theme.colors[color.value], color.tint) : automatic;
        case Color::Kind::Indexed:
            break;
    }
    if (color.value == system_text) return tinted(0, color.tint);
    if (color.value == system_background) return tinted(0xFFFFFF, color.tint);
    const std::uint32_t entry = color.value < first_palette_entry ? color.value : color.value - first_palette_entry;
    return entry < palette.size() ? tinted(palette[entry], color.tint) : automatic;
}

std::int32_t Workbook::nearest_index(std::uint32_t bgr) const {
    const auto distance = [bgr](std::uint32_t entry) {
        std::int32_t sum = 0;
        for (const unsigned shift : {0U, 8U, 16U}) {
            const auto difference =
                static_cast<std::int32_t>(bgr >> shift & 0xFFU) - static_cast<std::int32_t>(entry >> shift & 0xFFU);
            sum += difference * difference;
        }
        return sum;
    };
    return static_cast<std::int32_t>(std::ranges::min_element(palette, {}, distance) - palette.begin()) + 1;
}

std::int32_t Workbook::digit_pixels() const {
    const auto normal = std::ranges::find(styles.named_styles, "Normal", &NamedStyle::name);
    std::uint32_t font = 0;
    if (normal != styles.named_styles.end())
        font = normal->format.font;
    else if (styles.formats.size() > 0)
        font = styles.formats[0].font;
    if (font >= styles.fonts.size()) return digit_pixels_of("Calibri", 11);
    return digit_pixels_of(styles.fonts[font].name, styles.fonts[font].size);
}

const std::vector<Table>& Workbook::tables() {
    if (!tables_) tables_ = read_tables ? read_tables() : std::vector<Table>();
    return *tables_;
}

}  // namespace kestrune::host
