#include "xlsx/package/TestPackages.h"

#include <gtest/gtest.h>
#include <unistd.h>
#include <zip.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "host/xlsx/PackageError.h"

namespace kestrune::host::test {
namespace {

struct Archive {
    explicit Archive(const std::string& bytes) {
        source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, nullptr);
        zip_source_keep(source);
    }
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;
    ~Archive() { zip_source_free(source); }
    zip_source_t* source;
};

std::string read_entry(zip_t* zip, zip_uint64_t index, zip_uint64_t size, zip_flags_t flags) {
    std::string content(size, '\0');
    zip_file_t* file = zip_fopen_index(zip, index, flags);
    EXPECT_NE(file, nullptr) << zip_strerror(zip);
    if (file == nullptr) return {};
    EXPECT_EQ(zip_fread(file, content.data(), size), static_cast<zip_int64_t>(size));
    zip_fclose(file);
    return content;
}

}  // namespace

std::vector<TestPart> workbook_parts() {
    return {
        {"xl/worksheets/sheet1.xml", R"(<worksheet><sheetData/></worksheet>)"},
        {"[Content_Types].xml",
         R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
         "\r\n"
         R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types"><Default Extension="XML" ContentType="application/xml"/><Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/><Override PartName="/xl/Workbook.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/></Types>)"},
        {"_rels/.rels",
         R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"><Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument" Target="xl/workbook.xml"/></Relationships>)"},
        {"xl/workbook.xml", R"(<workbook><sheets/></workbook>)"},
        {"xl/_rels/workbook.xml.rels",
         R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"><Relationship Id="rId7" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet" Target="/xl/worksheets/Sheet1.xml"/><Relationship Id="rId2" Type="http://purl.oclc.org/ooxml/officeDocument/relationships/styles" Target=".\..\xl\styles.xml"/><Relationship Id="rId9" Type="http://x/hyperlink" Target="https://example.test/a?b#c" TargetMode="External"/></Relationships>)"},
        {"xl/media/image1.png", "\x89PNG not really", true},
    };
}

std::vector<TestPart> workbook_parts_but(std::string_view name, const char* content) {
    std::vector<TestPart> parts = workbook_parts();
    const auto part = std::find_if(parts.begin(), parts.end(), [&](const TestPart& p) { return p.name == name; });
    if (content == nullptr) {
        parts.erase(part);
    } else if (part == parts.end()) {
        parts.push_back({std::string(name), content});
    } else {
        part->content = content;
    }
    return parts;
}

std::string zip_of(const std::vector<TestPart>& parts) {
    const std::string nothing;
    Archive archive(nothing);
    zip_t* zip = zip_open_from_source(archive.source, ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    for (const TestPart& part : parts) {
        zip_source_t* content = zip_source_buffer(zip, part.content.data(), part.content.size(), 0);
        const zip_int64_t index = zip_file_add(zip, part.name.c_str(), content, ZIP_FL_ENC_UTF_8);
        if (index < 0) throw std::runtime_error(part.name + ": " + zip_strerror(zip));
        const auto at = static_cast<zip_uint64_t>(index);
        zip_set_file_compression(zip, at, part.stored ? ZIP_CM_STORE : ZIP_CM_DEFLATE, 9);
        zip_file_set_dostime(zip, at, 0x6000, 0x5C7D, 0);
    }
    if (zip_close(zip) != 0) throw std::runtime_error(zip_strerror(zip));
    zip_stat_t status;
    zip_source_stat(archive.source, &status);
    std::string bytes(status.size, '\0');
    zip_source_open(archive.source);
    zip_source_read(archive.source, bytes.data(), bytes.size());
    zip_source_close(archive.source);
    return bytes;
}

std::vector<WitnessEntry> witness(const std::string& bytes) {
    std::vector<WitnessEntry> entries;
    Archive archive(bytes);
    zip_t* zip = zip_open_from_source(archive.source, ZIP_RDONLY | ZIP_CHECKCONS, nullptr);
    EXPECT_NE(zip, nullptr) << "libzip does not read the archive";
    if (zip == nullptr) return entries;
    const auto count = static_cast<zip_uint64_t>(zip_get_num_entries(zip, 0));
    for (zip_uint64_t i = 0; i < count; ++i) {
        zip_stat_t status;
        EXPECT_EQ(zip_stat_index(zip, i, 0, &status), 0);
        entries.push_back({status.name, read_entry(zip, i, status.size, 0),
                           read_entry(zip, i, status.comp_size, ZIP_FL_COMPRESSED), status.comp_method});
    }
    zip_discard(zip);
    return entries;
}

std::string file_text(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void write_file(const std::filesystem::path& path, std::string_view bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string failure_of(const std::function<void()>& work) {
    try {
        work();
    } catch (const PackageError& error) {
        return error.what();
    }
    return "(no error)";
}

TestFolder::TestFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "kestrune-package-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder for the test");
    folder_ = name;
}

TestFolder::~TestFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::vector<std::string> TestFolder::names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace kestrune::host::test
