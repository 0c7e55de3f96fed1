#include "cli/run/FillOption.h"

#include <string>

namespace kestrune::cli {

std::optional<forms::FormFill> fill_option(std::string_view option) {
    const std::size_t sign = option.find('=');
    const std::size_t dot = option.substr(0, sign).find('.');
    const bool names_dialog = option.size() > 1 && option[0] == 'f' && option[1] >= 'A' && option[1] <= 'Z';
    if (!names_dialog || sign == std::string_view::npos || dot == std::string_view::npos) return std::nullopt;
    return forms::FormFill{std::string(option.substr(0, dot)), std::string(option.substr(dot + 1, sign - dot - 1)),
                           std::string(option.substr(sign + 1))};
}

}  // namespace kestrune::cli
