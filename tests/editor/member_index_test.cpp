#include <gtest/gtest.h>

#include "member_index.h"

#include <map>
#include <random>

namespace {

/// An id that is only compared and never looked into.
KdDbObjectId madeUpId(std::uintptr_t number)
{
    return KdDbObjectId(reinterpret_cast<KdDbObject*>(number * 16));
}

TEST(MemberIndex, FindsNothingWhileItIsEmpty)
{
    EXPECT_FALSE(MemberIndex().find({}, madeUpId(1)));
}

TEST(MemberIndex, AgreesWithAMapOverManyChanges)
{
    MemberIndex index;
    MemberIndex::Cells cells;
    std::map<std::uintptr_t, std::size_t> expected;
    std::mt19937 random(11);
    for (int round = 0; round < 20000; ++round) {
        const std::uintptr_t number = 1 + random() % 500;
        const auto known = expected.find(number);
        if (known == expected.end()) {
            cells.push_back(madeUpId(number));
            index.insert(cells, cells.size() - 1);
            expected[number] = cells.size() - 1;
        } else {
            index.erase(cells, madeUpId(number));
            cells[known->second] = KdDbObjectId::kNull;
            expected.erase(known);
        }
    }
    for (std::uintptr_t number = 1; number <= 500; ++number) {
        const auto found = index.find(cells, madeUpId(number));
        ASSERT_EQ(found.has_value(), expected.contains(number)) << number;
        if (found) {
            EXPECT_EQ(*found, expected[number]);
        }
    }
}

} // namespace
