#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "fuzz/targets.h"

namespace kestrune::fuzz {
namespace {

// What a fuzzer once found stays mended.
TEST(Fuzz, StoredInputsKeepEveryPromise) {
    for (const Target& target : targets) {
        int inputs = 0;
        const auto folder = std::filesystem::path(KESTRUNE_SOURCE_DIR "/fuzz/corpus") / target.name;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string input{std::istreambuf_iterator<char>(file), {}};
            EXPECT_NO_THROW(target.run(input)) << entry.path();
            ++inputs;
        }
        EXPECT_GT(inputs, 0) << folder;
    }
}

}  // namespace
}  // namespace kestrune::fuzz
