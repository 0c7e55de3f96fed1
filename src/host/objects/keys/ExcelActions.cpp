#include "host/objects/keys/ExcelActions.h"

#include <algorithm>
#include <array>
#include <ctime>

#include "host/objects/HostObject.h"
#include "host/objects/Refusal.h"
#include "host/objects/SheetOrder.h"
#include "host/objects/keys/Fill.h"
#include "host/objects/keys/Pointer.h"
#include "keys/KeyText.h"

namespace kestrune::host {
namespace {

using keys::Key;
using keys::key;
using keys::Named;

ObjectRef part(const ObjectRef& object, std::string_view member) {
    return automation::to_object(automation::get(automation::to_required_object(object), member));
}

ObjectRef selection(HostSession& session) { return part(make_application(session), "Selection"); }

template <auto Action>
void pointer(HostSession& session) {
    Pointer at(session);
    (at.*Action)();
}

// What the active cell decides for the whole selection.
void toggle(HostSession& session, std::string_view member, const Value& on, const Value& off) {
    const Value now = automation::get(*part(part(make_application(session), "ActiveCell"), "Font"), member);
    automation::put(*part(selection(session), "Font"), member, now == on ? off : on);
}
void bold(HostSession& session) { toggle(session, "Bold", true, false); }
void italic(HostSession& session) { toggle(session, "Italic", true, false); }
void underline(HostSession& session) { toggle(session, "Underline", xlUnderlineStyleSingle, xlNone); }
void strike(HostSession& session) { toggle(session, "Strikethrough", true, false); }

template <bool around>
void borders(HostSession& session) {
    const ObjectRef cells = selection(session);
    constexpr auto edges = std::to_array<std::int32_t>(
        {xlEdgeLeft, xlEdgeTop, xlEdgeBottom, xlEdgeRight, xlInsideVertical, xlInsideHorizontal});
    for (const std::int32_t edge : edges) {
        if (around && (edge == xlInsideVertical || edge == xlInsideHorizontal)) continue;
        const Value line = automation::get(*cells, "Borders", {edge});
        automation::put(automation::to_required_object(line), "LineStyle", around ? xlContinuous : xlNone);
    }
}

template <bool rows, bool hide>
void set_hidden(HostSession& session) {
    automation::put(*part(selection(session), rows ? "EntireRow" : "EntireColumn"), "Hidden", hide);
}

void group(HostSession& session) { automation::call(*selection(session), "Group"); }
void ungroup(HostSession& session) { automation::call(*selection(session), "Ungroup"); }
void clear(HostSession& session) { automation::call(*selection(session), "ClearContents"); }
void fill_down(HostSession& session) { fill_selection(session, true); }
void fill_right(HostSession& session) { fill_selection(session, false); }

void enter_date(HostSession& session) {
    const std::time_t now = std::time(nullptr);
    const std::tm* local = std::localtime(&now);  // NOLINT(concurrency-mt-unsafe)
    if (!local) return;
    // Days from the civil calendar's 30 December 1899, counted from 1 March as years with leap days at their end.
    const int year = local->tm_year + 1900 - (local->tm_mon < 2 ? 1 : 0);
    const int day = (153 * ((local->tm_mon + 10) % 12) + 2) / 5 + local->tm_mday - 1;
    const int serial = 365 * year + year / 4 - year / 100 + year / 400 + day - 693'899;
    automation::put(*part(make_application(session), "ActiveCell"), "Value", automation::Date{double(serial)});
}

void undo(HostSession& session) { session.run_waiting("Application.Undo", session.on_undo); }
void repeat(HostSession& session) { session.run_waiting("Application.Repeat", session.on_repeat); }

template <int step>
void go_to_sheet(HostSession& session) {
    const Sheet* sheet = session.active_sheet();
    if (!sheet) return;
    const auto& sheets = sheet->workbook().sheets();
    const auto count = static_cast<std::int32_t>(sheets.size());
    for (std::int32_t at = position_of(*sheet) + step; at >= 0 && at < count; at += step) {
        if (session.activate(*sheets[static_cast<std::size_t>(at)])) return;
    }
}

template <int per_cent>
void zoom(HostSession& session) {
    const ObjectRef window = part(make_application(session), "ActiveWindow");
    const std::int32_t now = automation::to_integer(automation::get(automation::to_required_object(window), "Zoom"));
    automation::put(*window, "Zoom", std::clamp(now + per_cent, 10, 400));
}

template <bool by_rows, bool backwards>
void next(HostSession& session) {
    Pointer(session).next(by_rows, backwards);
}

template <auto Goal, bool extend>
void go(HostSession& session) {
    Pointer at(session);
    at.go((at.*Goal)(), extend);
}

struct Action {
    Key key;
    void (*act)(HostSession& session);
};

constexpr auto actions = std::to_array<Action>({
    {key("Ctrl+B"), bold},
    {key("Ctrl+2"), bold},
    {key("Ctrl+I"), italic},
    {key("Ctrl+3"), italic},
    {key("Ctrl+U"), underline},
    {key("Ctrl+4"), underline},
    {key("Ctrl+5"), strike},
    {key("Ctrl+Shift+7"), borders<true>},
    {key("Ctrl+Shift+-"), borders<false>},
    {key("Ctrl+9"), set_hidden<true, true>},
    {key("Ctrl+Shift+9"), set_hidden<true, false>},
    {key("Ctrl+0"), set_hidden<false, true>},
    {key("Ctrl+Shift+0"), set_hidden<false, false>},
    {key("Alt+Shift+Right"), group},
    {key("Alt+Shift+Left"), ungroup},
    {key("Delete"), clear},
    {key("Ctrl+D"), fill_down},
    {key("Ctrl+R"), fill_right},
    {key("Ctrl+;"), enter_date},
    {key("Ctrl+Z"), undo},
    {key("Alt+Backspace"), undo},
    {key("Ctrl+Y"), repeat},
    {key("F4"), repeat},
    {key("Ctrl+A"), pointer<&Pointer::select_region_or_sheet>},
    {key("Ctrl+Shift+Space"), pointer<&Pointer::select_region_or_sheet>},
    {key("Ctrl+Shift+8"), pointer<&Pointer::select_region>},
    {key("Ctrl+Space"), pointer<&Pointer::select_columns>},
    {key("Shift+Space"), pointer<&Pointer::select_rows>},
    {key("Shift+Backspace"), pointer<&Pointer::select_cell>},
    {key("Home"), go<&Pointer::row_start, false>},
    {key("Shift+Home"), go<&Pointer::row_start, true>},
    {key("Ctrl+Home"), go<&Pointer::sheet_start, false>},
    {key("Ctrl+Shift+Home"), go<&Pointer::sheet_start, true>},
    {key("Ctrl+End"), go<&Pointer::sheet_end, false>},
    {key("Ctrl+Shift+End"), go<&Pointer::sheet_end, true>},
    {key("Enter"), next<false, false>},
    {key("Shift+Enter"), next<false, true>},
    {key("KeypadEnter"), next<false, false>},
    {key("Tab"), next<true, false>},
    {key("Shift+Tab"), next<true, true>},
    {key("Ctrl+PageDown"), go_to_sheet<1>},
    {key("Ctrl+PageUp"), go_to_sheet<-1>},
    {key("Ctrl+Alt+="), zoom<15>},
    {key("Ctrl+Alt+-"), zoom<-15>},
});

struct NumberFormat {
    Key key;
    std::string_view code;
};

constexpr auto number_formats = std::to_array<NumberFormat>({
    {key("Ctrl+Shift+`"), "General"},
    {key("Ctrl+Shift+1"), "#,##0.00"},
    {key("Ctrl+Shift+2"), "h:mm AM/PM"},
    {key("Ctrl+Shift+3"), "d-mmm-yy"},
    {key("Ctrl+Shift+4"), "$#,##0.00_);[Red]($#,##0.00)"},
    {key("Ctrl+Shift+5"), "0%"},
    {key("Ctrl+Shift+6"), "0.00E+00"},
});

struct Arrow {
    Named named;
    std::int32_t rows;
    std::int32_t columns;
    std::int32_t direction;
};

constexpr auto arrows = std::to_array<Arrow>({
    {Named::Up, -1, 0, xlUp},
    {Named::Down, 1, 0, xlDown},
    {Named::Left, 0, -1, xlToLeft},
    {Named::Right, 0, 1, xlToRight},
});

}  // namespace

bool act_as_excel(HostSession& session, const Key& pressed) {
    for (const Arrow& arrow : arrows) {
        if (!pressed.is(arrow.named) || pressed.alt) continue;
        if (pressed.ctrl)
            Pointer(session).run(arrow.direction, pressed.shift);
        else
            Pointer(session).step(arrow.rows, arrow.columns, pressed.shift);
        return true;
    }
    for (const NumberFormat& format : number_formats) {
        if (format.key != pressed) continue;
        automation::put(automation::to_required_object(selection(session)), "NumberFormat", format.code);
        return true;
    }
    for (const Action& action : actions) {
        if (action.key != pressed) continue;
        action.act(session);
        return true;
    }
    return false;
}

}  // namespace kestrune::host
