#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "fuzz/targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        kestrune::fuzz::KESTRUNE_FUZZ_TARGET({reinterpret_cast<const char*>(data), size});
    } catch (const kestrune::fuzz::Broken& broken) {
        std::fprintf(stderr, "%s\n", broken.what());
        std::abort();
    }
    return 0;
}
