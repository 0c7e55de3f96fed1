#include "host/xlsx/ColumnXml.h"

#include <algorithm>

#include "formula/Area.h"
#include "host/xlsx/CellXml.h"

namespace kestrune::host {

std::optional<ColumnRun> read_column_run(const XmlElement& col, std::uint32_t formats) {
    const auto first = col.integer("min");
    const auto last = col.integer("max");
    if (first < 1 || last < first || last > formula::max_columns) return std::nullopt;
    ColumnRun run;
    run.first = static_cast<std::int32_t>(first);
    run.last = static_cast<std::int32_t>(last);
    run.width = col.number("width", -1);
    if (!(run.width >= 0)) run.width = -1;
    run.custom_width = col.flag("customWidth");
    run.best_fit = col.flag("bestFit");
    run.hidden = col.flag("hidden");
    run.collapsed = col.flag("collapsed");
    run.phonetic = col.flag("phonetic");
    run.outline_level = static_cast<std::uint8_t>(std::clamp<std::int64_t>(col.integer("outlineLevel"), 0, 7));
    const auto style = col.integer("style");
    run.style = style > 0 && style < formats ? static_cast<StyleId>(style) : 0;
    return run;
}

void append_column_run(std::string& out, std::string_view prefix, const ColumnRun& run, double standard_width) {
    out.append("<").append(prefix).append("col min=\"").append(std::to_string(run.first));
    out.append("\" max=\"").append(std::to_string(run.last)).append("\" width=\"");
    append_number(out, run.width >= 0 ? run.width : standard_width);
    out += '"';
    if (run.style != 0) out.append(" style=\"").append(std::to_string(run.style)).append("\"");
    if (run.hidden) out += " hidden=\"1\"";
    if (run.best_fit) out += " bestFit=\"1\"";
    if (run.custom_width) out += " customWidth=\"1\"";
    if (run.phonetic) out += " phonetic=\"1\"";
    if (run.outline_level != 0) out.append(" outlineLevel=\"").append(std::to_string(run.outline_level)).append("\"");
    if (run.collapsed) out += " collapsed=\"1\"";
    out += "/>";
}

}  // namespace kestrune::host
