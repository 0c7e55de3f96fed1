#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <random>

#include "host/xlsx/package/Deflate.h"
#include "host/xlsx/package/LittleEndian.h"
#include "host/xlsx/package/Package.h"
#include "host/xlsx/package/ZipWriter.h"
#include "xlsx/package/TestPackages.h"

namespace kestrune::host::test {
namespace {

using testing::ElementsAre;

std::string saved(const Package& package) {
    const TestFolder folder;
    package.save(folder / "out.xlsx");
    return file_text(folder.path("out.xlsx"));
}

// An archive as producers write that stream: data descriptors with or without signature or missing, times of zero,
// extra fields, comments.
std::string streamed_archive() {
    std::string bytes, directory;
    const std::vector<TestPart> parts = workbook_parts();
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const PackedPart packed = deflate_part(parts[i].content);
        const auto offset = static_cast<std::uint32_t>(bytes.size());
        const auto size = static_cast<std::uint32_t>(packed.size);
        const auto packed_size = static_cast<std::uint32_t>(packed.data.size());
        const std::string extra("\x01\x20\x02\0ab", 6);
        const auto common = [&](std::string& to, bool sizes) {
            append(to, std::uint16_t{20});
            append(to, ZipFlagDescriptor);
            append(to, packed.method);
            append(to, std::uint32_t{0});
            append(to, sizes ? packed.crc : 0U);
            append(to, sizes ? packed_size : 0U);
            append(to, sizes ? size : 0U);
            append(to, static_cast<std::uint16_t>(parts[i].name.size()));
            append(to, static_cast<std::uint16_t>(extra.size()));
        };
        append(bytes, ZipLocalSignature);
        common(bytes, false);
        bytes += parts[i].name + extra + packed.data;
        if (i % 3 == 0) append(bytes, ZipDescriptorSignature);
        if (i % 3 != 2) {
            append(bytes, packed.crc);
            append(bytes, packed_size);
            append(bytes, size);
        }
        append(directory, ZipCentralSignature);
        append(directory, std::uint16_t{0x031E});
        common(directory, true);
        append(directory, std::uint16_t{3});
        append(directory, std::uint32_t{0});
        append(directory, 0x81A40000U);
        append(directory, offset);
        directory += parts[i].name + extra + "who";
    }
    const std::uint64_t start = bytes.size();
    bytes += directory;
    append(bytes, ZipEndSignature);
    append(bytes, std::uint32_t{0});
    append(bytes, static_cast<std::uint16_t>(parts.size()));
    append(bytes, static_cast<std::uint16_t>(parts.size()));
    append(bytes, static_cast<std::uint32_t>(directory.size()));
    append(bytes, static_cast<std::uint32_t>(start));
    append(bytes, std::uint16_t{5});
    return bytes + "hello";
}

TEST(PackageSave, NothingChangedGivesTheSameBytes) {
    for (const std::string& archive :
         {zip_of(workbook_parts()), streamed_archive(), zip_of(workbook_parts()) + "junk"}) {
        Package package = Package::from_bytes(archive, "a.xlsx");
        EXPECT_EQ(saved(package), archive);
        package.replace("xl/workbook.xml", "<other/>");
        EXPECT_TRUE(package.changed() && package.changed("xl/workbook.xml") && !package.changed("_rels/.rels"));
        package.replace("XL/workbook.xml", "<workbook><sheets/></workbook>");
        EXPECT_FALSE(package.changed()) << "the bytes are back";
        EXPECT_EQ(saved(package), archive);
    }
}

TEST(PackageSave, UntouchedEntriesKeepTheirBytesAndPlaces) {
    const std::string archive = zip_of(workbook_parts());
    Package package = Package::from_bytes(archive, "a.xlsx");
    const std::string text = "<workbook>" + std::string(5000, 'x') + "</workbook>";
    package.replace("xl/workbook.xml", text);
    EXPECT_EQ(package.read("xl/workbook.xml"), text);
    EXPECT_EQ(package.parts()[3].size, text.size());

    const std::vector<WitnessEntry> before = witness(archive);
    const std::vector<WitnessEntry> after = witness(saved(package));
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < after.size(); ++i) {
        SCOPED_TRACE(before[i].name);
        EXPECT_EQ(after[i].name, before[i].name);
        EXPECT_EQ(after[i].method, before[i].method);
        if (i == 3) {
            EXPECT_EQ(after[i].content, text);
            EXPECT_LT(after[i].packed.size(), 200U);
        } else {
            EXPECT_EQ(after[i].packed, before[i].packed);
        }
    }
}

