#include "host/xlsx/WorkbookFile.h"
#include "host/xlsx/Signatures.h"

#include <algorithm>
#include <filesystem>
#include <span>
#include <utility>

#include "host/xlsx/FormatsElsewhere.h"
#include "host/xlsx/LyingReading.h"
#include "host/xlsx/SheetReader.h"
#include "host/xlsx/SheetWriter.h"
#include "host/xlsx/StringsReader.h"
#include "host/xlsx/TablesReading.h"
#include "host/xlsx/ThemePart.h"
#include "host/xlsx/WorkbookPart.h"

namespace kestrune::host {
namespace {

constexpr std::string_view StylesContentType = "application/vnd.openxmlformats-officedocument.spreadsheetml.styles+xml";

// A part's new bytes in the file's own way: UTF-16 becomes UTF-8, a byte order mark stays.
std::string encoded(std::string text, XmlEncoding encoding) {
    if (encoding == XmlEncoding::Utf8WithMark) text.insert(0, "\xEF\xBB\xBF");
    return text;
}

// The part that a relationship leads to; empty when there is none, or it is missing.
std::string related_part(const Package& package, std::string_view from, std::string_view kind) {
    const Relationship relationship = package.relationship(from, kind);
    return !relationship.external && package.has(relationship.target) ? relationship.target : std::string();
}

}  // namespace

std::unique_ptr<WorkbookFile> WorkbookFile::open(const std::string& path) {
    return std::make_unique<WorkbookFile>(Package::open(path));
}

WorkbookFile::WorkbookFile(Package package) : package_(std::move(package)) {
    const std::filesystem::path path(package_.file());
    book_.name = path.filename().string();
    std::error_code ignored;
    const auto absolute = std::filesystem::absolute(path, ignored);
    book_.path = ignored ? std::string() : absolute.parent_path().string();

    book_.formats_elsewhere = [this] { return read_formats_elsewhere(package_); };
    book_.read_tables = [this] {
        std::vector<std::string> parts;
        for (const SheetPart& sheet : sheets_) parts.push_back(sheet.name);
        return read_tables(package_, parts);
    };
    book_.read_lying = [this](std::size_t position) {
        const SheetPart& part = sheets_[position];
        std::vector<formula::Edit> edits;
        for (const formula::Edit& edit : std::span(book_.edits()).subspan(part.edits))
            if (formula::means_edited_sheet({}, book_.sheets()[position]->name(), edit)) edits.push_back(edit);
        book_.sheets()[position]->ensure_loaded();
        return part.name.empty() ? LyingThings()
                                 : read_lying(package_, part.name, base_of(part).text, part.layout, edits);
    };
    book_.prepare_edit = [this](const formula::Edit& edit) { return prepare_edit(edit); };
    book_.read_external_links = [this] { return read_external_links(package_, book_.path); };
    const auto main = package_.workbook_part();
    for (auto& part : read_workbook_part(package_, book_)) sheets_.emplace_back().name = std::move(part);
    active_in_file_ = book_.active_sheet;
    if (const auto theme = related_part(package_, main, "theme"); !theme.empty())
        book_.theme = read_theme(package_, theme);
    styles_part_ = related_part(package_, main, "styles");
    styles_in_file_ = !styles_part_.empty();
    if (styles_in_file_) {
        styles_ = read_styles(package_, styles_part_, book_);
    } else {
        book_.styles = StyleTable::defaults();
    }
    if (const auto strings = related_part(package_, main, "sharedStrings"); !strings.empty()) {
        book_.strings.load_with([this, strings](StringTable& table) {
            try {
                read_strings(package_, strings, table);
            } catch (...) {
                failure_ = std::current_exception();
                throw;
            }
        });
    }
    for (std::size_t i = 0; i < sheets_.size(); ++i) {
        if (book_.sheets()[i]->kind() != SheetKind::Worksheet) continue;
        book_.sheets()[i]->load_with([this, i](Sheet& sheet) { load(i, sheet); });
    }
}

void WorkbookFile::load(std::size_t position, Sheet& sheet) {
    try {
        sheets_[position].layout = read_sheet(package_, sheets_[position].name, sheet);
    } catch (...) {
        failure_ = std::current_exception();
        throw;
    }
}

void WorkbookFile::update() {
    if (failure_) std::rethrow_exception(failure_);
    for (std::size_t i = 0; i < sheets_.size(); ++i) move_part(i);
    const FileNumbers formats = formats_in_use();
    update_sheets(formats);
    if (book_.active_sheet_changed) update_tabs();
    if (styles_changed(book_, styles_, formats)) update_styles(formats);
    if (workbook_part_changed(book_)) {
        const auto main = package_.workbook_part();
        XmlText xml = package_.read_original_xml(main);
        package_.replace(main, encoded(write_workbook_part(std::move(xml.text), book_), xml.encoding));
    }
}

FileNumbers WorkbookFile::formats_in_use() const {
    FileNumbers formats(styles_.formats, book_.styles.formats.size(), book_.styles.named_formats);
    formats.use(0);  // the default one keeps its number in a file that has none yet
    for (const auto& sheet : book_.sheets()) {
        if (sheet->loaded() && sheet->changed()) use_formats(*sheet, formats);
    }
    return formats;
}

void WorkbookFile::update_sheets(const FileNumbers& formats) {
    bool formulas_changed = !book_.edits().empty();
    for (std::size_t i = 0; i < sheets_.size(); ++i) {
        Sheet& sheet = *book_.sheets()[i];
        if (sheet.kind() != SheetKind::Worksheet || !sheet.loaded()) continue;
        if (!sheet.changed() && !sheets_[i].base) continue;
        XmlText xml = base_of(sheets_[i]);
        SheetText written = write_sheet(std::move(xml.text), sheet, sheets_[i].layout, formats);
        formulas_changed = formulas_changed || written.formulas_changed;
        package_.replace(sheets_[i].name, encoded(std::move(written.text), xml.encoding));
        sheets_[i].rewritten = true;
    }
    if (formulas_changed) drop_calculation_chain();
}

void WorkbookFile::update_tabs() {
    for (std::size_t i = 0; i < sheets_.size(); ++i) {
        const auto position = static_cast<std::int32_t>(i);
        if (position != active_in_file_ && position != book_.active_sheet) continue;
        XmlText xml = sheets_[i].rewritten ? package_.read_xml(sheets_[i].name) : base_of(sheets_[i]);
        package_.replace(sheets_[i].name,
                         encoded(with_tab_selected(xml.text, position == book_.active_sheet), xml.encoding));
    }
}

void WorkbookFile::update_styles(const FileNumbers& formats) {
    const bool strict = package_.is_strict();
    if (styles_in_file_) {
        XmlText xml = package_.read_original_xml(styles_part_);
        package_.replace(styles_part_,
                         encoded(write_styles(std::move(xml.text), book_, styles_, formats), xml.encoding));
        return;
    }
    std::string text = write_styles(empty_styles(strict), book_, styles_, formats);
    if (!styles_part_.empty()) {
        package_.replace(styles_part_, std::move(text));
        return;
    }
    const auto main = package_.workbook_part();
    const auto slash = main.rfind('/');
    styles_part_ = main.substr(0, slash == std::string::npos ? 0 : slash + 1) + "styles.xml";
    package_.add(styles_part_, StylesContentType, std::move(text));
    package_.add_relationship(main, std::string(strict ? StrictRelationships : TransitionalRelationships) + "styles",
                              styles_part_);
}

// The chain lists every cell with a formula; Excel repairs a file whose chain is wrong, and makes a missing one anew.
void WorkbookFile::drop_calculation_chain() {
    const auto main = package_.workbook_part();
    const Relationship chain = package_.relationship(main, "calcChain");
    if (chain.id.empty()) return;
    package_.remove_relationship(main, chain.id);
    if (!chain.external && package_.has(chain.target)) package_.remove(chain.target);
}

bool WorkbookFile::breaks_signature() {
    if (!is_signed(package_)) return false;  // writing large sheets to find out would take long
    update();
    return package_.changed();
}

void WorkbookFile::save(const std::string& path) {
    update();
    if (package_.changed() && is_signed(package_)) {
        if (!signature_given_up_)
            throw PackageError(package_.file(), {}, "is signed, and the signature would not hold for what was changed");
        remove_signatures(package_);
    }
    package_.save(path);
}

}  // namespace kestrune::host
