// Drawings with faults put into them at random places must be read, in part, or refused, in bounded
// time and without harm. The faults are the same in every run.
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include <support/mutations.h>

#include "made_drawing.h"

namespace fs = std::filesystem;

namespace {

class MutatedDrawing : public testing::TestWithParam<fs::path>
{
  protected:
    /// Reads what `mutate` makes of the drawing, several times.
    void read(std::string (*mutate)(const std::string&, Random&))
    {
        constexpr std::uintmax_t kAffordable = 400 * 1024;
        const std::string content = contentOfFile(GetParam());
        Random random(static_cast<unsigned>(content.size()));
        ReadOptions options;
        options.readAllMembers = true;
        for (int i = affordableCopies(content.size(), kAffordable, 40); i > 0; --i) {
            const ReadDrawing drawn = readBytes(mutate(content, random), options);
            ASSERT_TRUE(drawn.status == eOk || drawn.status == eBadDrawing) << i;
            ASSERT_EQ(drawn.status == eOk, drawn.database != nullptr) << i;
            ASSERT_EQ(drawn.status == eOk, drawn.report.error.isEmpty()) << i;
            const long long opens = drawn.database ? drawn.database->openCount() : 0;
            ASSERT_EQ(opens, 0) << i;
        }
    }
};

TEST_P(MutatedDrawing, EndsInGoodTimeWithFaultyGroups)
{
    read(mutatedDrawing);
}

TEST_P(MutatedDrawing, EndsInGoodTimeCutAtAnyByte)
{
    read(cutDrawing);
}

INSTANTIATE_TEST_SUITE_P(All, MutatedDrawing, testing::ValuesIn(sampleDrawings()),
                         [](const auto& row) { return testNameOf(row.param); });

} // namespace
