#pragma once

#include <string_view>

namespace kestrune::cli {

// The part of a page's style sheet that is the same for every workbook.
inline constexpr std::string_view page_style = R"(
body{margin:0;font:12px 'Segoe UI',system-ui,sans-serif;background:#f3f3f3;color:#000}
header{background:#107c41;color:#fff;padding:8px 14px;font-size:14px}
section{display:none;overflow:auto;height:calc(100vh - 70px);background:#fff}
input[name=sheet]{display:none}
input[name=sheet]:checked+section{display:block}
nav{padding:4px 8px;background:#e6e6e6;border-top:1px solid #c6c6c6;white-space:nowrap;overflow-x:auto}
nav label{display:inline-block;padding:4px 14px;margin-right:2px;cursor:pointer;border:1px solid #c6c6c6;border-radius:0 0 4px 4px;background:#f3f3f3}
table{border-collapse:collapse;table-layout:fixed;width:0}
th{background:#e6e6e6;border:1px solid #c0c0c0;font:11px 'Segoe UI',system-ui,sans-serif;color:#444;padding:0;text-align:center}
td{border:1px solid #d9d9d9;padding:0 3px;vertical-align:bottom;white-space:pre;font:11pt Calibri,Carlito,sans-serif;line-height:1.15}
td>div{overflow:hidden}
td.n{border:0;padding:0;background:#f3f3f3;font:10px sans-serif;text-align:center;vertical-align:middle}
td.ov{background:linear-gradient(to right,#f3f3f3 7px,#666 7px,#666 8px,#f3f3f3 8px)}
td.oh{background:linear-gradient(to bottom,#f3f3f3 7px,#666 7px,#666 8px,#f3f3f3 8px)}
td.ob{outline:1px solid #888;outline-offset:-2px;background:#fff}
tr.g{height:16px}
.up{writing-mode:vertical-rl;transform:rotate(180deg)}
.down{writing-mode:vertical-rl}
.stack{writing-mode:vertical-rl;text-orientation:upright}
.turn{display:inline-block}
.ends{display:flex;justify-content:space-between}
.legend{margin:6px 10px}
.legend span{padding:1px 8px;border:1px solid #999;margin-left:10px}
.cut{color:#666;padding:8px}
)";

}  // namespace kestrune::cli
