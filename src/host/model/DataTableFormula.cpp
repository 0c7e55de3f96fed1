#include "host/model/DataTableFormula.h"

#include <fmt/format.h>

#include "formula/A1.h"

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

std::string adjust_formula_attributes(std::string_view attributes, const formula::Edit& edit) {
    std::string out(attributes);
    const auto put = [&](std::string_view name, std::string_view value) {
        const std::string_view was = attribute(out, name);
        out.replace(static_cast<std::size_t>(was.data() - out.data()), was.size(), value);
    };
    if (const auto ref = attribute(out, "ref"); !ref.empty()) {
        formula::Reference reference;
        if (formula::match_a1(ref, reference) == ref.size()) {
            if (const auto left = formula::adjust_area(formula::area_of(reference), edit))
                put("ref", formula::area_text(*left));
        }
    }
    for (const auto& [input, gone] : {std::pair{"r1", "del1"}, std::pair{"r2", "del2"}}) {
        const auto at = formula::parse_cell_reference(attribute(out, input));
        if (!at) continue;
        if (const auto moved = formula::adjust_position(*at, edit)) {
            put(input, formula::cell_text(*moved));
        } else if (attribute(out, gone).empty()) {
            out.append(" ").append(gone).append("=\"1\"");
        }
    }
    return out;
}

}  // namespace kestrune::host
