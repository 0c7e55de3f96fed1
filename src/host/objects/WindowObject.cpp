#include "host/objects/WindowObject.h"

#include "host/objects/ApplicationObject.h"
#include "host/objects/RangeObject.h"
#include "host/objects/SheetObject.h"

namespace kestrune::host {

ObjectRef WindowObject::parent() const { return workbook_object(session(), *opened_.model); }

std::string WindowObject::caption() const { return opened_.caption.empty() ? opened_.model->name : opened_.caption; }

Rectangle WindowObject::space() const { return ApplicationObject(session()).window_space(); }

Sheet* WindowObject::worksheet() const {
    const auto& sheets = opened_.model->sheets();
    const std::int32_t position = opened_.model->active_sheet;
    if (position < 0 || position >= static_cast<std::int32_t>(sheets.size())) return nullptr;
    Sheet* sheet = sheets[static_cast<std::size_t>(position)].get();
    if (sheet->kind() != SheetKind::Worksheet) return nullptr;
    sheet->ensure_loaded();
    return sheet;
}

Sheet& WindowObject::sheet() const {
    Sheet* sheet = worksheet();
    if (!sheet) refuse("Window", "the active sheet has no cells");
    return *sheet;
}

void WindowObject::view_changed(Sheet& sheet) const {
    sheet.view().changed = true;
    opened_.saved = false;
}

ObjectRef WindowObject::active_sheet() const {
    const auto& sheets = opened_.model->sheets();
    const std::int32_t position = opened_.model->active_sheet;
    if (position < 0 || position >= static_cast<std::int32_t>(sheets.size())) return nullptr;
    return sheet_object(session(), *sheets[static_cast<std::size_t>(position)]);
}

ObjectRef WindowObject::active_cell() const {
    Sheet* sheet = worksheet();
    if (!sheet) return nullptr;
    return std::make_shared<RangeObject>(CellRange(session(), *sheet, {Area::cell(sheet->view().active_cell)}));
}

ObjectRef WindowObject::selection() const {
    Sheet* sheet = worksheet();
    if (!sheet) return nullptr;
    std::vector<Area> areas = sheet->view().selection;
    if (areas.empty()) areas.push_back(Area::cell(sheet->view().active_cell));
    return std::make_shared<RangeObject>(CellRange(session(), *sheet, std::move(areas)));
}

std::int32_t WindowObject::zoom() const { return sheet().view().zoom; }

void WindowObject::set_zoom(std::int32_t percent) {
    if (percent < 10 || percent > 400) refuse("Window.Zoom", "a zoom is 10 to 400 per cent");
    Sheet& shown = sheet();
    if (shown.view().zoom == percent) return;
    shown.view().zoom = percent;
    view_changed(shown);
}

bool WindowObject::display_gridlines() const { return sheet().view().show_gridlines; }

void WindowObject::set_display_gridlines(bool shown) {
    sheet().view().show_gridlines = shown;
    view_changed(sheet());
}

bool WindowObject::display_headings() const { return sheet().view().show_headings; }

void WindowObject::set_display_headings(bool shown) {
    sheet().view().show_headings = shown;
    view_changed(sheet());
}

bool WindowObject::display_zeros() const { return sheet().view().show_zeros; }

void WindowObject::set_display_zeros(bool shown) {
    sheet().view().show_zeros = shown;
    view_changed(sheet());
}

bool WindowObject::freeze_panes() const { return split_row() > 0 || split_column() > 0; }
std::int32_t WindowObject::split_row() const { return sheet().view().frozen_rows; }
std::int32_t WindowObject::split_column() const { return sheet().view().frozen_columns; }

std::int32_t WindowObject::scroll_row() const {
    const auto place = opened_.scroll.find(&sheet());
    return place == opened_.scroll.end() ? 1 : place->second.row;
}

void WindowObject::set_scroll_row(std::int32_t row) {
    if (row < 1 || row > formula::max_rows) refuse("Window.ScrollRow", "there is no such row");
    opened_.scroll[&sheet()].row = row;
}

std::int32_t WindowObject::scroll_column() const {
    const auto place = opened_.scroll.find(&sheet());
    return place == opened_.scroll.end() ? 1 : place->second.column;
}

void WindowObject::set_scroll_column(std::int32_t column) {
    if (column < 1 || column > formula::max_columns) refuse("Window.ScrollColumn", "there is no such column");
    opened_.scroll[&sheet()].column = column;
}

const MemberTable& WindowObject::members() {
    using W = WindowObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&W::application>("Application", 1), read_only<&W::parent>("Parent", 2),
        method<&W::activate>("Activate", 3), property<&W::caption, &W::set_caption>("Caption", 4),
        read_only<&W::index>("Index", 5), read_only<&W::active_sheet>("ActiveSheet", 6),
        read_only<&W::active_cell>("ActiveCell", 7), read_only<&W::selection>("Selection", 8),
        read_only<&W::selection>("RangeSelection", 9), property<&W::zoom, &W::set_zoom>("Zoom", 10),
        property<&W::display_gridlines, &W::set_display_gridlines>("DisplayGridlines", 11),
        property<&W::display_headings, &W::set_display_headings>("DisplayHeadings", 12),
        property<&W::display_zeros, &W::set_display_zeros>("DisplayZeros", 13),
        read_only<&W::freeze_panes>("FreezePanes", 14), read_only<&W::split_row>("SplitRow", 15),
        read_only<&W::split_column>("SplitColumn", 16), property<&W::scroll_row, &W::set_scroll_row>("ScrollRow", 17),
        property<&W::scroll_column, &W::set_scroll_column>("ScrollColumn", 18),
        property<&W::window_state, &W::set_window_state>("WindowState", 19),
        property<&W::left, &W::set_left>("Left", 20), property<&W::top, &W::set_top>("Top", 21),
        property<&W::width, &W::set_width>("Width", 22), property<&W::height, &W::set_height>("Height", 23),
        read_only<&W::usable_width>("UsableWidth", 24), read_only<&W::usable_height>("UsableHeight", 25));
    static constexpr MemberTable table("Window", rows);
    return table;
}

}  // namespace kestrune::host
