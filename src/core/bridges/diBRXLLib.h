#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/bridges/AutoColorSettings.h"
#include "core/bridges/LibraryBridge.h"
#include "core/bridges/Touches.h"

namespace kestrune::core {

// One reference between two cells, seen from one of them.
struct CellLink {
    std::string text;           // the reference as the formula writes it
    std::string workbook;       // the other end's workbook, its file name
    std::string folder;         // of that workbook; empty when it was never saved, or the formula does not tell
    std::string sheet;          // of the other end
    std::string address;        // "$A$1:$B$2"
    std::string through;        // the defined name or table that stands for the cells; else empty
    std::int32_t position = 1;  // of the text in the formula, and its length, in characters as Visual Basic counts
    std::int32_t length = 0;
    std::string formula;  // the cell's own for precedents, the other end's for dependents
};

// Cells of one number format.
struct NumberFormatPart {
    std::string address;  // on the sheet of the range that was asked about; several areas parted by commas
    std::string format;
};

// Cells of one font size.
struct FontSizePart {
    std::string address;  // as above
    double points = 0;
};

// Cells that all hold a text, or none of which does.
struct TextPart {
    std::string address;  // as above
    bool holds = false;
};

// A rectangle of formulas.
struct FormulaBlock {
    enum class Kind : std::int32_t {
        Plain = 0,    // a formula of its own in every cell: Formula
        Array = 1,    // one formula for all the cells: FormulaArray
        Dynamic = 2,  // one cell whose formula may spill: Formula2
    };
    std::string address;  // as above
    Kind kind = Kind::Plain;
};

// What a new button is to be like.
struct ButtonDesign {
    std::string caption;
    std::string on_action;  // the macro that it runs
    std::string parameter{};
    std::string tag{};
    std::string shortcut{};                 // shown beside the caption
    std::optional<std::int32_t> face_id{};  // the number of one of Office's icons
    bool begin_group = false;               // a line in front of it
    std::optional<std::int32_t> before{};   // a position from 1; else at the end
    std::optional<std::int32_t> color{};    // BGR; its face is a swatch of it
};

// The spreadsheet library: what workbooks, sheets, cells and formulas hold. The typed calls fail as automation calls
// do.
class diBRXLLib : public LibraryBridge {
  public:
    explicit diBRXLLib(const automation::Trace& trace) : LibraryBridge("BRXLLib.iPublic", names, trace) {}

    [[nodiscard]] const automation::ObjectRef& iAutoColor() const { return object(AutoColor); }
    [[nodiscard]] const automation::ObjectRef& iConst() const { return object(Const); }
    [[nodiscard]] const automation::ObjectRef& iControl() const { return object(Control); }
    [[nodiscard]] const automation::ObjectRef& iDisplay() const { return object(Display); }
    [[nodiscard]] const automation::ObjectRef& iFormula() const { return object(Formula); }
    [[nodiscard]] const automation::ObjectRef& iMenu() const { return object(Menu); }
    [[nodiscard]] const automation::ObjectRef& iProduct() const { return object(Product); }
    [[nodiscard]] const automation::ObjectRef& iRange() const { return object(Range); }
    [[nodiscard]] const automation::ObjectRef& iUndoRedo() const { return object(UndoRedo); }
    [[nodiscard]] const automation::ObjectRef& iWorkbook() const { return object(Workbook); }
    [[nodiscard]] const automation::ObjectRef& iWorksheet() const { return object(Worksheet); }

    // Hands over the Excel application that the library works in.
    void set_application(const automation::ObjectRef& application) const;

    // Whether a command may run now: a workbook is active and Excel is not in the middle of an entry.
    [[nodiscard]] bool may_run_command() const;

    // The entry (1 to 56) of a workbook's palette that lies nearest to a BGR colour.
    [[nodiscard]] std::int32_t nearest_color_index(std::int32_t color, const automation::ObjectRef& workbook) const;

