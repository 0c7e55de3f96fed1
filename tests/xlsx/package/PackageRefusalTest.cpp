#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdint>
#include <random>

#include "host/xlsx/package/LittleEndian.h"
#include "host/xlsx/package/Package.h"
#include "host/xlsx/package/SmallPart.h"
#include "host/xlsx/package/ZipWriter.h"
#include "xlsx/package/TestPackages.h"

namespace kestrune::host::test {
namespace {

using namespace std::string_literals;

std::string refusal_of(const std::string& bytes) {
    return failure_of([&] { Package::from_bytes(bytes, "a.xlsx"); });
}

void read_everything(const std::string& bytes) {
    const Package package = Package::from_bytes(bytes, "a.xlsx");
    for (const PartInfo& part : package.parts()) {
        package.read(part.name);
        package.relationships(part.name);
    }
}

// A compound file with these streams in its directory.
std::string compound_file(const std::vector<std::string>& streams) {
    std::string bytes = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"s;
    bytes.resize(1024, '\0');
    for (const std::string& name : streams) {
        std::string entry;
        for (const char c : name) entry += {c, '\0'};
        entry.resize(128, '\0');
        store(entry, 64, static_cast<std::uint16_t>(2 * name.size() + 2));
        bytes += entry;
    }
    return bytes;
}

// The archive with a number in the central directory's entry of that part written over.
template <typename Number>
std::string with_field(std::string archive, std::string_view part, std::size_t field, Number number) {
    std::string signature;
    append(signature, ZipCentralSignature);
    for (std::size_t at = archive.find(signature); at != std::string::npos; at = archive.find(signature, at + 1)) {
        if (archive.compare(at + 46, part.size(), part) == 0) store(archive, at + field, number);
    }
    return archive;
}

// The archive whose end counts so many entries.
std::string with_count(std::string archive, std::uint16_t count) {
    store(archive, archive.size() - 12, count);
    return archive;
}

std::string workbook_of_type(const std::string& content_type) {
    const std::string types =
        R"(<Types><Override PartName="/xl/workbook.xml" ContentType=")" + content_type + "\"/></Types>";
    return zip_of(workbook_parts_but("[Content_Types].xml", types.c_str()));
}

TEST(PackageRefusal, SaysWhatAFileIs) {
    const std::string archive = zip_of(workbook_parts());
    const std::string expected = "only .xlsx and .xlsm are read";
    struct Case {
        std::string bytes, reason;
    };
    const Case cases[] = {
        {"", "is empty"},
        {"Name,Value\n", "is not an .xlsx or .xlsm: a zip archive was expected"},
        {archive.substr(0, archive.size() / 2), "is cut short: the directory at the end of the zip archive is missing"},
        {compound_file({"Root Entry", "EncryptionInfo", "EncryptedPackage"}),
         "is encrypted: save it without a password first"},
        {compound_file({"Root Entry", "Workbook"}), "is an .xls: " + expected},
        {compound_file({"Root Entry", "Book"}), "is an .xls: " + expected},
        {compound_file({"Root Entry", "WordDocument", "Workbooks"}),
         "is an OLE compound file without a workbook: " + expected},
        {with_count(archive, 5), "is a damaged zip archive: its directory has more entries than it counts"},
        {with_count(archive, 7), "is a damaged zip archive: its directory has fewer entries than it counts"},
        {zip_of({{"a.txt", "x"}}), "is a zip archive, but not a workbook: [Content_Types].xml is missing"},
        {zip_of({{"mimetype", "application/vnd.oasis.opendocument.spreadsheet", true}, {"content.xml", "<a/>"}}),
         "is an OpenDocument spreadsheet: " + expected},
        {"PK\x05\x06"s + std::string(18, '\0'), "is a zip archive, but not a workbook: [Content_Types].xml is missing"},
        {zip_of(workbook_parts_but("_rels/.rels", nullptr)),
         "_rels/.rels: tells no workbook part: an officeDocument relationship is missing"},
        {zip_of(workbook_parts_but("xl/workbook.xml", nullptr)),
         "xl/workbook.xml: is the workbook part, and it is missing"},
        {zip_of(workbook_parts_but("[Content_Types].xml", "<Types>")),
         "[Content_Types].xml, line 1, column 7: is broken XML: start-end tags mismatch"},
        {zip_of(workbook_parts_but("[Content_Types].xml", "<Types/>")),
         "xl/workbook.xml: is the main part, but has no content type"},
        {workbook_of_type("application/vnd.ms-excel.sheet.binary.macroEnabled.main"),
         "is an .xlsb: binary workbooks are not read, only .xlsx and .xlsm are"},
        {workbook_of_type("application/vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml"),
         "is a Word document: " + expected},
        {workbook_of_type("text/plain"),
         "xl/workbook.xml: is the main part, but its content type is no workbook's: text/plain"},
        {zip_of(workbook_parts_but("XL/Workbook.xml", "<x/>")), "XL/Workbook.xml: is in the package twice"},
        {zip_of(workbook_parts_but("xl\\workbook.xml", "<x/>")), "xl/workbook.xml: is in the package twice"},
        {zip_of(workbook_parts_but("xl/../../etc/passwd", "x")), "xl/../../etc/passwd: leads out of the package"},
    };
    for (const Case& c : cases) EXPECT_EQ(refusal_of(c.bytes), "a.xlsx: " + c.reason);
    for (const char* type : {"application/vnd.openxmlformats-officedocument.spreadsheetml.template.main+xml",
                             "application/vnd.ms-excel.addin.macroEnabled.main+xml"}) {
        EXPECT_EQ(refusal_of(workbook_of_type(type)), "(no error)");
    }
}

TEST(PackageRefusal, SaysWhatAPathIs) {
    const TestFolder folder;
    ::mkfifo((folder / "pipe").c_str(), 0666);
    const auto refusal = [](const std::string& path) { return failure_of([&] { Package::open(path); }); };
    EXPECT_EQ(refusal(folder / "no.xlsx"), folder / "no.xlsx" + ": does not exist");
    EXPECT_EQ(refusal(folder / "pipe"), folder / "pipe" + ": is not a regular file");
    EXPECT_EQ(refusal(folder / ""), folder / "" + ": is a directory, not a workbook");
}

TEST(PackageRefusal, SaysWhatIsWrongWithAnEntry) {
    constexpr std::size_t Flags = 8, Method = 10, Crc = 16, PackedSize = 20, Size = 24, Offset = 42;
    const std::string archive = zip_of(workbook_parts_but("xl/z.xml", std::string(1000, 'z').c_str()));
    struct Case {
        std::string bytes, reason;
    };
    const auto field = [&](std::size_t at, auto number) { return with_field(archive, "xl/z.xml", at, number); };
    const Case cases[] = {
        {field(Flags, std::uint16_t{1}),
         "xl/z.xml: is encrypted with a zip password: save it without a password first"},
        {field(Method, std::uint16_t{12}),
         "xl/z.xml: is compressed with zip method 12; only stored and deflated parts are read"},
        {field(Method, std::uint16_t{0}), "xl/z.xml: is damaged: its two sizes in the zip archive differ"},
        {field(Crc, 7U), "xl/z.xml: is damaged: its checksum is wrong"},
        {field(Size, 999U), "xl/z.xml: is damaged: it inflates to more than the 999 bytes that the zip archive tells"},
        {field(Size, 1001U),
         "xl/z.xml: is damaged: it inflates to fewer than the 1001 bytes that the zip archive tells"},
        {field(Size, 0x70000000U),
         "xl/z.xml: claims to inflate from 11 bytes to 1.8 GiB, more than zip archives can hold"},
        {field(Size, 0x90000000U), "xl/z.xml: inflates to 2.2 GiB, and 2 GiB a part is the limit"},
        {field(PackedSize, 0x10000000U), "xl/z.xml: is damaged: its data is cut short"},
        {field(Offset, 0U), "xl/worksheets/sheet1.xml: is damaged: it shares its bytes with xl/z.xml"},
        {field(Offset, 5U), "xl/z.xml: is damaged: its place in the zip archive holds something else"},
        {with_field(archive, "xl/worksheets/sheet1.xml", PackedSize, 300U),
         "[Content_Types].xml: is damaged: it shares its bytes with xl/worksheets/sheet1.xml"},
    };
    for (const Case& c : cases) {
        std::string reason = failure_of([&] { read_everything(c.bytes); });
        // Which of two entries at one place comes first is not a matter of the format.
        if (reason == "a.xlsx: xl/z.xml: is damaged: it shares its bytes with xl/worksheets/sheet1.xml") {
            reason = "a.xlsx: xl/worksheets/sheet1.xml: is damaged: it shares its bytes with xl/z.xml";
        }
        EXPECT_EQ(reason, "a.xlsx: " + c.reason);
    }
}

TEST(PackageRefusal, BoundsWhatAllPartsInflateTo) {
    PackedPart part;
    part.method = ZipDeflated;
    part.size = std::uint64_t{2} << 30;
    part.data.assign(2 << 20, '\0');
    std::string bytes;
    write_zip({{nullptr, &part, "a"}, {nullptr, &part, "b"}, {nullptr, &part, "c"}}, "",
              [&](std::string_view piece) { bytes += piece; });
    EXPECT_EQ(refusal_of(bytes), "a.xlsx: inflates to more than 4 GiB, which is the limit");
}

TEST(PackageRefusal, HonestRatiosPass) {
    const std::string zeros(80 << 20, ' ');
    Package package = Package::from_bytes(zip_of(workbook_parts()), "a.xlsx");
    package.replace("xl/workbook.xml", zeros);
    const TestFolder folder;
    package.save(folder / "b.xlsx");
    const Package again = Package::open(folder / "b.xlsx");
    EXPECT_TRUE(again.read("xl/workbook.xml") == zeros);
    EXPECT_EQ(failure_of([&] { again.read_xml("xl/workbook.xml", 1 << 20); }),
              folder / "b.xlsx" + ": xl/workbook.xml: holds 80 MiB, and 1 MiB is the limit here");
}

TEST(PackageRefusal, EveryCutIsRefused) {
    const std::string archive = zip_of(workbook_parts());
    for (std::size_t size = 0; size < archive.size(); ++size) {
        EXPECT_NE(failure_of([&] { read_everything(archive.substr(0, size)); }), "(no error)") << size;
    }
}

TEST(PackageRefusal, DamageNeverDoesMoreThanFail) {
    const std::string archive = zip_of(workbook_parts());
    std::mt19937 random(20);
    std::size_t refused = 0;
    constexpr std::size_t Rounds = 4000;
    for (std::size_t i = 0; i < Rounds; ++i) {
        std::string damaged = archive;
        for (unsigned n = 1 + random() % 4; n > 0; --n) {
            // Most hits go to the directory: data has its checksums.
            const std::size_t from = random() % 4 == 0 ? 0 : archive.size() / 2;
            damaged[from + random() % (archive.size() - from)] = static_cast<char>(random() % 3 == 0 ? 0xFF : random());
        }
        if (failure_of([&] { read_everything(damaged); }) != "(no error)") ++refused;
    }
    EXPECT_GT(refused, Rounds / 4);
}

}  // namespace
}  // namespace kestrune::host::test
