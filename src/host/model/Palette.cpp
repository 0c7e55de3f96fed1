#include "host/model/Workbook.h"

namespace kestrune::host {
namespace {

// From the usual notation, red first, to BGR.
constexpr std::uint32_t bgr(std::uint32_t rrggbb) {
    return (rrggbb & 0xFFU) << 16U | (rrggbb & 0xFF00U) | rrggbb >> 16U;
}

constexpr Palette classic() {
    constexpr Palette rgb{
        0x000000, 0xFFFFFF, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0x00FFFF,  //
        0x800000, 0x008000, 0x000080, 0x808000, 0x800080, 0x008080, 0xC0C0C0, 0x808080,  //
        0x9999FF, 0x993366, 0xFFFFCC, 0xCCFFFF, 0x660066, 0xFF8080, 0x0066CC, 0xCCCCFF,  //
        0x000080, 0xFF00FF, 0xFFFF00, 0x00FFFF, 0x800080, 0x800000, 0x008080, 0x0000FF,  //
        0x00CCFF, 0xCCFFFF, 0xCCFFCC, 0xFFFF99, 0x99CCFF, 0xFF99CC, 0xCC99FF, 0xFFCC99,  //
        0x3366FF, 0x33CCCC, 0x99CC00, 0xFFCC00, 0xFF9900, 0xFF6600, 0x666699, 0x969696,  //
        0x003366, 0x339966, 0x003300, 0x333300, 0x993300, 0x993366, 0x333399, 0x333333,
    };
    Palette palette{};
    for (std::size_t i = 0; i < palette.size(); ++i) palette[i] = bgr(rgb[i]);
    return palette;
}

}  // namespace

const Palette& default_palette() {
    static constexpr Palette palette = classic();
    return palette;
}

Theme Theme::office() {
    Theme theme{};
    theme.colors = {bgr(0xFFFFFF), bgr(0x000000), bgr(0xEEECE1), bgr(0x1F497D), bgr(0x4F81BD), bgr(0xC0504D),
                    bgr(0x9BBB59), bgr(0x8064A2), bgr(0x4BACC6), bgr(0xF79646), bgr(0x0000FF), bgr(0x800080)};
    return theme;
}

}  // namespace kestrune::host
