#include "host/objects/WorkbookObject.h"

#include <algorithm>

#include "host/model/CustomFormats.h"
#include "host/objects/NamesObject.h"
#include "host/objects/Optional.h"
#include "host/objects/SheetObject.h"
#include "host/objects/SheetsObject.h"
#include "host/objects/StylesObject.h"
#include "host/objects/WindowsObject.h"

namespace kestrune::host {
namespace {

constexpr auto palette_size = static_cast<std::int32_t>(std::tuple_size_v<Palette>);

std::size_t palette_position(const Value& index) {
    const std::int32_t position = automation::to_integer(index);
    if (position < 1 || position > palette_size) refuse("Workbook.Colors", "a palette has the colours 1 to 56");
    return static_cast<std::size_t>(position - 1);
}

std::uint32_t palette_color(const Value& color) {
    return static_cast<std::uint32_t>(automation::to_integer(color)) & 0xFFFFFFU;
}

}  // namespace

ObjectRef workbook_object(HostSession& session, Workbook& workbook) {
    return std::make_shared<WorkbookObject>(session, workbook);
}

ObjectRef WorkbookObject::worksheets() const { return std::make_shared<WorksheetsObject>(session(), workbook_); }
ObjectRef WorkbookObject::sheets() const { return std::make_shared<SheetsObject>(session(), workbook_); }
ObjectRef WorkbookObject::names() const { return std::make_shared<NamesObject>(session(), workbook_); }
ObjectRef WorkbookObject::windows() const { return std::make_shared<WindowsObject>(session(), &workbook_); }

ObjectRef WorkbookObject::active_sheet() const {
    const auto& sheets = workbook_.sheets();
    if (workbook_.active_sheet < 0 || workbook_.active_sheet >= static_cast<std::int32_t>(sheets.size())) {
        return nullptr;
    }
    return sheet_object(session(), *sheets[static_cast<std::size_t>(workbook_.active_sheet)]);
}

Value WorkbookObject::colors(const Value& index) const {
    if (!index.is(Value::Kind::Missing)) return static_cast<double>(workbook_.palette[palette_position(index)]);
    automation::Array all(automation::Array::Bound{1, palette_size});
    for (std::size_t i = 0; i < workbook_.palette.size(); ++i) {
        all.elements()[i] = static_cast<double>(workbook_.palette[i]);
    }
    return all;
}

void WorkbookObject::set_colors(const Value& index, const Value& color) {
    Palette palette = workbook_.palette;
    if (!index.is(Value::Kind::Missing)) {
        palette[palette_position(index)] = palette_color(color);
    } else {
        const automation::Array* all = color.array();
        if (!all || all->elements().size() != palette.size()) {
            refuse("Workbook.Colors", "a palette is an array of 56 colours");
        }
        for (std::size_t i = 0; i < palette.size(); ++i) palette[i] = palette_color(all->elements()[i]);
    }
    workbook_.palette = palette;
    workbook_.palette_changed = true;
    session().changed(workbook_);
}

void WorkbookObject::delete_number_format(const std::string& code) {
    if (!host::delete_number_format(workbook_, code)) {
        refuse("Workbook.DeleteNumberFormat", "'" + code + "' is no custom number format of the workbook");
    }
    session().changed(workbook_);
}

Value WorkbookObject::link_sources(const Value& type) const {
    constexpr std::int32_t xlExcelLinks = 1;
    if (value_or(type, xlExcelLinks) != xlExcelLinks || !workbook_.read_external_links) return {};
    const auto paths = workbook_.read_external_links();
    if (paths.empty()) return {};
    automation::Array list(automation::Array::Bound{1, static_cast<std::int32_t>(paths.size())});
    std::ranges::copy(paths, list.elements().begin());
    return list;
}

ObjectRef WorkbookObject::styles() const { return std::make_shared<StylesObject>(session(), workbook_); }

void WorkbookObject::reset_colors() {
    workbook_.palette = default_palette();
    workbook_.palette_changed = true;
    session().changed(workbook_);
}

void WorkbookObject::save() {
    OpenWorkbook& opened = session().opened(workbook_);
    if (!opened.stored) refuse("Workbook.Save", "'" + workbook_.name + "' came from no file");
    opened.stored->save();
    opened.saved = true;
}

void WorkbookObject::close(const Value& save_changes, const Value& file_name, const Value&) {
    if (!file_name.is(Value::Kind::Missing)) refuse("Workbook.Close", "a workbook is saved under its own name only");
    if (save_changes.is(Value::Kind::Missing)) {
        if (!saved() && session().display_alerts) {
            refuse("Workbook.Close", "'" + workbook_.name + "' has changes; SaveChanges tells what becomes of them");
        }
    } else if (automation::to_boolean(save_changes) && !saved()) {
        save();
    }
    session().close(workbook_);
}

const MemberTable& WorkbookObject::members() {
    using W = WorkbookObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&W::application>("Application", 1), read_only<&W::application>("Parent", 2),
        read_only<&W::name>("Name", 3), read_only<&W::path>("Path", 4), read_only<&W::full_name>("FullName", 5),
        read_only<&W::worksheets>("Worksheets", 6), read_only<&W::sheets>("Sheets", 7),
        read_only<&W::names>("Names", 8), read_only<&W::windows>("Windows", 9),
        read_only<&W::active_sheet>("ActiveSheet", 10), method<&W::activate>("Activate", 11),
        property<&W::colors, &W::set_colors>("Colors", 12, "[Index]"), method<&W::reset_colors>("ResetColors", 13),
        property<&W::saved, &W::set_saved>("Saved", 14), read_only<&W::protect_structure>("ProtectStructure", 15),
        read_only<&W::date1904>("Date1904", 16), method<&W::save>("Save", 17),
        method<&W::close>("Close", 18, "[SaveChanges], [FileName], [RouteWorkbook]"),
        method<&W::delete_number_format>("DeleteNumberFormat", 19, "NumberFormat"),
        method<&W::link_sources>("LinkSources", 20, "[Type]"), read_only<&W::styles>("Styles", 21));
    static constexpr MemberTable table("Workbook", rows);
    return table;
}

}  // namespace kestrune::host
