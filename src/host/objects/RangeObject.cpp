#include "host/objects/RangeObject.h"

#include "host/objects/Items.h"
#include "host/objects/Refusal.h"

namespace kestrune::host {

std::shared_ptr<RangeObject> range_argument(std::string_view member, const Value& argument) {
    if (const auto* object = argument.if_is<ObjectRef>()) {
        if (auto range = std::dynamic_pointer_cast<RangeObject>(*object)) return range;
    }
    refuse(member, "a range is required");
}

const MemberTable& RangeObject::members() {
    using R = RangeObject;
    static constexpr auto rows = automation::member_rows(
        enumeration<&R::new_enum>(),
        property<&R::default_value, &R::set_default_value>("_Default", 0, "[RowIndex], [ColumnIndex]"),
        read_only<&R::application>("Application", 1), read_only<&R::worksheet>("Parent", 2),
        read_only<&R::worksheet>("Worksheet", 3),
        read_only<&R::address>("Address", 4,
                               "[RowAbsolute], [ColumnAbsolute], [ReferenceStyle], [External], [RelativeTo]"),
        read_only<&R::row>("Row", 5), read_only<&R::column>("Column", 6), read_only<&R::count>("Count", 7),
        read_only<&R::count_large>("CountLarge", 8), method<&R::select>("Select", 9),
        method<&R::activate>("Activate", 10), read_only<&R::areas>("Areas", 11), read_only<&R::cells>("Cells", 12),
        read_only<&R::rows>("Rows", 13), read_only<&R::columns>("Columns", 14),
        read_only<&R::entire_row>("EntireRow", 15), read_only<&R::entire_column>("EntireColumn", 16),
        read_only<&R::item>("Item", 17, "RowIndex, [ColumnIndex]"), read_only<&R::range>("Range", 18, "Cell1, [Cell2]"),
        read_only<&R::offset>("Offset", 19, "[RowOffset], [ColumnOffset]"),
        read_only<&R::resize>("Resize", 20, "[RowSize], [ColumnSize]"), read_only<&R::end>("End", 21, "Direction"),
        read_only<&R::current_region>("CurrentRegion", 22), read_only<&R::next>("Next", 23),
        read_only<&R::previous>("Previous", 24),
        property<&R::value, &R::set_value>("Value", 25, "[RangeValueDataType]"),
        property<&R::value2, &R::set_value2>("Value2", 26), property<&R::formula, &R::set_formula>("Formula", 27),
        property<&R::formula_r1c1, &R::set_formula_r1c1>("FormulaR1C1", 28),
        read_only<&R::has_formula>("HasFormula", 29), read_only<&R::has_array>("HasArray", 30),
        property<&R::formula_array, &R::set_formula_array>("FormulaArray", 31),
        read_only<&R::current_array>("CurrentArray", 32), read_only<&R::text>("Text", 33),
        read_only<&R::prefix_character>("PrefixCharacter", 34), method<&R::clear>("Clear", 35),
        method<&R::clear_contents>("ClearContents", 36), method<&R::clear_formats>("ClearFormats", 37),
        read_only<&R::font>("Font", 38), read_only<&R::interior>("Interior", 39), read_only<&R::borders>("Borders", 40),
        read_only<&R::format_conditions>("FormatConditions", 41),
        property<&R::number_format, &R::set_number_format>("NumberFormat", 42),
        property<&R::horizontal_alignment, &R::set_horizontal_alignment>("HorizontalAlignment", 43),
        property<&R::vertical_alignment, &R::set_vertical_alignment>("VerticalAlignment", 44),
        property<&R::orientation, &R::set_orientation>("Orientation", 45),
        property<&R::indent_level, &R::set_indent_level>("IndentLevel", 46),
        property<&R::add_indent, &R::set_add_indent>("AddIndent", 47),
        property<&R::shrink_to_fit, &R::set_shrink_to_fit>("ShrinkToFit", 48),
        property<&R::wrap_text, &R::set_wrap_text>("WrapText", 49), property<&R::locked, &R::set_locked>("Locked", 50),
        property<&R::formula_hidden, &R::set_formula_hidden>("FormulaHidden", 51),
        property<&R::row_height, &R::set_row_height>("RowHeight", 52),
        property<&R::column_width, &R::set_column_width>("ColumnWidth", 53),
        property<&R::use_standard_height, &R::set_use_standard_height>("UseStandardHeight", 54),
        property<&R::use_standard_width, &R::set_use_standard_width>("UseStandardWidth", 55),
        read_only<&R::height>("Height", 56), read_only<&R::width>("Width", 57), read_only<&R::left>("Left", 58),
        read_only<&R::top>("Top", 59), property<&R::hidden, &R::set_hidden>("Hidden", 60),
        property<&R::outline_level, &R::set_outline_level>("OutlineLevel", 61),
        property<&R::merge_cells, &R::set_merge_cells>("MergeCells", 62), read_only<&R::merge_area>("MergeArea", 63),
        method<&R::merge>("Merge", 64, "[Across]"), method<&R::un_merge>("UnMerge", 65),
        read_only<&R::hyperlinks>("Hyperlinks", 66), method<&R::group>("Group", 67, "[Start], [End], [By], [Periods]"),
        method<&R::ungroup>("Ungroup", 68), method<&R::special_cells>("SpecialCells", 69, "Type, [Value]"),
        method<&R::insert>("Insert", 70, "[Shift], [CopyOrigin]"), method<&R::remove>("Delete", 71, "[Shift]"),
        method<&R::auto_fit>("AutoFit", 72), property<&R::style, &R::set_style>("Style", 73),
        property<&R::reading_order, &R::set_reading_order>("ReadingOrder", 74));
    static constexpr MemberTable table("Range", rows);
    return table;
}

}  // namespace kestrune::host
