#include "native/ProductFile.h"

#include <fmt/format.h>

#include "automation/AutomationError.h"
#include "brvblib/Paths.h"
#include "native/PosixFiles.h"

namespace kestrune::native {
namespace {

using automation::trimmed;

constexpr std::size_t longest = 1U << 20U;

brvblib::StatedValues::Values values_in(const std::string& path, std::string_view text,
                                        const automation::Trace& trace) {
    brvblib::StatedValues::Values values;
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
        if (line.ends_with('\r')) line.remove_suffix(1);
        line = trimmed(line);
        if (line.empty() || line.front() == '#') continue;
        const std::size_t equals = line.find('=');
        const std::string_view name = trimmed(line.substr(0, equals));
        if (equals == std::string_view::npos || name.empty()) {
            trace.skipped(fmt::format("{}, line {}: is not NAME=VALUE", path, number));
            continue;
        }
        values.insert_or_assign(std::string(name), trimmed(line.substr(equals + 1)));
    }
    return values;
}

}  // namespace

ProductFile::ProductFile(const std::string& path, const automation::Trace& trace) {
    if (!brvblib::file_exists(path)) return;
    try {
        values_ = brvblib::StatedValues(values_in(path, PosixFiles().read(path, longest), trace));
    } catch (const automation::AutomationError& error) {
        trace.skipped(error.description());
    }
}

}  // namespace kestrune::native