    // What a cell holds: 1 nothing, 2 text, 3 a logical value, 4 an error, 5 a date, 6 a time, 7 both, 8 a number.
    [[nodiscard]] std::int32_t content_kind(const automation::ObjectRef& cell) const;
    // The same of every cell of a rectangle, row by row.
    [[nodiscard]] std::vector<std::int32_t> content_kinds(const automation::ObjectRef& range) const;
    // The part of a range that lies in its sheet's used range, or Nothing.
    [[nodiscard]] automation::ObjectRef in_use(const automation::ObjectRef& range) const;

    // Parts of a range, each of one number format, that together are the whole; few for each distinct format.
    [[nodiscard]] std::vector<NumberFormatPart> number_formats(const automation::ObjectRef& range) const;

    // The same by font size. Cells whose characters differ in size are in no part.
    [[nodiscard]] std::vector<FontSizePart> font_sizes(const automation::ObjectRef& range) const;

    // Parts of a rectangle by whether the formula of a cell is the text. The part with a row's last cell comes after
    // the row's others. Cells that a merged area covers are in none; of whole rows and columns the used ones count.
    [[nodiscard]] std::vector<TextPart> text_parts(const automation::ObjectRef& range, std::string_view text) const;
    // The rectangles of a range that hold formulas. Array formulas that lie only partly in it are left out.
    [[nodiscard]] std::vector<FormulaBlock> formula_blocks(const automation::ObjectRef& range) const;

    // The cells that a cell's formula refers to, in the order of its text.
    [[nodiscard]] std::vector<CellLink> precedents(const automation::ObjectRef& cell) const;
    // The cells of all open workbooks whose formulas refer to a cell, its own sheet's first.
    [[nodiscard]] std::vector<CellLink> dependents(const automation::ObjectRef& cell) const;

    // The cell whose text labels a cell's row (at its left) or column (above it), or Nothing.
    [[nodiscard]] automation::ObjectRef row_label(const automation::ObjectRef& cell) const;
    [[nodiscard]] automation::ObjectRef column_label(const automation::ObjectRef& cell) const;
    // To ask when there is no label: the first cell of the row or column that holds anything, or Nothing.
    [[nodiscard]] automation::ObjectRef row_heading(const automation::ObjectRef& cell) const;
    [[nodiscard]] automation::ObjectRef column_heading(const automation::ObjectRef& cell) const;

    // An R1C1 formula with its relative references moved. Given the row and column (from 1) of the cell it is for, a
    // reference pushed off the sheet becomes #REF!.
    [[nodiscard]] std::string shift_formula(std::string_view formula, std::int32_t rows, std::int32_t columns) const;
    [[nodiscard]] std::string shift_formula(std::string_view formula, std::int32_t rows, std::int32_t columns,
                                            std::int32_t row, std::int32_t column) const;

    // How the first reference of an A1 formula is anchored, nothing when it has none: 0 A1, 1 $A$1, 2 A$1, 3 $A1. And
    // the formula with every reference anchored so.
    [[nodiscard]] std::optional<std::int32_t> anchor_of(std::string_view formula) const;
    [[nodiscard]] std::string anchored(std::string_view formula, std::int32_t anchor) const;

    // Opens the workbook of a file and makes it the active one; Nothing when it cannot be opened.
    [[nodiscard]] automation::ObjectRef open_workbook(std::string_view path) const;
    // The names of a workbook whose reference is invalid and that nobody but the user owns.
    [[nodiscard]] std::vector<std::string> invalid_names(const automation::ObjectRef& workbook) const;
    // Deletes them; how many went.
    [[nodiscard]] std::int32_t remove_invalid_names(const automation::ObjectRef& workbook) const;
    // The custom number formats of a workbook that neither the given codes nor anything but cells has in use.
    [[nodiscard]] std::vector<std::string> unused_number_formats(const automation::ObjectRef& workbook,
                                                                 const std::vector<std::string>& in_use) const;

