#include "cli/HelpPage.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>
#include <vector>

#include "brvblib/CommandTexts.h"
#include "core/CommandTable.h"

namespace kestrune::cli {
namespace {

constexpr std::string_view head = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>Kestrune Help</title>
<style>
body{margin:0 auto;max-width:60em;padding:0 1em 3em;font:15px/1.5 'Segoe UI',system-ui,sans-serif;color:#222}
h1{color:#107c41}
h2{margin-top:2em;border-bottom:2px solid #107c41}
table{border-collapse:collapse;width:100%}
td,th{text-align:left;vertical-align:top;padding:.3em .8em .3em 0;border-bottom:1px solid #ddd}
td:first-child{color:#666;width:3em}
td:nth-child(2){width:15em;font-weight:600}
td:nth-child(3){width:11em;white-space:nowrap}
kbd{background:#f3f3f3;border:1px solid #c6c6c6;border-radius:3px;padding:0 .3em;font:inherit;font-size:.9em}
nav a{margin-right:1em;white-space:nowrap}
</style>
</head>
<body>
<h1>Kestrune Help</h1>
<p>A <b>SmartCycle</b> steps the selection through a list of formats or settings: each press of its key gives the next
one, and after the last it begins again. What a cycle goes by is the top left cell of the selection. The user settings
hold the cycles: which entries they have, and in which order.</p>
<p>The <b>BR Paintbrush</b> captures the formatting of a cell as a style, and paints it onto other cells until another is
captured. <b>AutoColor</b> colors the fonts of cells by what they hold: inputs, formulas, links, text and dates.</p>
<p>A request is a command's number; where a number is followed by <i>.n</i>, a full stop and a step go straight to that
entry: 20.3 is the third entry of the Currency SmartCycle. Keys are those of a fresh installation.</p>
<p>Whatever a command changes, <b>Undo</b> gives back exactly, a hundred steps far; Ctrl+Z presses it. A command that
cannot be undone, or not this time, asks before it runs.</p>
)";

std::string escaped(std::string_view text) {
    std::string out;
    for (const char c : text) {
        if (c == '&') {
            out += "&amp;";
        } else if (c == '<') {
            out += "&lt;";
        } else {
            out += c;
        }
    }
    return out;
}

const brvblib::CommandText& text_of(const core::Command& command) {
    return brvblib::command_texts[static_cast<std::size_t>(command.number)];
}

// The menu groups in the order in which commands first name them.
std::vector<std::string_view> groups() {
    std::vector<std::string_view> names;
    for (const core::Command& command : core::commands()) {
        const std::string_view group = text_of(command).group;
        if (std::ranges::find(names, group) == names.end()) names.push_back(group);
    }
    return names;
}

std::string row(const core::Command& command) {
    const brvblib::CommandText& text = text_of(command);
    const std::string key = text.key.empty() ? "" : fmt::format("<kbd>{}</kbd>", escaped(text.key));
    const bool lasting = command.touches.changes_workbook() && !command.touches.undoable();
    return fmt::format("<tr><td>{}{}</td><td>{}</td><td>{}</td><td>{}{}</td></tr>\n", command.number,
                       command.takes_parameter ? ".n" : "", escaped(text.name), key, escaped(text.description),
                       lasting ? " Cannot be undone." : "");
}

}  // namespace

std::string help_page() {
    std::string page(head);
    page += "<nav>\n";
    const auto names = groups();
    for (std::size_t i = 0; i < names.size(); ++i) {
        page += fmt::format("<a href=\"#g{}\">{}</a>\n", i, escaped(names[i]));
    }
    page += "</nav>\n";
    for (std::size_t i = 0; i < names.size(); ++i) {
        page += fmt::format(
            "<h2 id=\"g{}\">{}</h2>\n<table>\n<tr><th>No.</th><th>Command</th><th>Key</th>"
            "<th>What it does</th></tr>\n",
            i, escaped(names[i]));
        for (const core::Command& command : core::commands()) {
            if (text_of(command).group == names[i]) page += row(command);
        }
        page += "</table>\n";
    }
    return page + "</body>\n</html>\n";
}

}  // namespace kestrune::cli
