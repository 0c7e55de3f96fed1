#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/xlsx/package/Package.h"
#include "host/xlsx/package/SmallPart.h"
#include "xlsx/package/TestPackages.h"

namespace kestrune::host::test {
namespace {

using namespace std::string_literals;

Package package_of(const std::vector<TestPart>& parts) { return Package::from_bytes(zip_of(parts), "model.xlsx"); }

TEST(PackageRead, FindsPartsHoweverTheyAreSpelled) {
    std::vector<TestPart> parts = workbook_parts();
    parts.push_back({"\\xl\\theme/./theme1.xml", "<a/>"});
    parts.push_back({"xl/empty/", ""});
    const Package package = package_of(parts);
    EXPECT_EQ(package.parts().size(), parts.size() - 1) << "a folder is no part";
    EXPECT_EQ(package.parts().front().name, "xl/worksheets/sheet1.xml");
    EXPECT_EQ(package.parts().back().name, "xl/theme/theme1.xml");
    EXPECT_EQ(package.read("/XL/Workbook.XML"), "<workbook><sheets/></workbook>");
    EXPECT_EQ(package.read("xl/media/image1.png"), "\x89PNG not really");
    EXPECT_TRUE(package.has("/xl/theme/theme1.xml"));
    EXPECT_FALSE(package.has("xl/styles.xml"));
    EXPECT_FALSE(package.has("xl/empty"));
    EXPECT_EQ(failure_of([&] { package.read("xl/styles.xml"); }), "model.xlsx: xl/styles.xml: is missing");
}

TEST(PackageRead, TellsTypesByNameThenByExtension) {
    const Package package = package_of(workbook_parts());
    EXPECT_EQ(package.content_type("xl/workbook.xml"),
              "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml");
    EXPECT_EQ(package.content_type("xl/worksheets/sheet1.xml"), "application/xml");
    EXPECT_EQ(package.content_type("xl/media/image1.png"), "");
    EXPECT_EQ(package.content_type("nowhere.xml"), "");
}

TEST(PackageRead, ResolvesRelationships) {
    const Package package = package_of(workbook_parts());
    const std::vector<Relationship> rows = package.relationships("xl/workbook.xml");
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0].target, "xl/worksheets/sheet1.xml") << "spelled as the part is";
    EXPECT_TRUE(rows[0].is("worksheet"));
    EXPECT_FALSE(rows[0].is("sheet"));
    EXPECT_EQ(rows[1].target, "xl/styles.xml");
    EXPECT_TRUE(rows[1].is("styles") && rows[1].is_strict());
    EXPECT_TRUE(rows[2].external);
    EXPECT_EQ(rows[2].target, "https://example.test/a?b#c");
    EXPECT_TRUE(package.relationships("xl/worksheets/sheet1.xml").empty());

    const Package outside = package_of(workbook_parts_but(
        "xl/_rels/workbook.xml.rels", R"(<Relationships><Relationship Id="r" Target="../../x"/></Relationships>)"));
    EXPECT_EQ(failure_of([&] { outside.relationships("xl/workbook.xml"); }),
              "model.xlsx: xl/_rels/workbook.xml.rels: r leads out of the package: ../../x");
}