    // Menus and toolbars. A parent is a command bar or a popup; captions are compared without "&" and case.
    [[nodiscard]] automation::ObjectRef worksheet_menu_bar() const;
    // The toolbar of a name, made (not visible yet) when there is none; and whether there was one to take away.
    [[nodiscard]] automation::ObjectRef toolbar(std::string_view name) const;
    bool remove_toolbar(std::string_view name) const;
    // A popup runs its macro when it opens.
    [[nodiscard]] automation::ObjectRef add_popup(const automation::ObjectRef& parent, std::string_view caption,
                                                  std::string_view on_action = {}, std::string_view tag = {},
                                                  bool begin_group = false,
                                                  std::optional<std::int32_t> before = {}) const;
    automation::ObjectRef add_button(const automation::ObjectRef& parent, const ButtonDesign& design) const;
    // Deletes what stands on a bar or a popup, Excel's own left alone, or the controls of a caption; how many went.
    std::int32_t clear_controls(const automation::ObjectRef& parent) const;
    std::int32_t remove_controls(const automation::ObjectRef& parent, std::string_view caption) const;
    // Nothing when there is none.
    [[nodiscard]] automation::ObjectRef find_control(const automation::ObjectRef& parent,
                                                     std::string_view caption) const;
    [[nodiscard]] automation::ObjectRef find_control_by_tag(std::string_view tag) const;
    // The parameter of the control whose macro runs; empty when none does.
    [[nodiscard]] std::string clicked_parameter() const;
    void set_control_enabled(const automation::ObjectRef& control, bool enabled) const;
    void set_control_checked(const automation::ObjectRef& button, bool checked) const;
    void set_control_caption(const automation::ObjectRef& control, std::string_view caption) const;
    void set_control_tooltip(const automation::ObjectRef& control, std::string_view text) const;

    // Shows an array as a table.
    void display_array(const automation::Value& array, std::string_view title) const;

    // AutoColor: the settings of a fresh installation; handing settings over to the service, each on its own, so that
    // one that fails loses itself only; the colouring.
    [[nodiscard]] AutoColorSettings auto_color_defaults() const;
    void set_auto_color(const AutoColorSettings& settings) const;
    // The name of the font-colour SmartCycle whose colours AutoColor leaves alone.
    [[nodiscard]] std::string auto_color_smart_cycle() const;
    // Switches colouring as cells change on or off.
    void toggle_auto_color() const;
    [[nodiscard]] bool auto_color_is_on() const;
    void auto_color_selection() const;
    void auto_color_worksheet() const;  // the active one
    void auto_color_workbook() const;   // the active one
    // Shows the active workbook in black fonts, or in its colours again.
    void toggle_black_fonts() const;
    // Whether fills of a whole selection by Ctrl+Enter are coloured while AutoColor is on, and while it is off.
    void update_ctrl_enter(bool while_on, bool while_off) const;

    // Undo: a step is opened, records what it changes and is ended. False when it could not be undone and the person,
    // who was asked, does not want it: nothing is open then, and nothing may be changed.
    [[nodiscard]] bool begin_step(std::string_view name, const Touches& touches) const;
    // Cells that the open step changes besides. False as above; the step stays open.
    [[nodiscard]] bool record(const automation::ObjectRef& range, Aspects aspects) const;
    // Whole rows, or whole columns, that are about to come in before those of a range, or to go with them.
    [[nodiscard]] bool record_insertion(const automation::ObjectRef& lines, bool rows) const;
    [[nodiscard]] bool record_deletion(const automation::ObjectRef& lines, bool rows) const;
    void end_step() const;
    // Records the selection as the beginning of a step that ends with the next one, with undo or redo.
    void set_undo_point() const;
    void undo() const;
    void redo() const;
    // What they would do next ("Currency SmartCycle on Model!B4:F20"); empty for nothing.
    [[nodiscard]] std::string undo_text() const;
    [[nodiscard]] std::string redo_text() const;

    // Has the library call an object of ours back.
    void register_callback(const automation::ObjectRef& callback) const;

  private:
    enum Place : std::size_t {
        AutoColor,
        Const,
        Control,
        Display,
        Formula,
        Menu,
        Product,
        Range,
        UndoRedo,
        Workbook,
        Worksheet
    };
    static constexpr std::array<std::string_view, 11> names{"iAutoColor", "iConst",    "iControl",  "iDisplay",
                                                            "iFormula",   "iMenu",     "iProduct",  "iRange",
                                                            "iUndoRedo",  "iWorkbook", "iWorksheet"};
};

}  // namespace kestrune::core
