#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "host/model/LyingThings.h"
#include "host/model/Sheet.h"
#include "host/model/StringTable.h"
#include "host/model/StyleTable.h"
#include "host/model/Table.h"

namespace kestrune::host {

// The 56 colours that Workbook.Colors numbers, BGR.
using Palette = std::array<std::uint32_t, 56>;
const Palette& default_palette();

// The theme's twelve colours (BGR) in the order of Color::theme, and its fonts.
struct Theme {
    std::array<std::uint32_t, 12> colors;
    std::string major_font = "Cambria";
    std::string minor_font = "Calibri";

    static Theme office();
};

struct DefinedName {
    std::string name;
    std::string refers_to;              // without "="
    std::optional<std::int32_t> sheet;  // 0-based, of a name that one sheet owns
    bool hidden = false;
    std::string comment;
    std::string source;  // the element as the file has it; empty for a name of ours
};

// Number formats that parts of a file outside the model show values in: charts, pivot tables.
struct FormatsElsewhere {
    std::set<std::uint32_t> numbers;  // as the file numbers them
    std::set<std::string> codes;      // in the object model's spelling
};

// A workbook in memory. Knows nothing of files; what reads one fills it and keeps what must be written back.
class Workbook {
  public:
    Workbook();
    ~Workbook();
    Workbook(const Workbook&) = delete;
    Workbook& operator=(const Workbook&) = delete;

    std::string name = "Book1";  // file name without its folder
    std::string path;            // folder without a separator at its end; empty for a new workbook

    StyleTable styles;
    StringTable strings;
    Palette palette = default_palette();
    bool palette_changed = false;
    Theme theme = Theme::office();
    // What a file knows and tells when it is asked; none without a file.
    std::function<FormatsElsewhere()> formats_elsewhere;
    std::function<std::vector<Table>()> read_tables;
    std::function<std::vector<std::string>()> read_external_links;
    std::function<LyingThings(std::size_t sheet)> read_lying;  // 0-based; what lies there now
    // Asked before rows or columns come or go: fails with ModelError when something of the file cannot follow, and
    // gives back what makes it follow.
    std::function<std::function<void()>(const formula::Edit&)> prepare_edit;
    std::vector<DefinedName> names;
    bool names_changed = false;
    bool date1904 = false;
    bool structure_protected = false;
    bool recalculate_on_load = false;  // a formula was written: its value is for the next program that calculates
    std::int32_t active_sheet = 0;     // 0-based
    bool active_sheet_changed = false;

    [[nodiscard]] const std::vector<std::unique_ptr<Sheet>>& sheets() const { return sheets_; }
    Sheet& add_sheet(std::string sheet_name, SheetKind kind = SheetKind::Worksheet);
    // At a 0-based position, up to the number of sheets; names and the active sheet stay with theirs.
    Sheet& insert_sheet(std::int32_t position, std::string sheet_name);
    // Inserts whole rows or columns, or deletes them, with everything in the workbook that depends on where cells are.
    // ModelError, before anything changes, when a part of the workbook cannot follow.
    void apply(const formula::Edit& edit, bool like_behind = false);
    // The same without doing it.
    void require_applicable(const formula::Edit& edit);
    // Formulas and names of this workbook follow the cells of another one; edit.books tells how they call it. Sheets
    // that nobody has read yet are read when `all`. Whether any did.
    bool follow_elsewhere(const formula::Edit& edit, bool all);
    // What has been inserted and deleted since the file was read, for parts that follow when they are written.
    [[nodiscard]] const std::vector<formula::Edit>& edits() const { return edits_; }
    // The tables of all sheets, read once.
    [[nodiscard]] const std::vector<Table>& tables();
    [[nodiscard]] Sheet* sheet(std::string_view sheet_name) const;  // whatever its case; null when there is none

    // What a colour looks like, BGR: theme and tint worked out, palette entries looked up.
    // Automatic and absent colours give `automatic`.
    [[nodiscard]] std::uint32_t rgb_of(const Color& color, std::uint32_t automatic) const;
    // The nearest palette entry, 1..56, of a BGR colour; the first of equals.
    [[nodiscard]] std::int32_t nearest_index(std::uint32_t bgr) const;

    // Pixels of the widest digit of the Normal style's font at 96 dpi; column widths are counted in it.
    [[nodiscard]] std::int32_t digit_pixels() const;

  private:
    bool names_follow(const formula::Edit& edit);

    std::vector<std::unique_ptr<Sheet>> sheets_;
    std::optional<std::vector<Table>> tables_;
    std::vector<formula::Edit> edits_;
};

}  // namespace kestrune::host