TEST(PackageSave, StreamedArchivesKeepHeadersDescriptorsAndTimes) {
    const std::string archive = streamed_archive();
    Package package = Package::from_bytes(archive, "a.xlsx");
    package.replace("xl/workbook.xml", "<workbook/>");
    const std::string out = saved(package);
    const std::vector<WitnessEntry> entries = witness(out);
    ASSERT_EQ(entries.size(), workbook_parts().size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        EXPECT_EQ(entries[i].content, i == 3 ? "<workbook/>" : workbook_parts()[i].content);
    }
    const ZipDirectory before = read_zip_directory(archive, "before");
    const ZipDirectory after = read_zip_directory(out, "after");
    EXPECT_EQ(after.comment, "hello");
    for (std::size_t i = 0; i < after.entries.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(after.entries[i].time, 0U);
        EXPECT_EQ(after.entries[i].comment, "who");
        EXPECT_EQ(after.entries[i].external_attributes, 0x81A40000U);
        if (i == 3) continue;
        EXPECT_EQ(after.entries[i].extra, before.entries[i].extra);
        EXPECT_EQ(after.entries[i].descriptor, before.entries[i].descriptor);
        const bool described = i % 3 != 2;
        EXPECT_EQ(after.entries[i].flags, described ? ZipFlagDescriptor : 0);
        EXPECT_EQ(after.entries[i].local == before.entries[i].local, described);
    }
}

TEST(PackageSave, PartsComeAndGoWithTheirTypesAndRelationships) {
    Package package = Package::from_bytes(zip_of(workbook_parts()), "a.xlsx");
    package.add("/xl/sub/styles.xml", "application/x-styles", "<styles/>");
    package.add("xl/plain.xml", "application/xml", "<plain/>");
    const std::string type = std::string(TransitionalRelationships) + "styles";
    EXPECT_EQ(package.add_relationship("xl/workbook.xml", type, "xl/sub/styles.xml"), "rId4");
    EXPECT_EQ(package.add_relationship("xl/sub/styles.xml", type, "/xl/workbook.xml"), "rId1");
    EXPECT_EQ(package.add_relationship("xl/sub/styles.xml", "http://x/link", "file:///c:/a b.xlsx", true), "rId2");
    package.remove_relationship("xl/workbook.xml", "rId7");
    package.remove("xl/worksheets/sheet1.xml");
    EXPECT_EQ(failure_of([&] { package.add("XL/plain.xml", "", ""); }), "a.xlsx: XL/plain.xml: exists already");
    EXPECT_EQ(failure_of([&] { package.add("../x", "", ""); }), "a.xlsx: ../x: leads out of the package");
    EXPECT_EQ(failure_of([&] { package.remove_relationship("xl/workbook.xml", "rId7"); }),
              "a.xlsx: xl/_rels/workbook.xml.rels: has no relationship rId7");

    Package again = Package::from_bytes(saved(package), "b.xlsx");
    std::vector<std::string> names;
    for (const PartInfo& part : again.parts()) names.push_back(part.name);
    EXPECT_THAT(
        names, ElementsAre("[Content_Types].xml", "_rels/.rels", "xl/workbook.xml", "xl/_rels/workbook.xml.rels",
                           "xl/media/image1.png", "xl/sub/styles.xml", "xl/plain.xml", "xl/sub/_rels/styles.xml.rels"));
    EXPECT_EQ(again.content_type("xl/sub/styles.xml"), "application/x-styles");
    EXPECT_EQ(again.content_type("xl/plain.xml"), "application/xml");
    EXPECT_EQ(again.read("[Content_Types].xml").find("plain"), std::string::npos) << "the default says it";
    const std::vector<Relationship> rows = again.relationships("xl/workbook.xml");
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[2].written, "sub/styles.xml");
    EXPECT_EQ(again.relationships("xl/sub/styles.xml")[0].written, "../workbook.xml");
    EXPECT_EQ(again.relationships("xl/sub/styles.xml")[1].target, "file:///c:/a b.xlsx");

    again.remove("xl/sub/STYLES.xml");
    EXPECT_FALSE(again.has("xl/sub/_rels/styles.xml.rels"));
    EXPECT_EQ(again.read("[Content_Types].xml").find("styles"), std::string::npos);
    EXPECT_EQ(again.read("xl/plain.xml"), "<plain/>") << "what stood behind the removed part is still found";
}

