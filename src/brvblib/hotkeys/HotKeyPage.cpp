#include "brvblib/hotkeys/HotKeyPage.h"

#include <fmt/format.h>

#include "brvblib/xml/XmlText.h"
#include "keys/KeyText.h"

namespace kestrune::brvblib {
namespace {

constexpr std::string_view head = R"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>Hot keys</title><style>
body{font:10pt Calibri,Carlito,sans-serif;margin:2em;columns:2;column-gap:2em}
h1{font-size:15pt;margin:0 0 .5em;column-span:all}h2{font-size:11pt;margin:0 0 .2em}
section{break-inside:avoid;margin-bottom:1em}table{border-collapse:collapse;width:100%}td{border-bottom:1px solid #ccc;padding:.15em .3em}
td:first-child{white-space:nowrap;width:9em}
</style></head><body>
<h1>Hot keys</h1>
)";

}  // namespace

std::string hot_key_page(const std::vector<HotKeyRow>& rows) {
    std::string page(head);
    const std::string* group = nullptr;
    for (const HotKeyRow& row : rows) {
        if (!row.key) continue;
        if (!group || *group != row.command.group) {
            if (group) page += "</table></section>\n";
            group = &row.command.group;
            page += fmt::format("<section><h2>{}</h2>\n<table>\n", xml_content(*group));
        }
        page += fmt::format("<tr><td>{}</td><td>{}</td></tr>\n", xml_content(keys::key_text(*row.key)),
                            xml_content(row.command.name));
    }
    if (group) page += "</table></section>\n";
    return page + "</body></html>\n";
}

}  // namespace kestrune::brvblib
