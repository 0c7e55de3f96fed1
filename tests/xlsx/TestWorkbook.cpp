#include "xlsx/TestWorkbook.h"

#include <algorithm>

namespace kestrune::host::test {
namespace {

constexpr std::string_view SheetHead =
    R"(<worksheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">)";

}  // namespace

std::vector<TestPart> book_parts(const std::vector<TestPart>& others) {
    std::vector<TestPart> parts{
        {"[Content_Types].xml",
         R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types"><Default Extension="xml" ContentType="application/xml"/><Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/><Override PartName="/xl/workbook.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/><Override PartName="/xl/calcChain.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.calcChain+xml"/></Types>)"},
        {"_rels/.rels",
         R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"><Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument" Target="xl/workbook.xml"/></Relationships>)"},
        {"xl/workbook.xml",
         R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships"><sheets><sheet name="One" sheetId="1" r:id="rId1"/></sheets><definedNames><definedName name="Rate" function="0">One!$A$1</definedName><definedName name="_hid" hidden="1" localSheetId="0">"a&amp;b"</definedName></definedNames><calcPr calcId="1"/></workbook>)"},
        {"xl/_rels/workbook.xml.rels",
         R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"><Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet" Target="worksheets/sheet1.xml"/><Relationship Id="rId2" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/styles" Target="styles.xml"/><Relationship Id="rId3" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/sharedStrings" Target="sharedStrings.xml"/><Relationship Id="rId4" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/calcChain" Target="calcChain.xml"/></Relationships>)"},
        {"xl/styles.xml",
         R"(<styleSheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><!-- kept --><fonts count="1" x="y"><font><sz val="11"/><name val="Calibri"/></font></fonts><fills count="2"><fill><patternFill patternType="none"/></fill><fill><patternFill patternType="gray125"/></fill></fills><borders count="1"><border/></borders><cellStyleXfs count="1"><xf numFmtId="0"/></cellStyleXfs><cellXfs count="5"><xf/><xf numFmtId="1"/><xf numFmtId="2"/><xf numFmtId="3"/><xf numFmtId="4"/></cellXfs><cellStyles count="1"><cellStyle name="Normal" xfId="0" builtinId="0"/></cellStyles><colors><mruColors><color rgb="FF123456"/></mruColors></colors></styleSheet>)"},
        {"xl/sharedStrings.xml",
         R"(<sst xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><si><t>zero</t></si><si><r><t xml:space="preserve">rich </t></r><r><rPr><b/></rPr><t>text</t></r><rPh sb="0" eb="1"><t>no</t></rPh></si><si><t>a_x000D_b_x005F_c</t></si></sst>)"},
        {"xl/calcChain.xml",
         R"(<calcChain xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><c r="A1" i="1"/></calcChain>)"},
        {std::string(SheetPart), worksheet("<sheetData/>")},
    };
    for (const TestPart& other : others) {
        const auto same =
            std::find_if(parts.begin(), parts.end(), [&](const TestPart& part) { return part.name == other.name; });
        if (same == parts.end()) {
            parts.push_back(other);
        } else {
            *same = other;
        }
    }
    return parts;
}

std::unique_ptr<WorkbookFile> open_book(const std::vector<TestPart>& parts) {
    return std::make_unique<WorkbookFile>(Package::from_bytes(zip_of(parts), "book.xlsx"));
}

std::string worksheet(std::string_view inside) { return std::string(SheetHead).append(inside).append("</worksheet>"); }

std::unique_ptr<WorkbookFile> open_sheet(std::string_view inside) {
    return open_book(book_parts({{std::string(SheetPart), worksheet(inside)}}));
}

std::string updated(WorkbookFile& file, std::string_view part) {
    file.update();
    return file.package().read(part);
}

}  // namespace kestrune::host::test