TEST(PackageSave, ANewPackageOpens) {
    Package package = Package::create("new.xlsx");
    EXPECT_EQ(failure_of([&] { package.workbook_part(); }),
              "new.xlsx: _rels/.rels: tells no workbook part: an officeDocument relationship is missing");
    package.add("xl/workbook.xml", "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml",
                "<workbook/>");
    package.add_relationship("", std::string(TransitionalRelationships) + "officeDocument", "xl/workbook.xml");
    const std::string bytes = saved(package);
    EXPECT_EQ(Package::from_bytes(bytes, "b.xlsx").read("xl/workbook.xml"), "<workbook/>");
    EXPECT_EQ(witness(bytes)[0].name, "[Content_Types].xml");
    EXPECT_EQ(saved(package), bytes) << "the same parts are the same bytes, whenever they are saved";
}

TEST(PackageSave, LargePartsDeflateInTheBackground) {
    Package package = Package::from_bytes(zip_of(workbook_parts()), "a.xlsx");
    std::mt19937 random(1);
    std::map<std::string, std::string> contents;
    for (int i = 0; i < 12; ++i) {
        const std::string name = "xl/big" + std::to_string(i) + ".xml";
        std::string content;
        while (content.size() < 600'000)
            content += i == 0 ? std::string(1, static_cast<char>(random())) : std::to_string(random() % 1000) + ",";
        contents[name] = content;
        package.add(name, "application/xml", "");
        package.replace(name, "first try");
        package.replace(name, content);
    }
    for (const auto& [name, content] : contents) EXPECT_TRUE(package.read(name) == content) << name;
    std::size_t seen = 0;
    for (const WitnessEntry& entry : witness(saved(package))) {
        if (const auto part = contents.find(entry.name); part != contents.end()) {
            ++seen;
            EXPECT_TRUE(entry.content == part->second) << entry.name;
            EXPECT_EQ(entry.method, entry.name == "xl/big0.xml" ? ZipStored : ZipDeflated);
        }
    }
    EXPECT_EQ(seen, contents.size());
}

TEST(ZipWriter, UsesZip64WhereNumbersAskForIt) {
    const auto archive_of = [](const std::vector<ZipItem>& items) {
        std::string bytes;
        write_zip(items, "", [&](std::string_view piece) { bytes += piece; });
        return bytes;
    };
    const PackedPart small = deflate_part("x");
    std::vector<std::string> names;
    for (int i = 0; i < 70'000; ++i) names.push_back(std::to_string(i));
    std::vector<ZipItem> items;
    for (const std::string& name : names) items.push_back({nullptr, &small, name});
    const std::string many = archive_of(items);
    EXPECT_EQ(read_zip_directory(many, "many").entries.size(), 70'000U);
    EXPECT_EQ(witness(many).size(), 70'000U);

    PackedPart large = small;
    large.method = ZipDeflated;
    large.size = std::uint64_t{5} << 30;
    const std::string one = archive_of({ZipItem{nullptr, &large, "x"}});
    EXPECT_EQ(read_zip_directory(one, "one").entries.at(0).size, large.size);
    EXPECT_EQ(load<std::uint16_t>(one, 4), 45);
    EXPECT_EQ(failure_of([&] { Package::from_bytes(one, "one.xlsx"); }),
              "one.xlsx: x: inflates to 5.0 GiB, and 2 GiB a part is the limit");
    // Copied into an archive where everything fits, its own zip64 fields still tell the size.
    const ZipDirectory directory = read_zip_directory(one, "one");
    const std::string copy =
        archive_of({ZipItem{nullptr, &small, "a"}, ZipItem{directory.entries.data(), nullptr, "x"}});
    EXPECT_EQ(read_zip_directory(copy, "copy").entries.at(1).size, large.size);
}

}  // namespace
}  // namespace kestrune::host::test
