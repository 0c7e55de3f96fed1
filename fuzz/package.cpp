#include "fuzz/SmallBook.h"

namespace kestrune::fuzz {

// Any bytes are a workbook or are refused with a reason; one that nobody changes is saved as it came.
void package(std::string_view bytes) {
    std::unique_ptr<host::WorkbookFile> file;
    try {
        file = opened(host::Package::from_bytes(std::string(bytes), "f.xlsx"));
    } catch (const host::PackageError& error) {
        const std::string_view why = error.what();
        expect(why.starts_with("f.xlsx: ") && why.find_first_of("\r\n") == std::string_view::npos,
               "a refusal names the file in one line", why);
        return;
    }
    if (!file) return;
    for (const host::PartInfo& part : file->package().parts()) {
        try {
            static_cast<void>(file->package().read(part.name));
        } catch (const host::PackageError& error) {
            expect(error.part() == part.name, "what is broken is named", error.what());
        }
    }
    file->update();
    expect(!file->package().changed(), "a workbook that nobody changes stays as it is", bytes);
}

}  // namespace kestrune::fuzz
