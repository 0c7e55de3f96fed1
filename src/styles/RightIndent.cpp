#include "styles/RightIndent.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <vector>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "excel/Application.h"
#include "excel/Constants.h"
#include "excel/Worksheet.h"

namespace kestrune::styles {
namespace {

using automation::ResumeNext;
using automation::to_integer;
using automation::to_text;
using automation::Value;
using excel::Range;

constexpr std::int32_t first_version_that_indents = 10;

bool takes_next_character(char c) { return c == '\\' || c == '_' || c == '*'; }

}  // namespace

std::int32_t blanks_at_end(std::string_view section) {
    std::size_t end = 0;  // behind the last character that is none of these blanks
    for (std::size_t i = 0; i < section.size(); ++i) {
        if (section[i] == ' ') continue;
        // In a quotation the signs mean nothing, but its last character is no blank, either.
        if (takes_next_character(section[i]) && i + 1 < section.size()) ++i;
        end = i + 1;
    }
    return static_cast<std::int32_t>(section.size() - end);
}

RightIndent::RightIndent(const core::SharedState& shared) : shared_(shared) {
    const ResumeNext attempt(shared.trace);
    attempt.assign(by_indent_level_, [&] {
        return shared.general().version_at_least(excel::Application(shared.application).Version(),
                                                 first_version_that_indents);
    });
}

std::int32_t RightIndent::of(const Range& cell) const {
    if (by_indent_level_) return to_integer(cell.IndentLevel());
    return blanks_at_end(shared_.general().number_format_sections(to_text(cell.NumberFormat())).front());
}

void RightIndent::write(const Range& range, std::int32_t level) const {
    const ResumeNext attempt(shared_.trace);
    attempt([&] { range.HorizontalAlignment(excel::xlRight); });
    attempt([&] {
        if (by_indent_level_) {
            range.IndentLevel(level);
        } else {
            pad_number_formats(range, level);
        }
    });
}

void RightIndent::pad_number_formats(const Range& range, std::int32_t level) const {
    const Value common = range.NumberFormat();
    if (!common.is(Value::Kind::Null)) return range.NumberFormat(padded(to_text(common), level));
    const ResumeNext attempt(shared_.trace);
    const excel::Worksheet sheet = range.Worksheet();
    for (const auto& [address, format] : shared_.spreadsheet().number_formats(range.object())) {
        attempt([&] { sheet.Range(address).NumberFormat(padded(format, level)); });
    }
}

std::string RightIndent::padded(std::string_view format, std::int32_t level) const {
    std::vector<std::string> sections = shared_.general().number_format_sections(format);
    for (std::string& text : sections) {
        std::string_view section = text;
        section.remove_suffix(static_cast<std::size_t>(blanks_at_end(section)));
        section.remove_prefix(std::min(section.find_first_not_of(' '), section.size()));
        text = std::string(section).append(static_cast<std::size_t>(std::max(level, 0)), ' ');
    }
    return fmt::format("{}", fmt::join(sections, ";"));
}

}  // namespace kestrune::styles
