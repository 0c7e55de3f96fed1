#include <filesystem>
#include <fstream>
#include <map>

#include "brvblib/LibraryTest.h"
#include "brvblib/TestFolder.h"
#include "native/ProductFile.h"
#include "native/UserFolders.h"

namespace kestrune::native {
namespace {

using automation::Value;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace fs = std::filesystem;

struct ProductFileTest : brvblib::LibraryTest {
    void load_with(std::string_view bytes) {
        std::ofstream(file, std::ios::binary) << bytes;
        services.products = std::make_shared<ProductFile>(file.string(), trace);
        load();
    }

    brvblib::TestFolder place;
    const fs::path& folder = place.path();
    fs::path file = folder / "kestrune.conf";
};

TEST_F(ProductFileTest, SetsProductValues) {
    load_with(
        "# what the administrator wants\r\n\n  LessonPath = /srv/lessons = new/ \r\nTT=0\nShowExamples=true\nTT=False");
    EXPECT_EQ(wrapper.machine_value("lessonpath"), Value("/srv/lessons = new/"));
    EXPECT_FALSE(wrapper.allows_training()) << "the later line counts";
    EXPECT_TRUE(wrapper.shows_examples_at_start());
    EXPECT_EQ(wrapper.machine_value("Else"), Value());
    EXPECT_THAT(skipped, IsEmpty());
}

TEST_F(ProductFileTest, PassesOverWhatMakesNoSense) {
    load_with("nonsense\n=5\nTT=0\n");
    EXPECT_THAT(skipped, ElementsAre(file.string() + ", line 1: is not NAME=VALUE",
                                     file.string() + ", line 2: is not NAME=VALUE"));
    EXPECT_FALSE(wrapper.allows_training());
    load_with("TT=perhaps\n");
    EXPECT_EQ(answer("iProduct", "AllowsTraining"), "<iProduct.AllowsTraining: the value is not a Boolean>");
}

TEST_F(ProductFileTest, IsNotNeeded) {
    const ProductFile missing((folder / "none.conf").string(), trace);
    EXPECT_EQ(missing.value("TT"), Value());
    const ProductFile a_folder(folder.string(), trace);
    EXPECT_EQ(a_folder.value("TT"), Value());
    EXPECT_THAT(skipped, IsEmpty());
    const ProductFile huge(
        [&] {
            std::ofstream(file) << "TT=0\n" << std::string(2U << 20U, '#');
            return file.string();
        }(),
        trace);
    EXPECT_EQ(huge.value("TT"), Value());
    EXPECT_THAT(skipped, ElementsAre(HasSubstr("is longer than 1 MiB")));
}

TEST_F(ProductFileTest, LiesWhereTheDesktopKeepsThings) {
    std::map<std::string, std::string> variables;
    const Environment environment = [&](const char* name) -> std::optional<std::string> {
        const auto found = variables.find(name);
        if (found == variables.end()) return std::nullopt;
        return found->second;
    };
    variables = {{"HOME", "/home/ann"}};
    EXPECT_EQ(data_folder(environment), "/home/ann/.config/brannoch/kestrune/");
    EXPECT_EQ(product_file(environment), "/etc/xdg/brannoch/kestrune.conf");
    variables["XDG_CONFIG_HOME"] = "/data/conf/";
    EXPECT_EQ(data_folder(environment), "/data/conf/brannoch/kestrune/");
    variables["XDG_CONFIG_HOME"] = "not/absolute";
    EXPECT_EQ(data_folder(environment), "/home/ann/.config/brannoch/kestrune/");
    fs::create_directories(folder / "two" / "brannoch");
    std::ofstream(folder / "two" / "brannoch" / "kestrune.conf") << "TT=0";
    variables["XDG_CONFIG_DIRS"] = (folder / "one").string() + ":relative:" + (folder / "two").string();
    EXPECT_EQ(product_file(environment), (folder / "two" / "brannoch" / "kestrune.conf").string());
    fs::remove_all(folder / "two");
    EXPECT_EQ(product_file(environment), (folder / "one" / "brannoch" / "kestrune.conf").string());
}

}  // namespace
}  // namespace kestrune::native
