#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <support/processor_watch.h>

#include "selection_set.h"
#include "working_drawing.h"

#include <algorithm>
#include <random>

using namespace editor_test;
using testing::ElementsAre;
using testing::ElementsAreArray;

namespace {

Ids byNumber(const SelectionSet& set)
{
    Ids members;
    for (std::size_t number = 0; number < set.size(); ++number)
        members.push_back(set.at(number));
    return members;
}

Ids byVisit(const SelectionSet& set)
{
    Ids members;
    set.forEach([&](KdDbObjectId id) { members.push_back(id); });
    return members;
}

class SelectionSetOfLines : public WorkingDrawing
{
  protected:
    Ids addLines(std::size_t count)
    {
        Ids ids;
        for (std::size_t i = 0; i < count; ++i)
            ids.push_back(addLine(model()));
        return ids;
    }

    SelectionSet set;
};

TEST_F(SelectionSetOfLines, KeepsTheOrderOfAdding)
{
    const Ids lines = addLines(3);
    set.add(lines[2]);
    set.add(lines[0]);
    set.add(lines[1]);
    EXPECT_THAT(byNumber(set), ElementsAre(lines[2], lines[0], lines[1]));
    EXPECT_THAT(byVisit(set), ElementsAre(lines[2], lines[0], lines[1]));
}

TEST_F(SelectionSetOfLines, TakesMembersInAnyOrderOfMemory)
{
    Ids order = addLines(6);
    std::ranges::sort(order);
    do {
        SelectionSet added;
        for (const KdDbObjectId id : order)
            added.add(id);
        ASSERT_EQ(byVisit(added), order);
        for (const KdDbObjectId id : order) {
            ASSERT_TRUE(added.contains(id));
            added.add(id);
        }
        ASSERT_EQ(byNumber(added), order);
    } while (std::ranges::next_permutation(order).found);
}

TEST_F(SelectionSetOfLines, LeavesAMemberAddedAgainInItsPlace)
{
    const Ids lines = addLines(2);
    set.add(lines[0]);
    set.add(lines[1]);
    EXPECT_TRUE(set.add(lines[0]));
    EXPECT_THAT(byNumber(set), ElementsAre(lines[0], lines[1]));
}

TEST_F(SelectionSetOfLines, MovesAMemberToTheEndWhenItIsRemovedAndAddedAgain)
{
    const Ids lines = addLines(3);
    for (const KdDbObjectId id : lines)
        set.add(id);
    EXPECT_TRUE(set.remove(lines[0]));
    set.add(lines[0]);
    EXPECT_THAT(byNumber(set), ElementsAre(lines[1], lines[2], lines[0]));
}

TEST_F(SelectionSetOfLines, ForgetsWhatIsRemoved)
{
    const Ids lines = addLines(2);
    set.add(lines[0]);
    set.add(lines[1]);
    EXPECT_TRUE(set.remove(lines[0]));
    EXPECT_FALSE(set.contains(lines[0]));
    EXPECT_TRUE(set.contains(lines[1]));
    EXPECT_EQ(set.size(), 1u);
    EXPECT_FALSE(set.remove(lines[0]));
}

TEST_F(SelectionSetOfLines, RefusesTheNullId)
{
    EXPECT_FALSE(set.add(KdDbObjectId()));
    EXPECT_FALSE(set.contains(KdDbObjectId()));
    EXPECT_FALSE(set.remove(KdDbObjectId()));
}

TEST_F(SelectionSetOfLines, RefusesAnEntityOfNoDrawing)
{
    KdDbLine loose;
    EXPECT_FALSE(set.add(loose.objectId()));
    EXPECT_EQ(set.size(), 0u);
}

TEST_F(SelectionSetOfLines, RefusesAnEntityOfAnotherDrawing)
{
    KdDbDatabase other;
    set.add(addLines(1)[0]);
    EXPECT_FALSE(set.add(addLine(other.modelSpaceId())));
    EXPECT_EQ(set.size(), 1u);
    EXPECT_EQ(set.database(), &drawing);
}

TEST_F(SelectionSetOfLines, HasNoDrawingBeforeItsFirstMember)
{
    EXPECT_EQ(set.database(), nullptr);
}

TEST_F(SelectionSetOfLines, IsIndependentOfItsCopy)
{
    const Ids lines = addLines(2);
    set.add(lines[0]);
    SelectionSet copy = set;
    copy.add(lines[1]);
    copy.remove(lines[0]);
    EXPECT_THAT(byNumber(set), ElementsAre(lines[0]));
    EXPECT_THAT(byNumber(copy), ElementsAre(lines[1]));
}

TEST_F(SelectionSetOfLines, AgreesWithAPlainListOverManyChanges)
{
    const Ids lines = addLines(400);
    Ids expected;
    std::mt19937 random(3);
    for (int round = 0; round < 20000; ++round) {
        const KdDbObjectId id = lines[random() % lines.size()];
        const auto known = std::find(expected.begin(), expected.end(), id);
        // Runs of mostly adding and of mostly removing, so that the set grows and shrinks.
        const bool adds = random() % 4 != (round / 2000 % 2 ? 0u : 1u) ? round / 2000 % 2 == 0
                                                                       : round / 2000 % 2 == 1;
        if (adds) {
            ASSERT_TRUE(set.add(id));
            if (known == expected.end())
                expected.push_back(id);
        } else {
            ASSERT_EQ(set.remove(id), known != expected.end());
            if (known != expected.end())
                expected.erase(known);
        }
        ASSERT_EQ(set.size(), expected.size());
        if (!expected.empty()) {
            const std::size_t number = random() % expected.size();
            ASSERT_EQ(set.at(number), expected[number]) << round;
        }
    }
    EXPECT_THAT(byNumber(set), ElementsAreArray(expected));
    EXPECT_THAT(byVisit(set), ElementsAreArray(expected));
}

/// Far more than the work takes, far less than it would take if it grew with the square.
constexpr double kPatience = 10.0;
constexpr std::size_t kMany = 100000;

TEST_F(SelectionSetOfLines, StaysFastWhenItsFirstMemberIsRemovedAgainAndAgain)
{
    for (const KdDbObjectId id : addLines(kMany))
        set.add(id);
    const ProcessorWatch watch;
    while (set.size() > 0)
        set.remove(set.at(0));
    EXPECT_LT(watch.seconds(), kPatience);
}

TEST_F(SelectionSetOfLines, StaysFastWhenRemovalsLookUpsAndAdditionsAlternate)
{
    const Ids lines = addLines(kMany);
    for (const KdDbObjectId id : lines)
        set.add(id);
    const ProcessorWatch watch;
    std::size_t sum = 0;
    for (const KdDbObjectId id : lines) {
        set.remove(id);
        sum += set.at(set.size() / 2).isNull();
        set.add(id);
    }
    EXPECT_LT(watch.seconds(), kPatience);
    EXPECT_EQ(sum, 0u);
    EXPECT_THAT(byVisit(set), ElementsAreArray(lines));
}

TEST_F(SelectionSetOfLines, FindsInOrderWhatIsLeftOfMany)
{
    Ids lines = addLines(300);
    std::ranges::sort(lines);
    for (const KdDbObjectId id : lines)
        set.add(id);
    Ids left;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i % 5 == 0)
            left.push_back(lines[i]);
        else
            set.remove(lines[i]);
    }
    EXPECT_EQ(byNumber(set), left);
    for (std::size_t i = 0; i < lines.size(); ++i)
        ASSERT_EQ(set.contains(lines[i]), i % 5 == 0) << i;
    set.add(lines[1]);
    left.push_back(lines[1]);
    EXPECT_EQ(byVisit(set), left);
}

