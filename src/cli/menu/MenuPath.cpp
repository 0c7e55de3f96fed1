#include "cli/menu/MenuPath.h"

#include <fmt/format.h>

#include <algorithm>

#include "automation/Text.h"
#include "cli/Failure.h"

namespace kestrune::cli {

MenuPath parse_menu_path(std::string_view text) {
    MenuPath path(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '/') {
            path.back() += text[i];
        } else if (i + 1 < text.size() && text[i + 1] == '/') {
            path.back() += text[i++];
        } else {
            path.emplace_back();
        }
    }
    for (std::string& part : path) part = automation::trimmed(automation::one_line(part, part.size()));
    if (std::ranges::find(path, "") != path.end()) {
        throw UsageError(
            fmt::format("{}: is no way through the menus; it has captions or numbers with '/' between, as in "
                        "Kestrune/Format/Currency/3",
                        text.empty() ? "''" : automation::one_line(text)));
    }
    return path;
}

std::string menu_path_text(const MenuPath& path) {
    std::string text;
    for (const std::string& part : path) {
        if (!text.empty()) text += '/';
        for (const char c : part) text.append(c == '/' ? 2 : 1, c);
    }
    return text;
}

}  // namespace kestrune::cli
