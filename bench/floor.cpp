// The least that any program does which reads a sheet, looks at all of it and writes it again: inflate
// the part, scan its XML once, deflate it. Prints the milliseconds of each.
//
//   floor WORKBOOK PART

#include <expat.h>
#include <fmt/format.h>
#include <zip.h>
#include <zlib.h>

#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double milliseconds_since(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

std::string inflated(const char* workbook, const char* part) {
    int error = 0;
    zip_t* archive = zip_open(workbook, ZIP_RDONLY, &error);
    if (!archive) return {};
    std::string bytes;
    zip_stat_t stat;
    if (zip_stat(archive, part, 0, &stat) == 0) {
        bytes.resize(stat.size);
        if (zip_file_t* file = zip_fopen(archive, part, 0)) {
            if (zip_fread(file, bytes.data(), bytes.size()) != static_cast<zip_int64_t>(bytes.size())) bytes.clear();
            zip_fclose(file);
        }
    }
    zip_discard(archive);
    return bytes;
}

// Elements counted, so that the scan is not optimised away.
long scanned(const std::string& xml) {
    long elements = 0;
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate(nullptr),
                                                                              &XML_ParserFree);
    XML_SetUserData(parser.get(), &elements);
    XML_SetStartElementHandler(parser.get(),
                               [](void* count, const char*, const char**) { ++*static_cast<long*>(count); });
    if (XML_Parse(parser.get(), xml.data(), static_cast<int>(xml.size()), 1) != XML_STATUS_OK) return -1;
    return elements;
}

std::size_t deflated(const std::string& xml) {
    uLongf size = compressBound(xml.size());
    std::vector<Bytef> out(size);
    if (compress2(out.data(), &size, reinterpret_cast<const Bytef*>(xml.data()), xml.size(), 6) != Z_OK) return 0;
    return size;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        fmt::print(stderr, "usage: floor WORKBOOK PART\n");
        return 2;
    }
    auto start = Clock::now();
    const std::string xml = inflated(argv[1], argv[2]);
    const double inflate = milliseconds_since(start);
    if (xml.empty()) {
        fmt::print(stderr, "{}: {} cannot be read\n", argv[1], argv[2]);
        return 1;
    }
    start = Clock::now();
    const long elements = scanned(xml);
    const double scan = milliseconds_since(start);
    start = Clock::now();
    const std::size_t size = deflated(xml);
    const double deflate = milliseconds_since(start);
    if (elements < 0 || size == 0) {
        fmt::print(stderr, "{}: {} cannot be scanned\n", argv[1], argv[2]);
        return 1;
    }
    fmt::print("{:.0f} {:.0f} {:.0f} {} {}\n", inflate, scan, deflate, xml.size(), elements);
    return 0;
}
