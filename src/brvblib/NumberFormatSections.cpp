#include "brvblib/NumberFormatSections.h"

namespace kestrune::brvblib {

std::vector<std::string> number_format_sections(std::string_view format) {
    std::vector<std::string> sections;
    std::size_t start = 0;
    char closing = '\0';  // what ends the quotation or the brackets that we are in
    for (std::size_t i = 0; i < format.size(); ++i) {
        const char c = format[i];
        if (closing) {
            if (c == closing) closing = '\0';
        } else if (c == '"') {
            closing = '"';
        } else if (c == '[') {
            closing = ']';
        } else if (c == '\\' || c == '_' || c == '*') {
            ++i;
        } else if (c == ';') {
            sections.emplace_back(format.substr(start, i - start));
            start = i + 1;
        }
    }
    sections.emplace_back(format.substr(start));
    return sections;
}

}  // namespace kestrune::brvblib
