#include <gtest/gtest.h>

#include "ascending_runs.h"

#include <random>

namespace {

/// An id that is only compared and never looked into.
KdDbObjectId madeUpId(std::uintptr_t number)
{
    return KdDbObjectId(reinterpret_cast<KdDbObject*>(number * 16));
}

/// A list with its runs.
struct List
{
    bool append(std::uintptr_t number)
    {
        if (!runs.append(madeUpId(number), cells.size()))
            return false;
        cells.push_back(madeUpId(number));
        return true;
    }
    std::optional<std::size_t> find(std::uintptr_t number) const
    {
        return runs.find(cells, madeUpId(number));
    }

    AscendingRuns::Cells cells;
    AscendingRuns runs;
};

TEST(AscendingRuns, FindNothingWhileTheyAreEmpty)
{
    EXPECT_FALSE(List().find(1));
}

TEST(AscendingRuns, TakeRunsInAnyOrder)
{
    List list;
    for (const std::uintptr_t number : {40u, 41u, 45u, 20u, 22u, 60u, 61u, 1u, 2u})
        EXPECT_TRUE(list.append(number)) << number;
    EXPECT_EQ(list.find(45), 2u);
    EXPECT_EQ(list.find(20), 3u);
    EXPECT_EQ(list.find(61), 6u);
    EXPECT_EQ(list.find(2), 8u);
    EXPECT_FALSE(list.find(42));
    EXPECT_FALSE(list.find(30));
}

TEST(AscendingRuns, RefuseWhatIsThere)
{
    List list;
    for (const std::uintptr_t number : {40u, 41u, 20u, 22u})
        EXPECT_TRUE(list.append(number));
    for (const std::uintptr_t number : {40u, 41u, 20u, 22u})
        EXPECT_FALSE(list.append(number)) << number;
}

TEST(AscendingRuns, RefuseWhatBelongsBetweenOthers)
{
    List list;
    for (const std::uintptr_t number : {40u, 44u, 20u, 22u})
        EXPECT_TRUE(list.append(number));
    EXPECT_FALSE(list.append(42));
    EXPECT_FALSE(list.append(21));
    EXPECT_TRUE(list.append(30)); // still below the run above
    EXPECT_FALSE(list.append(43));
    EXPECT_TRUE(list.append(50));
}

TEST(AscendingRuns, RefuseWhatHasNoOrder)
{
    List list;
    std::uintptr_t number = 1000000;
    int taken = 0;
    while (taken < 1000 && list.append(--number))
        ++taken;
    EXPECT_GT(taken, 16);
    EXPECT_LT(taken, 1000);
    EXPECT_EQ(list.find(999999), 0u);
    EXPECT_FALSE(list.find(number));
}

TEST(AscendingRuns, FindWhateverTheOrderOfQuestions)
{
    List list;
    for (std::uintptr_t number = 5000; number < 9000; number += 3)
        ASSERT_TRUE(list.append(number));
    for (std::uintptr_t number = 1000; number < 4000; number += 2)
        ASSERT_TRUE(list.append(number));
    std::mt19937 random(5);
    for (int round = 0; round < 5000; ++round) {
        const std::size_t place = random() % list.cells.size();
        ASSERT_EQ(list.runs.find(list.cells, list.cells[place]), place);
    }
    for (std::uintptr_t number = 900; number < 9100; ++number) {
        const bool isThere = number < 4500 ? number >= 1000 && number < 4000 && number % 2 == 0
                                           : number >= 5000 && number < 9000 && number % 3 == 2;
        ASSERT_EQ(list.find(number).has_value(), isThere) << number;
    }
}

} // namespace