TEST_F(SelectionSetOfLines, FindsWhatIsLeftWhereThatAscendsNoMore)
{
    // Four stretches, each in order, of which none lies inside of another: 11 to 14, the lowest, 18
    // to 20, 15 to 17. Without the lowest ones, the first and the third become a single stretch,
    // and the last lies inside of it.
    Ids lines = addLines(100);
    std::ranges::sort(lines);
    constexpr std::size_t kLowest = 75;
    const auto high = lines.begin() + 80;
    Ids order(high + 11, high + 15);
    order.insert(order.end(), lines.begin(), lines.begin() + kLowest);
    order.insert(order.end(), high + 18, high + 20);
    order.insert(order.end(), high + 15, high + 18);
    for (const KdDbObjectId id : order)
        set.add(id);
    Ids left = order;
    for (std::size_t i = 0; i < kLowest; ++i) {
        set.remove(lines[i]);
        std::erase(left, lines[i]);
        ASSERT_EQ(byVisit(set), left);
        ASSERT_TRUE(std::ranges::all_of(left, [&](KdDbObjectId id) { return set.contains(id); }));
    }
    EXPECT_EQ(byNumber(set), left);
    EXPECT_FALSE(set.contains(lines[0]));
}

TEST_F(SelectionSetOfLines, DoesNotGrowWithWhatWasRemoved)
{
    const Ids lines = addLines(2);
    set.add(lines[0]);
    for (std::size_t round = 0; round < kMany; ++round) {
        set.add(lines[1]);
        set.remove(lines[1]);
    }
    // Walking over a cell for each removal would take this work far beyond any patience.
    const ProcessorWatch watch;
    for (std::size_t round = 0; round < kMany; ++round)
        ASSERT_EQ(byVisit(set).size(), 1u);
    EXPECT_LT(watch.seconds(), kPatience);
}

} // namespace
