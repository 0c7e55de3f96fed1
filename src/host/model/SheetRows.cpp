#include <cmath>

#include "host/model/ColumnWidth.h"
#include "host/model/Sheet.h"
#include "host/model/Workbook.h"

namespace kestrune::host {

RowFormat Sheet::new_row_format() const {
    RowFormat row;
    row.hidden = defaults_.zero_height;
    return row;
}

double Sheet::row_height(std::int32_t row) {
    const RowFormat* format = row_format(row);
    if (!format) return defaults_.zero_height ? 0 : defaults_.default_row_height;
    if (format->hidden) return 0;
    return format->height < 0 ? defaults_.default_row_height : format->height;
}

const RowFormat* Sheet::row_format(std::int32_t row) {
    const auto found = row_formats().find(row);
    return found == rows_.end() ? nullptr : &found->second;
}

const std::map<std::int32_t, RowFormat>& Sheet::row_formats() {
    ensure_loaded();
    return rows_;
}

void Sheet::change_rows(std::int32_t first, std::int32_t last, const std::function<void(RowFormat&)>& change) {
    ensure_loaded();
    // A row without a format stays without one when the change makes no difference to it.
    const RowFormat plain = new_row_format();
    RowFormat changed_plain = plain;
    change(changed_plain);
    changed_plain.changed = plain.changed;
    const bool all = !(changed_plain == plain);
    changed_plain.changed = true;

    for (auto place = rows_.lower_bound(first); place != rows_.end() && place->first <= last; ++place) {
        RowFormat& row = place->second;
        const RowFormat before = row;
        change(row);
        row.changed = before.changed;
        if (row == before) continue;
        row.changed = true;
        rows_changed = true;
        if (row.has_style != before.has_style || row.style != before.style) styled_rows_known_ = false;
    }
    if (!all) return;
    auto place = rows_.lower_bound(first);
    for (std::int32_t row = first; row <= last; ++row) {
        if (place == rows_.end() || place->first != row) {
            place = rows_.emplace_hint(place, row, changed_plain);
            rows_changed = true;
            if (changed_plain.has_style) styled_rows_known_ = false;
        }
        ++place;
    }
}

void Sheet::set_row_height(std::int32_t first, std::int32_t last, double points) {
    const double height = known_heights_.contains(points) ? points : whole_pixel_points(points);
    if (first == 1 && last == formula::max_rows) {
        ensure_loaded();
        const bool hides = height == 0;
        if (defaults_.zero_height != hides ||
            (!hides && (defaults_.default_row_height != height || !defaults_.custom_default_height))) {
            defaults_.zero_height = hides;
            if (!hides) {
                defaults_.default_row_height = height;
                defaults_.custom_default_height = true;
            }
            defaults_.changed = true;
        }
        // Rows with a format of their own follow one by one.
        if (rows_.empty()) return;
        for (auto row = rows_.begin(); row != rows_.end(); ++row) {
            const RowFormat before = row->second;
            row->second.hidden = hides;
            if (!hides && (row->second.height >= 0 || row->second.custom_height)) {
                row->second.height = -1;
                row->second.custom_height = false;
            }
            if (row->second == before) continue;
            row->second.changed = true;
            rows_changed = true;
        }
        return;
    }
    change_rows(first, last, [height](RowFormat& row) {
        // A hidden row keeps its height for the day it is shown again.
        row.hidden = height == 0;
        if (height == 0) return;
        row.height = height;
        row.custom_height = true;
    });
}

ColumnRuns& Sheet::columns() {
    ensure_loaded();
    return columns_;
}

std::int32_t Sheet::default_column_pixels() const {
    const std::int32_t digit = workbook_.digit_pixels();
    return defaults_.default_column_width < 0 ? standard_column_pixels(defaults_.base_column_width, digit)
                                              : pixels_of_stored_width(defaults_.default_column_width, digit);
}

std::int32_t Sheet::column_pixels(std::int32_t column) {
    const ColumnRun run = columns().at(column);
    if (run.hidden) return 0;
    return run.width < 0 ? default_column_pixels() : pixels_of_stored_width(run.width, workbook_.digit_pixels());
}

double Sheet::column_width(std::int32_t column) {
    return characters_of_pixels(column_pixels(column), workbook_.digit_pixels());
}

void Sheet::set_column_width(std::int32_t first, std::int32_t last, double characters) {
    const std::int32_t digit = workbook_.digit_pixels();
    const std::int32_t pixels = pixels_of_characters(characters, digit);
    const double width = stored_width_of_pixels(pixels, digit);
    columns().change(first, last, [&](ColumnRun& run) {
        run.hidden = pixels == 0;
        if (run.hidden) return;
        run.width = width;
        run.custom_width = true;
        run.best_fit = false;
    });
}

}  // namespace kestrune::host
