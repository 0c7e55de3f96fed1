#include "brxllib/LibraryInHost.h"

namespace kestrune::brxllib {
namespace {

struct TwoFormats : CustomFormats {
    std::vector<CustomFormat> of(const excel::Workbook& workbook) override {
        EXPECT_EQ(workbook.Name(), "Model.xlsx");
        return {{"0.0x", false}, {"[Red]0", true}, {"0\"m\"", false}};
    }
};

struct FormatsTest : LibraryInHost {
    FormatsTest() {
        register_library(trace, {.presenter = &presenter, .formats = &two});
        library = std::make_unique<core::diBRXLLib>(trace);
        library->Create();
    }
    TwoFormats two;
};

TEST_F(FormatsTest, UnusedAreThoseThatNeitherCellsNorAnythingElseHas) {
    using Codes = std::vector<std::string>;
    EXPECT_EQ(library->unused_number_formats(book().object(), {}), (Codes{"0.0x", "0\"m\""}));
    EXPECT_EQ(library->unused_number_formats(book().object(), {"General", "0.0x"}), Codes{"0\"m\""});
    EXPECT_EQ(library->unused_number_formats(book().object(), {"0\"m\"", "0.0x"}), Codes());
}

TEST_F(LibraryInHost, WithoutAListOfFormatsNoneIsUnused) {
    EXPECT_TRUE(library->unused_number_formats(book().object(), {}).empty());
}

}  // namespace
}  // namespace kestrune::brxllib
