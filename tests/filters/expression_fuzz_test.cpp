// Runs the fuzz target of the filter reader over its corpus and over seeded texts of the characters
// that matter to it. A broken rule ends the program.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include <gtest/gtest.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

int run(const std::string& text)
{
    return LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
}

TEST(ExpressionFuzz, HoldsOverItsCorpus)
{
    int count = 0;
    for (const auto& entry :
         std::filesystem::directory_iterator(KW_SOURCE_DIR "/fuzz/corpus/expression")) {
        std::ifstream file(entry.path(), std::ios::binary);
        EXPECT_EQ(0, run({std::istreambuf_iterator<char>(file), {}})) << entry.path();
        ++count;
    }
    EXPECT_GT(count, 0);
}

TEST(ExpressionFuzz, HoldsOverSeededTexts)
{
    const char* const kPieces[] = {"A", "b c", " ", "and", "or", "not", "(",   ")",  "\"", "\"\"",
                                   ":", "=",   "<", ">",   "<>", "*",   " * ", "@x", "\t", "5"};
    std::mt19937 random(7);
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (auto piece = random() % 12; piece > 0; --piece)
            text += kPieces[random() % std::size(kPieces)];
        ASSERT_EQ(0, run(text)) << text;
    }
}

} // namespace
