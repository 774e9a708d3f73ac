// Runs the fuzz target of the drawing reader and writer over its corpus. A broken rule ends the
// program.
#include <cstddef>
#include <cstdint>
#include <filesystem>

#include <gtest/gtest.h>

#include "selection.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

TEST(DxfFuzz, HoldsOverItsCorpus)
{
    int count = 0;
    for (const auto& entry :
         std::filesystem::directory_iterator(KW_SOURCE_DIR "/fuzz/corpus/dxf")) {
        const std::string bytes = contentOf(entry.path());
        EXPECT_EQ(0, LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                            bytes.size()))
            << entry.path();
        ++count;
    }
    EXPECT_GT(count, 0);
}

} // namespace
