#include "host/model/DataTableFormula.h"

#include <fmt/format.h>

namespace kestrune::host {
namespace {

// The value of name="value" or name='value'; empty when it is not there.
std::string_view attribute(std::string_view attributes, std::string_view name) {
    std::size_t at = 0;
    while ((at = attributes.find(name, at)) != std::string_view::npos) {
        const std::size_t after = at + name.size();
        const bool starts = at == 0 || attributes[at - 1] == ' ' || attributes[at - 1] == '\n';
        if (starts && after + 1 < attributes.size() && attributes[after] == '=') {
            const std::size_t end = attributes.find(attributes[after + 1], after + 2);
            return attributes.substr(after + 2, end == std::string_view::npos ? end : end - after - 2);
        }
        at = after;
    }
    return {};
}

bool is_true(std::string_view value) { return value == "1" || value == "true"; }

}  // namespace

std::string data_table_text(std::string_view attributes) {
    const std::string_view first = attribute(attributes, "r1");
    if (is_true(attribute(attributes, "dt2D"))) return fmt::format("TABLE({},{})", first, attribute(attributes, "r2"));
    return is_true(attribute(attributes, "dtr")) ? fmt::format("TABLE({},)", first) : fmt::format("TABLE(,{})", first);
}

}  // namespace kestrune::host
