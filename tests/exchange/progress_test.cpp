// Reading tells how far it is, and stops when it is told to.
#include <algorithm>

#include <gtest/gtest.h>

#include "made_drawing.h"

namespace {

/// Some megabytes of entities of very different sizes.
std::string largeDrawing()
{
    std::string text = "0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < 60000; ++i) {
        text += "0\nLWPOLYLINE\n5\n" + std::to_string(10000 + i) + "\n8\n0\n";
        const int vertices = i % 3000 == 0 ? 5000 : 2;
        for (int vertex = 0; vertex < vertices; ++vertex)
            text += "10\n1.25\n20\n" + std::to_string(vertex) + ".5\n";
    }
    return text + "0\nENDSEC\n0\nEOF\n";
}

class Progress : public testing::TestWithParam<bool>
{
  protected:
    static const std::string& content()
    {
        static const std::string text = largeDrawing();
        return text;
    }
};

TEST_P(Progress, IsToldEvenlyAndEndsWithTheWhole)
{
    std::vector<double> told{0.0};
    ReadOptions options;
    options.readAllMembers = GetParam();
    options.progress = [&](double fraction) {
        told.push_back(fraction);
        return true;
    };
    ASSERT_EQ(readBytes(content(), options).status, eOk);
    EXPECT_TRUE(std::ranges::is_sorted(told));
    EXPECT_EQ(told.back(), 1.0);
    // It comes with every megabyte of the file, of which there are some five.
    const double most = GetParam() ? 0.15 : 0.25;
    for (std::size_t i = 1; i < told.size(); ++i)
        EXPECT_LE(told[i] - told[i - 1], most) << told[i];
}

TEST_P(Progress, CancelsFromBeginningToEnd)
{
    int calls = 0;
    ReadOptions options;
    options.readAllMembers = GetParam();
    options.threads = 1; // of several, how many calls fall to this one is not known
    options.progress = [&](double) { return ++calls > 0; };
    ASSERT_EQ(readBytes(content(), options).status, eOk);
    for (const int last : {1, 2, calls / 2, calls}) {
        int left = last;
        options.progress = [&](double) { return --left > 0; };
        const ReadDrawing drawn = readBytes(content(), options);
        EXPECT_EQ(drawn.status, eUserBreak) << last;
        EXPECT_FALSE(drawn.database);
        EXPECT_EQ(drawn.report.error, L"Reading was cancelled.");
    }
}

INSTANTIATE_TEST_SUITE_P(Reading, Progress, testing::Bool(),
                         [](const auto& row) { return row.param ? "allMembers" : "indexAlone"; });

} // namespace
