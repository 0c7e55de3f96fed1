#include "fuzz/SmallBook.h"

namespace kestrune::fuzz {

// A sheet is read from any text, or refused with a reason. Unchanged it stays as it is to the byte; changed it is read
// again as it was left.
void sheet(std::string_view text) {
    const auto file = opened(small_package({{sheet_part, std::string(text)}}));
    if (!file) return;
    file->update();
    expect(file->package().read(sheet_part) == text, "a sheet that nobody changes stays as it is", text);
    check_writing(*file);
}

}  // namespace kestrune::fuzz
