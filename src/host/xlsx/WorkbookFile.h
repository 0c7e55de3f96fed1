#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/model/Workbook.h"
#include "host/xlsx/SheetLayout.h"
#include "host/xlsx/StylesPart.h"
#include "host/xlsx/package/Package.h"

namespace kestrune::host {

// A workbook and the .xlsx or .xlsm file that it stands in.
//
// Opening reads what every sheet needs (sheets' names, names, styles, theme). A sheet's own part, and the shared
// strings, are read when the workbook is first asked for something in them; a fault there is a PackageError at that
// time, and saving is refused from then on. Saving writes only parts that changed, and inside them only what changed:
// everything that the model does not know stays as it was, to the byte.
class WorkbookFile {
  public:
    // Every file that is no workbook, or a broken one, is a PackageError.
    [[nodiscard]] static std::unique_ptr<WorkbookFile> open(const std::string& path);
    // The same over a package at hand.
    explicit WorkbookFile(Package package);
    WorkbookFile(const WorkbookFile&) = delete;
    WorkbookFile& operator=(const WorkbookFile&) = delete;

    [[nodiscard]] Workbook& workbook() { return book_; }
    [[nodiscard]] const Package& package() const { return package_; }

    // Brings the package up to date with the workbook, without writing a file.
    void update();
    // Whether somebody signed the file, and what was changed since breaks the signature. Brings the package of a
    // signed file up to date.
    [[nodiscard]] bool breaks_signature();
    // Lets the file be saved without the signature that would no longer hold.
    void give_up_signature() { signature_given_up_ = true; }
    // The same as update, then writes the file whole or not at all. A signature that is neither whole nor given up is a
    // PackageError. Without a change the bytes that were read are written.
    // May be called again after further changes.
    void save(const std::string& path);

  private:
    struct SheetPart {
        std::string name;
        SheetLayout layout;
        bool rewritten = false;
        std::optional<XmlText> base;  // what the layout is of, when rows or columns came or went; else what was read
        std::size_t edits = 0;        // how many of the workbook's edits the base has followed
        bool movable = false;         // was looked through, and can follow
    };

    void load(std::size_t position, Sheet& sheet);
    // The formats that the changed sheets need, under the numbers that they get in the file.
    [[nodiscard]] FileNumbers formats_in_use() const;
    void update_sheets(const FileNumbers& formats);
    // The sheet's part follows the edits since it was last written.
    void move_part(std::size_t position);
    [[nodiscard]] XmlText base_of(const SheetPart& part) const;
    // ModelError when some part cannot follow an edit; gives back what makes the others follow.
    [[nodiscard]] std::function<void()> prepare_edit(const formula::Edit& edit);
    void require_movable(std::size_t position);
    void update_tabs();
    void update_styles(const FileNumbers& formats);
    void drop_calculation_chain();

    Package package_;
    Workbook book_;
    std::vector<SheetPart> sheets_;
    std::string styles_part_;  // empty: there is none
    bool styles_in_file_ = false;
    StylesLayout styles_;
    std::int32_t active_in_file_ = 0;
    bool signature_given_up_ = false;
    std::exception_ptr failure_;  // of a part that was read late
};

}  // namespace kestrune::host
