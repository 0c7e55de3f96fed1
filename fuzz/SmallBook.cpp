#include "fuzz/SmallBook.h"

#include <algorithm>

#include "cli/diff/WorkbookDiff.h"
#include "host/model/ModelError.h"

namespace kestrune::fuzz {
namespace {

using host::Package;
using host::PackageError;
using host::WorkbookFile;

struct Part {
    std::string_view name;
    std::string_view content_type;
    std::string_view relationship;  // of the workbook to it
    std::string_view bytes;
};

#define SPREADSHEET "application/vnd.openxmlformats-officedocument.spreadsheetml."
#define RELATIONSHIPS "http://schemas.openxmlformats.org/officeDocument/2006/relationships/"
#define MAIN "xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\""

constexpr Part workbook{
    "xl/workbook.xml", SPREADSHEET "sheet.main+xml", RELATIONSHIPS "officeDocument",
    "<workbook " MAIN
    " xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\"><sheets><sheet name=\"One\" "
    "sheetId=\"1\" r:id=\"rId1\"/></sheets><definedNames><definedName "
    "name=\"Rate\">One!$A$1</definedName></definedNames>"
    "</workbook>"};

constexpr Part parts[]{
    {sheet_part, SPREADSHEET "worksheet+xml", RELATIONSHIPS "worksheet",
     "<worksheet " MAIN "><sheetData/></worksheet>"},
    {styles_part, SPREADSHEET "styles+xml", RELATIONSHIPS "styles",
     "<styleSheet " MAIN "><fonts count=\"1\"><font><sz val=\"11\"/><name val=\"Calibri\"/></font></fonts><fills "
     "count=\"2\"><fill><patternFill "
     "patternType=\"none\"/></fill><fill><patternFill patternType=\"gray125\"/></fill></fills><borders "
     "count=\"1\"><border/></borders><cellStyleXfs count=\"1\"><xf/></cellStyleXfs><cellXfs count=\"5\"><xf/><xf "
     "numFmtId=\"1\"/><xf numFmtId=\"2\"/><xf numFmtId=\"14\"/><xf numFmtId=\"49\"/></cellXfs></styleSheet>"},
    {"xl/sharedStrings.xml", SPREADSHEET "sharedStrings+xml", RELATIONSHIPS "sharedStrings",
     "<sst " MAIN "><si><t>zero</t></si><si><r><t>rich </t></r><r><rPr><b/></rPr><t>text</t></r></si></sst>"},
};

#undef SPREADSHEET
#undef RELATIONSHIPS
#undef MAIN

std::string bytes_of(const Part& part, const Parts& others) {
    for (const auto& [name, bytes] : others) {
        if (name == part.name) return bytes;
    }
    return std::string(part.bytes);
}

void read_all(WorkbookFile& file) {
    for (const auto& sheet : file.workbook().sheets()) sheet->ensure_loaded();
}

// Work that may be refused by the model, as on part of an array formula; then nothing of it is done.
template <class Work>
void attempt(Work&& work) {
    try {
        work();
    } catch (const host::ModelError&) {
        return;
    }
}

void change(host::Workbook& book) {
    host::Sheet& sheet = *book.sheets().front();
    if (sheet.kind() != host::SheetKind::Worksheet) return;
    attempt([&] { sheet.set_content({1, 1}, host::CellContent::of(1.5)); });
    attempt([&] { sheet.set_content({2, 2}, host::CellContent::of(" <&\n\x01 text ")); });
    attempt([&] { sheet.set_formula({3, 1}, "A1*2"); });
    attempt([&] { sheet.clear_content({4, 1, 4, 3}); });
    const auto bold = [&](host::StyleId style) {
        return book.styles.with_font(style, [](host::Font& font) { font.bold = !font.bold; });
    };
    attempt([&] { sheet.restyle({2, 1, 6, 3}, bold); });
    attempt([&] { sheet.restyle({1, 5, formula::max_rows, 5}, bold); });
    attempt([&] { sheet.set_row_height(7, 8, 30); });
    attempt([&] { sheet.set_column_width(3, 4, 20); });
    attempt([&] { sheet.delete_conditional_formats({1, 1, 3, 3}); });
}

}  // namespace

Package small_package(const Parts& others) {
    Package package = Package::create("f.xlsx");
    package.add(workbook.name, workbook.content_type, bytes_of(workbook, others));
    package.add_relationship({}, workbook.relationship, workbook.name);
    for (const Part& part : parts) {
        package.add(part.name, part.content_type, bytes_of(part, others));
        package.add_relationship(workbook.name, part.relationship, part.name);
    }
    return package;
}

std::unique_ptr<WorkbookFile> opened(Package package) {
    try {
        auto file = std::make_unique<WorkbookFile>(std::move(package));
        read_all(*file);
        return file;
    } catch (const PackageError& error) {
        const std::string_view why = error.what();
        expect(why.starts_with("f.xlsx: ") && why.size() > 8, "a refusal names the file and a reason", why);
        expect(why.find_first_of("\r\n") == std::string_view::npos, "a refusal is one line", why);
        return nullptr;
    }
}

void check_writing(WorkbookFile& file) {
    change(file.workbook());
    file.update();
    Parts written;
    for (const host::PartInfo& part : file.package().parts())
        written.emplace_back(part.name, file.package().read(part.name));
    const auto again = opened(small_package(written));
    const std::string text = file.package().read(sheet_part);
    expect(again != nullptr, "what was written can be read", text);
    std::string differences;
    cli::compare(file.workbook(), again->workbook(), false, [&](const cli::Change& each) {
        differences += each.place + " " + each.property + ": " + each.before + " -> " + each.after + "\n";
    });
    expect(differences.empty(), "what was written is read as it was", text, differences);
}

}  // namespace kestrune::fuzz
