#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "excel/Areas.h"
#include "excel/Borders.h"
#include "excel/Font.h"
#include "excel/FormatConditions.h"
#include "excel/Hyperlink.h"
#include "excel/Interior.h"

namespace kestrune::excel {

class Worksheet;

// One cell, a rectangle of cells, or several rectangles. A reading that gives back a Value answers
// Null when the cells differ.
class Range : public Facade<Range> {
  public:
    static constexpr std::string_view class_name = "Range";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Activate", Access::method},
        {"AddIndent", Access::get_put},
        {"Address", Access::get, "RowAbsolute ColumnAbsolute ReferenceStyle External RelativeTo"},
        {"Areas", Access::get},
        {"AutoFit", Access::method},
        {"Borders", Access::get},
        {"Cells", Access::get},
        {"ClearFormats", Access::method},
        {"Column", Access::get},
        {"ColumnWidth", Access::get_put},
        {"Columns", Access::get},
        {"Count", Access::get},
        {"CountLarge", Access::get},
        {"CurrentArray", Access::get},
        {"Delete", Access::method, "Shift"},
        {"EntireColumn", Access::get},
        {"EntireRow", Access::get},
        {"Font", Access::get},
        {"FormatConditions", Access::get},
        {"Formula", Access::get_put},
        {"Formula2", Access::get_put},
        {"FormulaArray", Access::get_put},
        {"FormulaHidden", Access::get_put},
        {"FormulaR1C1", Access::get_put},
        {"Group", Access::method, "Start End By Periods"},
        {"HasArray", Access::get},
        {"HasFormula", Access::get},
        {"Hidden", Access::get_put},
        {"HorizontalAlignment", Access::get_put},
        {"Hyperlinks", Access::get},
        {"IndentLevel", Access::get_put},
        {"Insert", Access::method, "Shift CopyOrigin"},
        {"Interior", Access::get},
        {"Item", Access::get, "RowIndex! ColumnIndex"},
        {"Locked", Access::get_put},
        {"MergeArea", Access::get},
        {"MergeCells", Access::get_put},
        {"NumberFormat", Access::get_put},
        {"Orientation", Access::get_put},
        {"OutlineLevel", Access::get_put},
        {"Parent", Access::get},
        {"PrefixCharacter", Access::get},
        {"ReadingOrder", Access::get_put},
        {"Resize", Access::get, "RowSize ColumnSize"},
        {"Row", Access::get},
        {"RowHeight", Access::get_put},
        {"Rows", Access::get},
        {"SavedAsArray", Access::get},
        {"Select", Access::method},
        {"ShrinkToFit", Access::get_put},
        {"SpillParent", Access::get},
        {"SpecialCells", Access::method, "Type! Value"},
        {"Style", Access::get_put},
        {"Text", Access::get},
        {"Ungroup", Access::method},
        {"UseStandardHeight", Access::get_put},
        {"UseStandardWidth", Access::get_put},
        {"Value", Access::get_put, "RangeValueDataType"},
        {"Value2", Access::get_put},
        {"VerticalAlignment", Access::get_put},
        {"Worksheet", Access::get},
        {"WrapText", Access::get_put},
    });
    using Facade::Facade;

    // Whether an object is a range: a selection may as well be a chart or a shape.
    static bool is(const ObjectRef& object) { return object && object->type_name() == class_name; }

    // Makes a cell of the selection the active one; selects it when it is not part of that.
    void Activate() const { call("Activate"); }
    [[nodiscard]] excel::Value AddIndent() const { return get("AddIndent"); }  // of distributed texts
    void AddIndent(excel::Value value) const { put("AddIndent", std::move(value)); }
    // "$B$2:$C$5", several areas parted by commas.
    [[nodiscard]] std::string Address() const { return get<std::string>("Address"); }
    // In the reference style asked for (xlA1, xlR1C1); external puts "[Book]Sheet!" in front.
    [[nodiscard]] std::string Address(bool row_absolute, bool column_absolute, std::int32_t reference_style,
                                      bool external) const {
        return get<std::string>("Address", row_absolute, column_absolute, reference_style, external);
    }
    [[nodiscard]] excel::Areas Areas() const { return get<excel::Areas>("Areas"); }
    // Of whole rows, or columns.
    void AutoFit() const { call("AutoFit"); }
    [[nodiscard]] excel::Borders Borders() const { return get<excel::Borders>("Borders"); }
    [[nodiscard]] Border Borders(std::int32_t index) const { return Borders().Item(index); }  // XlBordersIndex
    [[nodiscard]] Range Cells() const { return get<Range>("Cells"); }
    // One cell, counted from 1 from the top-left cell of the first area.
    [[nodiscard]] Range Cells(std::int32_t row, std::int32_t column) const { return Cells().Item(row, column); }
    // Formats, conditional ones and merges; what the cells hold stays.
    void ClearFormats() const { call("ClearFormats"); }
    [[nodiscard]] std::int32_t Column() const { return get<std::int32_t>("Column"); }  // from 1
    [[nodiscard]] excel::Value ColumnWidth() const { return get("ColumnWidth"); }      // characters of the Normal font
    void ColumnWidth(excel::Value value) const { put("ColumnWidth", std::move(value)); }
    [[nodiscard]] Range Columns() const { return get<Range>("Columns"); }
    // Fails from 2,147,483,648 cells on.
    [[nodiscard]] std::int32_t Count() const { return get<std::int32_t>("Count"); }
    [[nodiscard]] double CountLarge() const { return get<double>("CountLarge"); }
    // The whole array that a cell is part of; fails when it is part of none.
    [[nodiscard]] Range CurrentArray() const { return get<Range>("CurrentArray"); }
    void Delete(std::int32_t shift) const { call("Delete", shift); }  // XlDeleteShiftDirection
    [[nodiscard]] Range EntireColumn() const { return get<Range>("EntireColumn"); }
    [[nodiscard]] Range EntireRow() const { return get<Range>("EntireRow"); }
    [[nodiscard]] excel::Font Font() const { return get<excel::Font>("Font"); }
    [[nodiscard]] excel::FormatConditions FormatConditions() const {
        return get<excel::FormatConditions>("FormatConditions");
    }
    [[nodiscard]] excel::Value Formula() const { return get("Formula"); }  // a 2-D array for several cells
    void Formula(excel::Value value) const { put("Formula", std::move(value)); }
    // With arrays where a formula gives them, of Excel with dynamic arrays only.
    [[nodiscard]] excel::Value Formula2() const { return get("Formula2"); }
    void Formula2(excel::Value value) const { put("Formula2", std::move(value)); }
    // One formula for all the cells.
    [[nodiscard]] excel::Value FormulaArray() const { return get("FormulaArray"); }
    void FormulaArray(std::string_view formula) const { put("FormulaArray", formula); }  // A1 or R1C1, with "="
    [[nodiscard]] excel::Value FormulaHidden() const { return get("FormulaHidden"); }    // while the sheet is protected
    void FormulaHidden(excel::Value value) const { put("FormulaHidden", std::move(value)); }
    [[nodiscard]] excel::Value FormulaR1C1() const { return get("FormulaR1C1"); }
    void FormulaR1C1(excel::Value value) const { put("FormulaR1C1", std::move(value)); }
    void Group() const { call("Group"); }                                    // one outline level deeper
    [[nodiscard]] excel::Value HasArray() const { return get("HasArray"); }  // part of an array formula
    [[nodiscard]] excel::Value HasFormula() const { return get("HasFormula"); }
    [[nodiscard]] excel::Value Hidden() const { return get("Hidden"); }  // whole rows or whole columns only
    void Hidden(excel::Value value) const { put("Hidden", std::move(value)); }
    [[nodiscard]] excel::Value HorizontalAlignment() const { return get("HorizontalAlignment"); }
    void HorizontalAlignment(excel::Value value) const { put("HorizontalAlignment", std::move(value)); }
    [[nodiscard]] excel::Hyperlinks Hyperlinks() const { return get<excel::Hyperlinks>("Hyperlinks"); }
    [[nodiscard]] excel::Value IndentLevel() const { return get("IndentLevel"); }
    void IndentLevel(excel::Value value) const { put("IndentLevel", std::move(value)); }
    void Insert() const { call("Insert"); }
    [[nodiscard]] excel::Interior Interior() const { return get<excel::Interior>("Interior"); }
    [[nodiscard]] Range Item(std::int32_t row, std::int32_t column) const { return get<Range>("Item", row, column); }
    [[nodiscard]] excel::Value Locked() const { return get("Locked"); }  // while the sheet is protected
    void Locked(excel::Value value) const { put("Locked", std::move(value)); }
    // The merged area that holds the range, else the cell itself; fails for a range that is neither.
    [[nodiscard]] Range MergeArea() const { return get<Range>("MergeArea"); }
    [[nodiscard]] excel::Value MergeCells() const { return get("MergeCells"); }
    void MergeCells(excel::Value value) const { put("MergeCells", std::move(value)); }
    [[nodiscard]] excel::Value NumberFormat() const { return get("NumberFormat"); }
    void NumberFormat(excel::Value value) const { put("NumberFormat", std::move(value)); }
    [[nodiscard]] excel::Value Orientation() const { return get("Orientation"); }  // degrees or XlOrientation
    void Orientation(excel::Value value) const { put("Orientation", std::move(value)); }
    [[nodiscard]] excel::Value OutlineLevel() const { return get("OutlineLevel"); }  // 1 to 8; of a row or a column
    void OutlineLevel(excel::Value value) const { put("OutlineLevel", std::move(value)); }
    [[nodiscard]] excel::Worksheet Parent() const;
    [[nodiscard]] excel::Value PrefixCharacter() const { return get("PrefixCharacter"); }
    [[nodiscard]] excel::Value ReadingOrder() const { return get("ReadingOrder"); }  // xlContext, xlLTR, xlRTL
    void ReadingOrder(excel::Value value) const { put("ReadingOrder", std::move(value)); }
    // As many rows and columns, from the same top-left cell.
    [[nodiscard]] Range Resize(std::int32_t rows, std::int32_t columns) const {
        return get<Range>("Resize", rows, columns);
    }
    [[nodiscard]] std::int32_t Row() const { return get<std::int32_t>("Row"); }  // from 1
    [[nodiscard]] excel::Value RowHeight() const { return get("RowHeight"); }    // points
    void RowHeight(excel::Value value) const { put("RowHeight", std::move(value)); }
    [[nodiscard]] Range Rows() const { return get<Range>("Rows"); }
    // Whether formulas give arrays, of Excel with dynamic arrays only.
    [[nodiscard]] excel::Value SavedAsArray() const { return get("SavedAsArray"); }
    void Select() const { call("Select"); }
    [[nodiscard]] excel::Value ShrinkToFit() const { return get("ShrinkToFit"); }
    void ShrinkToFit(excel::Value value) const { put("ShrinkToFit", std::move(value)); }
    // The cell whose formula spills into this one; Nothing or a failure when none does.
    [[nodiscard]] Range SpillParent() const { return get<Range>("SpillParent"); }
    // XlCellType; fails when there are none.
    [[nodiscard]] Range SpecialCells(std::int32_t type) const { return call<Range>("SpecialCells", type); }
    // The cells' named style, a Style object.
    [[nodiscard]] excel::Value Style() const { return get("Style"); }
    // By name. Gives the cells everything that the style says.
    void Style(excel::Value value) const { put("Style", std::move(value)); }
    [[nodiscard]] excel::Value Text() const { return get("Text"); }  // as the sheet shows it
    void Ungroup() const { call("Ungroup"); }
    // Whether rows (columns) have the sheet's standard height (width); True gives it to them.
    [[nodiscard]] excel::Value UseStandardHeight() const { return get("UseStandardHeight"); }
    void UseStandardHeight(excel::Value value) const { put("UseStandardHeight", std::move(value)); }
    [[nodiscard]] excel::Value UseStandardWidth() const { return get("UseStandardWidth"); }
    void UseStandardWidth(excel::Value value) const { put("UseStandardWidth", std::move(value)); }
    [[nodiscard]] excel::Value Value() const { return get("Value"); }  // a 2-D array for several cells
    void Value(excel::Value value) const { put("Value", std::move(value)); }
    [[nodiscard]] excel::Value Value2() const { return get("Value2"); }  // dates as their serials
    void Value2(excel::Value value) const { put("Value2", std::move(value)); }
    [[nodiscard]] excel::Value VerticalAlignment() const { return get("VerticalAlignment"); }
    void VerticalAlignment(excel::Value value) const { put("VerticalAlignment", std::move(value)); }
    [[nodiscard]] excel::Worksheet Worksheet() const;
    [[nodiscard]] excel::Value WrapText() const { return get("WrapText"); }
    void WrapText(excel::Value value) const { put("WrapText", std::move(value)); }
};

}  // namespace kestrune::excel
