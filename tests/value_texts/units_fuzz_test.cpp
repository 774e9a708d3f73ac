// Runs the fuzz target of the unit readers over its corpus and over seeded texts of the characters
// that the readers know. A broken rule ends the program.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

#include "support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

int run(const std::string& text)
{
    return LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
}

using UnitsFuzz = UnitsTest;

TEST_F(UnitsFuzz, HoldsOverItsCorpus)
{
    int count = 0;
    for (const auto& entry :
         std::filesystem::directory_iterator(KW_SOURCE_DIR "/fuzz/corpus/units")) {
        std::ifstream file(entry.path(), std::ios::binary);
        EXPECT_EQ(0, run({std::istreambuf_iterator<char>(file), {}})) << entry.path();
        ++count;
    }
    EXPECT_GT(count, 0);
}

TEST_F(UnitsFuzz, HoldsOverSeededTexts)
{
    constexpr std::string_view kCharacters = "0123456789.. --''\"\"//ddeEnNsSwWgr_,+x\t\r\xB0";
    std::mt19937 random(11);
    for (int i = 0; i < 20000; ++i) {
        std::string text(random() % 14, '\0');
        for (char& c : text)
            c = kCharacters[random() % kCharacters.size()];
        ASSERT_EQ(0, run(text));
    }
}

TEST_F(UnitsFuzz, HoldsOverLongRunsOfDigits)
{
    const std::string digits(5000, '9');
    for (const std::string& text :
         {digits, "." + digits, "1e" + digits, "1e-" + digits, digits + "'" + digits, "1/" + digits,
          digits + "d", digits + "g", "N" + digits + "dE", std::string(5000, '-')})
        EXPECT_EQ(0, run(text));
}

} // namespace
