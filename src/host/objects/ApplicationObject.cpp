#include "host/objects/ApplicationObject.h"

#include <algorithm>
#include <ranges>

#include "host/objects/AreaSets.h"
#include "host/objects/ManyArguments.h"
#include "host/objects/NamesObject.h"
#include "host/objects/Optional.h"
#include "host/objects/RangeObject.h"
#include "host/objects/RangeReference.h"
#include "host/objects/SheetObject.h"
#include "host/objects/SheetsObject.h"
#include "host/objects/WindowObject.h"
#include "host/objects/WindowsObject.h"
#include "host/objects/WorkbooksObject.h"
#include "host/objects/bars/CommandBarsObject.h"
#include "keys/OnKeyText.h"

namespace kestrune::host {
namespace {

// Points that the application's own bars take at the top, and its status bar at the bottom.
constexpr double bars = 180;

std::vector<CellRange> ranges_of(std::string_view member, std::span<const Value> arguments) {
    std::vector<CellRange> ranges;
    for (const Value& argument : arguments) {
        if (argument.is(Value::Kind::Missing)) continue;
        ranges.push_back(range_argument(member, argument)->cell_range());
        if (&ranges.back().sheet() != &ranges.front().sheet()) refuse(member, "the ranges are on different sheets");
    }
    return ranges;
}

// Union and Intersect take up to thirty ranges, which no signature spells out.
constexpr std::string_view thirty_ranges =
    "Arg1, Arg2, [Arg3], [Arg4], [Arg5], [Arg6], [Arg7], [Arg8], [Arg9], [Arg10], [Arg11], [Arg12], [Arg13], [Arg14], "
    "[Arg15], [Arg16], [Arg17], [Arg18], [Arg19], [Arg20], [Arg21], [Arg22], [Arg23], [Arg24], [Arg25], [Arg26], "
    "[Arg27], [Arg28], [Arg29], [Arg30]";

constexpr std::string_view macro_and_thirty_arguments =
    "[Macro], [Arg1], [Arg2], [Arg3], [Arg4], [Arg5], [Arg6], [Arg7], [Arg8], [Arg9], [Arg10], [Arg11], [Arg12], "
    "[Arg13], [Arg14], [Arg15], [Arg16], [Arg17], [Arg18], [Arg19], [Arg20], [Arg21], [Arg22], [Arg23], [Arg24], "
    "[Arg25], [Arg26], [Arg27], [Arg28], [Arg29], [Arg30]";

}  // namespace

ObjectRef make_application(HostSession& session) { return std::make_shared<ApplicationObject>(session); }

Workbook& ApplicationObject::workbook(std::string_view member) const {
    if (!session().active()) refuse(member, "no workbook is open");
    return *session().active()->model;
}

Sheet& ApplicationObject::worksheet(std::string_view member) const {
    Sheet* sheet = session().active_sheet();
    if (!sheet || sheet->kind() != SheetKind::Worksheet) refuse(member, "no worksheet is active");
    return *sheet;
}

ObjectRef ApplicationObject::workbooks() const { return std::make_shared<WorkbooksObject>(session()); }
ObjectRef ApplicationObject::windows() const { return std::make_shared<WindowsObject>(session(), nullptr); }

ObjectRef ApplicationObject::command_bars() const { return std::make_shared<CommandBarsObject>(session()); }

ObjectRef ApplicationObject::active_workbook() const {
    OpenWorkbook* active = session().active();
    return active ? workbook_object(session(), *active->model) : nullptr;
}

ObjectRef ApplicationObject::active_window() const {
    OpenWorkbook* active = session().active();
    return active ? std::make_shared<WindowObject>(session(), *active) : nullptr;
}

ObjectRef ApplicationObject::active_sheet() const {
    Sheet* sheet = session().active_sheet();
    return sheet ? sheet_object(session(), *sheet) : nullptr;
}

ObjectRef ApplicationObject::active_cell() const {
    OpenWorkbook* active = session().active();
    return active ? WindowObject(session(), *active).active_cell() : nullptr;
}

ObjectRef ApplicationObject::selection() const {
    OpenWorkbook* active = session().active();
    return active ? WindowObject(session(), *active).selection() : nullptr;
}

ObjectRef ApplicationObject::worksheets() const {
    return std::make_shared<WorksheetsObject>(session(), workbook("Application.Worksheets"));
}

ObjectRef ApplicationObject::sheets() const {
    return std::make_shared<SheetsObject>(session(), workbook("Application.Sheets"));
}

ObjectRef ApplicationObject::names() const {
    return std::make_shared<NamesObject>(session(), workbook("Application.Names"));
}

ObjectRef ApplicationObject::range(const Value& cell1, const Value& cell2) const {
    constexpr std::string_view member = "Application.Range";
    return std::make_shared<RangeObject>(range_anywhere(member, session(), worksheet(member), cell1, cell2));
}

ObjectRef ApplicationObject::whole_sheet(std::string_view member, bool rows, bool columns) const {
    const auto unit = rows ? RangeObject::Unit::Rows : columns ? RangeObject::Unit::Columns : RangeObject::Unit::Cells;
    return std::make_shared<RangeObject>(CellRange(session(), worksheet(member), {Area::sheet()}), unit);
}

ObjectRef ApplicationObject::cells() const { return whole_sheet("Application.Cells", false, false); }
ObjectRef ApplicationObject::rows() const { return whole_sheet("Application.Rows", true, false); }
ObjectRef ApplicationObject::columns() const { return whole_sheet("Application.Columns", false, true); }

ObjectRef ApplicationObject::unite(std::span<const Value> arguments) const {
    const auto ranges = ranges_of("Application.Union", arguments);
    std::vector<Area> areas;
    for (const CellRange& range : ranges) {
        for (const Area& area : range.areas()) add_area(areas, area);
    }
    return std::make_shared<RangeObject>(CellRange(session(), ranges.front().sheet(), std::move(areas)));
}

ObjectRef ApplicationObject::intersect(std::span<const Value> arguments) const {
    const auto ranges = ranges_of("Application.Intersect", arguments);
    std::vector<Area> areas = ranges.front().areas();
    for (const CellRange& range : ranges | std::views::drop(1)) areas = common_areas(areas, range.areas());
    if (areas.empty()) return nullptr;
    return std::make_shared<RangeObject>(CellRange(session(), ranges.front().sheet(), std::move(areas)));
}

void ApplicationObject::go_to(const Value& reference, const Value& scroll) {
    constexpr std::string_view member = "Application.Goto";
    // Cells are where they are; a text counts from the active sheet.
    RangeObject target(reference.if_is<std::string>()
                           ? range_anywhere(member, session(), worksheet(member), reference, Missing{})
                           : range_argument(member, reference)->cell_range());
    Sheet& sheet = target.cell_range().sheet();
    if (!session().activate(sheet)) refuse(member, "the sheet '" + sheet.name() + "' is hidden");
    target.select();
    if (value_or(scroll, false)) session().active()->scroll[&sheet] = target.cell_range().first().top_left();
}

Value ApplicationObject::run(std::span<const Value> arguments) {
    while (!arguments.empty() && arguments.back().is(Value::Kind::Missing)) {
        arguments = arguments.first(arguments.size() - 1);
    }
    if (arguments.empty()) refuse("Application.Run", "no macro is named");
    return session().run_macro(automation::to_text(arguments.front()), arguments.subspan(1));
}

namespace {

std::optional<WaitingMacro> waiting(const std::string& text, const std::string& procedure) {
    if (procedure.empty()) return {};
    return WaitingMacro{text, procedure};
}

}  // namespace

void ApplicationObject::on_undo(const std::string& text, const std::string& procedure) {
    session().on_undo = waiting(text, procedure);
}

void ApplicationObject::on_repeat(const std::string& text, const std::string& procedure) {
    session().on_repeat = waiting(text, procedure);
}

void ApplicationObject::on_key(const std::string& key, const std::optional<std::string>& procedure) {
    const auto read = keys::read_on_key(key);
    if (!read) refuse("Application.OnKey", "there is no key '" + key + "'");
    if (procedure)
        session().bound_keys.insert_or_assign(*read, *procedure);
    else
        session().bound_keys.erase(*read);
}

void ApplicationObject::set_calculation(std::int32_t mode) {
    if (mode != xlAutomatic && mode != xlCalculationManual && mode != xlCalculationSemiautomatic) {
        refuse("Application.Calculation", "there is no such calculation mode");
    }
    if (!session().active()) refuse("Application.Calculation", "no workbook is open");
    session().calculation = mode;
}

void ApplicationObject::set_status_bar(const Value& text) {
    const bool* on = text.if_is<bool>();
    session().status_bar = on && !*on ? Value(false) : Value(automation::to_text(text));
}

Value ApplicationObject::cut_copy_mode() const {
    return session().cut_copy_mode == 0 ? Value(false) : Value(session().cut_copy_mode);
}

void ApplicationObject::set_cut_copy_mode(const Value& mode) {
    // Whatever is written ends the mode; only a copy or a cut begins one.
    (void)automation::to_integer(mode);
    session().cut_copy_mode = 0;
}

void ApplicationObject::set_reference_style(std::int32_t style) {
    if (style != xlA1 && style != xlR1C1) {
        refuse("Application.ReferenceStyle", "the reference style is xlA1 or xlR1C1");
    }
    session().reference_style = style;
}

std::string ApplicationObject::caption() const { return session().caption.empty() ? name() : session().caption; }

void ApplicationObject::set_caption(const Value& caption) { session().caption = automation::to_text(caption); }

Rectangle ApplicationObject::window_space() const {
    const Rectangle whole = shown();
    return {0, 0, whole.width, std::max(whole.height - bars, 0.0)};
}

const MemberTable& ApplicationObject::members() {
    using A = ApplicationObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&A::application>("Application", 1), read_only<&A::application>("Parent", 2),
        read_only<&A::name>("Name", 3), read_only<&A::version>("Version", 4), read_only<&A::workbooks>("Workbooks", 5),
        read_only<&A::windows>("Windows", 6), read_only<&A::active_workbook>("ActiveWorkbook", 7),
        read_only<&A::active_window>("ActiveWindow", 8), read_only<&A::active_sheet>("ActiveSheet", 9),
        read_only<&A::active_cell>("ActiveCell", 10), read_only<&A::selection>("Selection", 11),
        read_only<&A::worksheets>("Worksheets", 12), read_only<&A::sheets>("Sheets", 13),
        read_only<&A::names>("Names", 14), read_only<&A::range>("Range", 15, "Cell1, [Cell2]"),
        read_only<&A::cells>("Cells", 16), read_only<&A::rows>("Rows", 17), read_only<&A::columns>("Columns", 18),
        of_many<&A::unite>("Union", 19, thirty_ranges), of_many<&A::intersect>("Intersect", 20, thirty_ranges),
        method<&A::go_to>("Goto", 21, "[Reference], [Scroll]"),
        property<&A::screen_updating, &A::set_screen_updating>("ScreenUpdating", 22),
        property<&A::enable_events, &A::set_enable_events>("EnableEvents", 23),
        property<&A::display_alerts, &A::set_display_alerts>("DisplayAlerts", 24),
        property<&A::interactive, &A::set_interactive>("Interactive", 25),
        property<&A::visible, &A::set_visible>("Visible", 26), read_only<&A::ready>("Ready", 27),
        property<&A::calculation, &A::set_calculation>("Calculation", 28),
        property<&A::status_bar, &A::set_status_bar>("StatusBar", 29),
        property<&A::cut_copy_mode, &A::set_cut_copy_mode>("CutCopyMode", 30),
        property<&A::cursor, &A::set_cursor>("Cursor", 31),
        property<&A::reference_style, &A::set_reference_style>("ReferenceStyle", 32),
        property<&A::caption, &A::set_caption>("Caption", 33),
        property<&A::window_state, &A::set_window_state>("WindowState", 34),
        property<&A::left, &A::set_left>("Left", 35), property<&A::top, &A::set_top>("Top", 36),
        property<&A::width, &A::set_width>("Width", 37), property<&A::height, &A::set_height>("Height", 38),
        read_only<&A::usable_width>("UsableWidth", 39), read_only<&A::usable_height>("UsableHeight", 40),
        of_many<&A::run>("Run", 41, macro_and_thirty_arguments), read_only<&A::command_bars>("CommandBars", 42),
        method<&A::on_undo>("OnUndo", 43, "Text, Procedure"), method<&A::on_repeat>("OnRepeat", 44, "Text, Procedure"),
        method<&A::undo>("Undo", 45), method<&A::repeat>("Repeat", 46),
        method<&A::on_key>("OnKey", 47, "Key, [Procedure]"));
    static constexpr MemberTable table("Application", rows);
    return table;
}

}  // namespace kestrune::host