TEST(PackageRead, FindsTheMainPartWhateverItIsCalled) {
    const Package package = package_of({
        {"[Content_Types].xml",
         R"(<c:Types xmlns:c="http://schemas.openxmlformats.org/package/2006/content-types"><c:Override PartName="/a%20b.bin" ContentType="application/vnd.ms-excel.sheet.MACROENABLED.main+xml ; charset=x"/></c:Types>)"},
        {"_rels/.rels",
         R"(<p:Relationships xmlns:p="http://schemas.openxmlformats.org/package/2006/relationships"><p:Relationship Id="a" Type="http://purl.oclc.org/ooxml/officeDocument/relationships/officeDocument" Target="a%20b.bin#x"/></p:Relationships>)"},
        {"a b.bin", "<workbook/>"},
    });
    EXPECT_EQ(package.workbook_part(), "a b.bin");
    EXPECT_EQ(package.kind(), PackageKind::MacroWorkbook);
    EXPECT_TRUE(package.is_strict());
}

std::string utf16(std::string_view ascii, bool big_endian) {
    std::string wide;
    for (const char c : ascii) {
        if (big_endian) wide += '\0';
        wide += c;
        if (!big_endian) wide += '\0';
    }
    return wide;
}

TEST(PackageRead, GivesXmlAsUtf8) {
    const std::string declared = R"(<?xml version="1.0" encoding='UTF-16'?><a>)";
    struct Case {
        std::string bytes, text;
        XmlEncoding encoding;
    };
    const Case cases[] = {
        {"<a>\xC3\xA9</a>", "<a>\xC3\xA9</a>", XmlEncoding::Utf8},
        {"\xEF\xBB\xBF<a/>", "<a/>", XmlEncoding::Utf8WithMark},
        {R"(<?xml version="1.0" encoding="utf-8"?><a/>)", R"(<?xml version="1.0" encoding="utf-8"?><a/>)",
         XmlEncoding::Utf8},
        {"\xFF\xFE" + utf16(declared, false) + "\x3D\xD8\x00\xDE\xE9\x00"s,
         R"(<?xml version="1.0" encoding='UTF-8'?><a>)"
         "\xF0\x9F\x98\x80\xC3\xA9",
         XmlEncoding::Utf16LittleEndian},
        {utf16(declared, true), R"(<?xml version="1.0" encoding='UTF-8'?><a>)", XmlEncoding::Utf16BigEndian},
    };
    for (const Case& c : cases) {
        std::vector<TestPart> parts = workbook_parts();
        parts.push_back({"xl/x.xml", c.bytes});
        const XmlText whole = package_of(parts).read_xml("xl/x.xml");
        EXPECT_EQ(whole.text, c.text);
        EXPECT_EQ(whole.encoding, c.encoding);
    }
}

TEST(PackageRead, NamesTheLineOfBrokenXml) {
    struct Case {
        std::string xml, message;
    };
    const Case cases[] = {
        {"<a>\n<b>\n</a>", "model.xlsx: xl/x.xml, line 3, column 3: is broken XML: start-end tags mismatch"},
        {"<a/>\n<b/>", "model.xlsx: xl/x.xml, line 2, column 2: is broken XML: a second root element"},
        {"<a>\0</a>"s, "model.xlsx: xl/x.xml, line 1, column 4: is broken XML: a zero byte"},
        {"", "model.xlsx: xl/x.xml, line 1, column 1: is broken XML: no document element found"},
        {"<!DOCTYPE a [<!ENTITY e SYSTEM 'file:///etc/passwd'>]>\n<a>&e;</a>",
         "model.xlsx: xl/x.xml, line 1, column 11: has a document type declaration, which workbooks may not have"},
        {"<?xml version='1.0' encoding='windows-1252'?><a/>",
         "model.xlsx: xl/x.xml, line 1: is encoded as windows-1252; parts of a workbook are UTF-8 or UTF-16"},
        {"\xFF\xFE<", "model.xlsx: xl/x.xml: is broken UTF-16 text"},
        {"\xFF\xFE\x00\xDC"s, "model.xlsx: xl/x.xml: is broken UTF-16 text"},
    };
    for (const Case& c : cases) {
        std::vector<TestPart> parts = workbook_parts();
        parts.push_back({"xl/x.xml", c.xml});
        const Package package = package_of(parts);
        EXPECT_EQ(failure_of([&] { parse_small_part(package, "xl/x.xml"); }), c.message);
    }
}

TEST(PackageRead, SmallPartsKeepWhatTheyHold) {
    const std::string xml =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><a xmlns:x=\"u\"> <!--c--><x:b t=\"1&#10;2\"> </x:b><?p i?>&lt;</a>";
    const Package package = package_of(workbook_parts_but("xl/x.xml", xml.c_str()));
    EXPECT_EQ(write_small_part(parse_small_part(package, "xl/x.xml")), xml);
}

TEST(PackageRead, ErrorsStayOnOneLine) {
    const PackageError error("a\nb.xlsx", "xl/\tx.xml", "says \r\n", 3, 4);
    EXPECT_STREQ(error.what(), "a?b.xlsx: xl/?x.xml, line 3, column 4: says ??");
    EXPECT_EQ(error.line(), 3U);
}

}  // namespace
}  // namespace kestrune::host::test
