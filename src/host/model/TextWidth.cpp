#include "host/model/TextWidth.h"

#include "host/model/DigitWidth.h"

namespace kestrune::host {

double text_pixels(std::string_view text, const Font& font) {
    constexpr std::string_view narrow = "iljtf.,:;'|!()[] ";
    constexpr std::string_view wide = "MWmw@%";
    double digits = 0;
    for (const char c : text) {
        if ((static_cast<unsigned char>(c) & 0xC0U) == 0x80) continue;  // the rest of a character that has counted
        if (narrow.find(c) != std::string_view::npos)
            digits += 0.55;
        else if (wide.find(c) != std::string_view::npos)
            digits += 1.5;
        else
            digits += c >= 'A' && c <= 'Z' ? 1.2 : 1;
    }
    return digits * digit_pixels_of(font.name, font.size) * (font.bold ? 1.06 : 1);
}

}  // namespace kestrune::host
